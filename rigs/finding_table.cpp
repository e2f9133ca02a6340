#include "rigs/findings.h"
#include "skelegon/table_order.h"

namespace standin::rigs {
namespace {

constexpr const char* kSurprises = "surprises";
constexpr const char* kMessages = "messages";

constexpr std::array<FindingRow, kFindingKinds> kRows = {{
    // clang-format off
    {FindingKind::FileExtension, "file-extension", kSurprises,
     "the file name {text} does not end in .lwo in small letters: the conversion will pass the object over",
     "ファイル名 {text} の末尾が小文字の .lwo ではありません: 変換はこのオブジェクトを飛ばします"},
    {FindingKind::LayerName, "layer-name", kSurprises,
     "the conversion does not find this layer by the item's name {text}: its bones will get no settings",
     "アイテム名 {text} からこのレイヤーを見つけられません: ボーンに設定が付きません"},
    {FindingKind::LayerTwice, "layer-twice", kMessages,
     "another layer before it has the same name {text}: the settings of that layer's skelegons will be used for this one too",
     "同じ名前 {text} のレイヤーが前にあります: このレイヤーにもそちらのスケルゴンの設定が使われます"},
    {FindingKind::NoName, "no-name", kMessages,
     "has no name: its bone will get no settings",
     "名前がありません: ボーンに設定が付きません"},
    {FindingKind::NameTwice, "name-twice", kSurprises,
     "{number} skelegons of this layer bear this name: Layout will number their bones, and the settings will reach none or the wrong one",
     "このレイヤーの {number} 個のスケルゴンが同じ名前です: レイアウトはボーンに番号を付けるので、設定は付かないか別のボーンに付きます"},
    {FindingKind::NameInTwoLayers, "name-in-two-layers", kMessages,
     "a skelegon of the layer {text} bears this name too: the settings of both will go to the first bone of that name",
     "レイヤー {text} のスケルゴンも同じ名前です: 両方の設定が、その名前の最初のボーンに付きます"},
    {FindingKind::NameOfItem, "name-of-item", kSurprises,
     "the object item bears this name too: the settings will be sent to the object, not to the bone",
     "オブジェクトのアイテムも同じ名前です: 設定はボーンではなくオブジェクトに送られます"},
    {FindingKind::BecomesNull, "becomes-null", kMessages,
     "nothing in the file bears the name {text}: it will become a null, unless the scene has such an item",
     "ファイルに {text} という名前のものがありません: シーンに無ければヌルになります"},
    {FindingKind::ParentMissing, "parent-missing", kMessages,
     "nothing in the file bears the name {text}: it will not be parented, unless the scene has such an item",
     "ファイルに {text} という名前のものがありません: シーンに無ければ、親は設定されません"},
    {FindingKind::BonesFromMissing, "bones-from-missing", kMessages,
     "nothing in the file bears the name {text}: unless the scene has such an item, this bone and all after it in the layer will get no settings",
     "ファイルに {text} という名前のものがありません: シーンに無ければ、このボーンとレイヤー内のそれ以降のボーンに設定が付きません"},
    {FindingKind::ChoiceOutside, "choice-outside", kSurprises,
     "{text} is none of the {number} choices, which count from 0: Layout will be sent a number that it does not know",
     "{text} は 0 から数える {number} 個の選択肢にありません: レイアウトの知らない番号が送られます"},
    {FindingKind::FlagOutside, "flag-outside", kMessages,
     "{text} is neither 0 nor 1: it will count as on",
     "{text} は 0 でも 1 でもありません: オンとして扱われます"},
    {FindingKind::ColourUnknown, "colour-unknown", kMessages,
     "{text} is no colour of the list: the item will become orange",
     "{text} は色の一覧にありません: アイテムはオレンジになります"},
    {FindingKind::ColourEmpty, "colour-empty", kSurprises,
     "the colour is stored as an empty text: the bone will become orange",
     "色が空のテキストで保存されています: ボーンはオレンジになります"},
    {FindingKind::NumberUnreadable, "number-unreadable", kMessages,
     "{text} does not begin with a number: it will count as 0",
     "{text} は数で始まっていません: 0 として扱われます"},
    {FindingKind::NumberPartly, "number-partly", kMessages,
     "{text} is not a number of this kind as a whole: it will count as {number}",
     "{text} の全体はこの種類の数ではありません: {number} として扱われます"},
    {FindingKind::CommandTooLong, "command-too-long", kMessages,
     "the command \"{other}\" with this text would have {number} bytes, more than can be sent: the whole conversion will end here",
     "このテキストを付けたコマンド「{other}」は {number} バイトになり、送れません: 変換全体がここで終わります"},
    {FindingKind::PathTooLong, "path-too-long", kSurprises,
     "the whole path of the file has {number} characters, more than the {other} that can be opened: the conversion will read the file that it read before instead, and this object will get no settings or those of that one",
     "ファイルのパス全体が {number} 文字あり、開ける {other} 文字を超えています: 変換は代わりに前に読んだファイルを読み、このオブジェクトには設定が付かないか、そのファイルの設定が付きます"},
    {FindingKind::PathCodePage, "path-code-page", kSurprises,
     "the file name {text} has characters that code page {number} lacks: the file will not be found, and the conversion will end here",
     "ファイル名 {text} にコードページ {number} に無い文字があります: ファイルが見つからず、変換はここで終わります"},
    {FindingKind::CommandCodePage, "command-code-page", kSurprises,
     "{text} has characters that code page {number} lacks: Layout will read another name in the command \"{other}\"",
     "{text} にコードページ {number} に無い文字があります: コマンド「{other}」では別の名前になります"},
    {FindingKind::UnknownSlot, "unknown-slot", kMessages,
     "the tag {other} with the text {text} is of no setting: nothing will come of it",
     "タグ {other}（テキスト {text}）はどの設定のものでもありません: 何にも使われません"},
    {FindingKind::WeightOnlyLate, "weight-only-late", kSurprises,
     "a first conversion will leave it off and only normalization on; one more without making bones will leave both on, as stored",
     "最初の変換ではこれがオフになり、正規化だけがオンになります: ボーンを作らずにもう一度変換すると、保存どおり両方がオンになります"},
    {FindingKind::WeightOnlyLost, "weight-only-lost", kSurprises,
     "a first conversion will switch normalization on too; one more without making bones will switch this off, and it will stay off",
     "最初の変換では正規化もオンになります: ボーンを作らずにもう一度変換するとこれがオフになり、そのままになります"},
    {FindingKind::TwistWithoutJoint, "twist-without-joint", kSurprises,
     "the bone type is no joint: this will not be sent",
     "ボーンの種類がジョイントではありません: 送られません"},
    {FindingKind::GroupDiffers, "group-differs", kSurprises,
     "the skelegons of this layer differ in it, though it is the object's: that of the last one, {text}, will count",
     "オブジェクト全体の設定なのに、このレイヤーのスケルゴンで値が違います: 最後の {text} のものが使われます"},
    {FindingKind::TagRepeated, "tag-repeated", kMessages,
     "is stored {number} times, first with the text {text}, last with {other}: the conversion will take the first, Modeler perhaps the last",
     "{number} 回保存されていて、最初のテキストは {text}、最後は {other} です: 変換は最初のものを使い、モデラーは最後のものを使うかもしれません"},
    {FindingKind::TextMissing, "text-missing", kMessages,
     "names the text {number}, which the file does not have: it will count as not stored, and other programs may refuse the file",
     "ファイルにないテキスト {number} を指しています: 保存されていないものとして扱われ、ほかのプログラムはファイルを断るかもしれません"},
    // clang-format on
}};

static_assert(skg::standInOrder(kRows, &FindingRow::kind));
static_assert(static_cast<std::size_t>(FindingKind::TextMissing) + 1 == kFindingKinds);

}  // namespace

const std::array<FindingRow, kFindingKinds>& findingTable() { return kRows; }

const FindingRow& findingRow(FindingKind kind) { return kRows[static_cast<std::size_t>(kind)]; }

std::string manualEntryOf(FindingKind kind, Language language) {
  const FindingRow& row = findingRow(kind);
  const char* const folder = language == Language::Japanese ? "ja" : "en";
  return std::string("manual/") + folder + "/" + row.page + ".html#" + row.id;
}

}  // namespace standin::rigs
