#include "rigs/findings.h"
#include "skelegon/table_order.h"

namespace standin::rigs {
namespace {

constexpr FindingWeight kProblem = FindingWeight::Problem;
constexpr FindingWeight kNote = FindingWeight::Note;
constexpr const char* kSurprises = "surprises";
constexpr const char* kMessages = "messages";

constexpr std::array<FindingRow, kFindingKinds> kRows = {{
    // clang-format off
    {FindingKind::FileExtension, kProblem, "file-extension", kSurprises,
     "the file name {text} does not end in .lwo in small letters: the conversion will pass the object over",
     "ファイル名 {text} の末尾が小文字の .lwo ではありません: 変換はこのオブジェクトを飛ばします"},
    {FindingKind::LayerName, kProblem, "layer-name", kSurprises,
     "the conversion does not find this layer by the item's name {text}: its bones will get no settings",
     "アイテム名 {text} からこのレイヤーを見つけられません: ボーンに設定が付きません"},
    {FindingKind::LayerTwice, kProblem, "layer-twice", kMessages,
     "another layer before it has the same name {text}: the settings of that layer's skelegons will be used for this one too",
     "同じ名前 {text} のレイヤーが前にあります: このレイヤーにもそちらのスケルゴンの設定が使われます"},
    {FindingKind::NoName, kProblem, "no-name", kMessages,
     "has no name: its bone will get no settings",
     "名前がありません: ボーンに設定が付きません"},
    {FindingKind::NameTwice, kProblem, "name-twice", kSurprises,
     "{number} skelegons of this layer bear this name: Layout will number their bones, and the settings will reach none or the wrong one",
     "このレイヤーの {number} 個のスケルゴンが同じ名前です: レイアウトはボーンに番号を付けるので、設定は付かないか別のボーンに付きます"},
    {FindingKind::NameInTwoLayers, kProblem, "name-in-two-layers", kMessages,
     "a skelegon of the layer {text} bears this name too: the settings of both will go to the first bone of that name",
     "レイヤー {text} のスケルゴンも同じ名前です: 両方の設定が、その名前の最初のボーンに付きます"},
    {FindingKind::NameOfItem, kProblem, "name-of-item", kSurprises,
     "the object item bears this name too: the settings will be sent to the object, not to the bone",
     "オブジェクトのアイテムも同じ名前です: 設定はボーンではなくオブジェクトに送られます"},
    {FindingKind::NameTooLong, kNote, "name-too-long", kMessages,
     "has {number} bytes: the property panel shows the first {other} only, and what is typed there takes the place of the whole",
     "{number} バイトあります: プロパティパネルには最初の {other} バイトだけが出て、そこで入力すると全体が置き換わります"},
    {FindingKind::CountersTwice, kNote, "counters-twice", kSurprises,
     "counted as the renamer does by default, {number} of this layer's skelegons would get a name that another has, first {text} that of {other}: with Overlap Check on nothing is renamed",
     "リネーマーの初期設定で番号を付けると、このレイヤーの {number} 個のスケルゴンがほかと同じ名前になります（最初は {text} が {other} と）: 「重複チェック」がオンなら何も変わりません"},
    {FindingKind::BecomesNull, kNote, "becomes-null", kMessages,
     "nothing in the file bears the name {text}: Layout will make a null, unless the scene has such an item",
     "ファイルに {text} という名前のものがありません: シーンに無ければヌルになります"},
    {FindingKind::ParentMissing, kProblem, "parent-missing", kMessages,
     "nothing in the file bears the name {text}: it will not be parented, unless the scene has such an item",
     "ファイルに {text} という名前のものがありません: シーンに無ければ、親は設定されません"},
    {FindingKind::ParentLate, kProblem, "parent-late", kSurprises,
     "the null {text} is made for a later skelegon only: a first conversion will not find it, one more without making bones will",
     "ヌル {text} は後のスケルゴンで作られます: 最初の変換では見つからず、ボーンを作らずにもう一度変換すると見つかります"},
    {FindingKind::BonesFromMissing, kProblem, "bones-from-missing", kMessages,
     "nothing in the file bears the name {text}: unless the scene has such an item, this bone and all after it in the layer will get no settings",
     "ファイルに {text} という名前のものがありません: シーンに無ければ、このボーンとレイヤー内のそれ以降のボーンに設定が付きません"},
    {FindingKind::ChoiceOutside, kProblem, "choice-outside", kSurprises,
     "{text} is none of the {number} choices, which count from 0: Layout will be sent a number that it does not know",
     "{text} は 0 から数える {number} 個の選択肢にありません: レイアウトの知らない番号が送られます"},
    {FindingKind::FlagOutside, kProblem, "flag-outside", kMessages,
     "{text} is neither 0 nor 1: it will count as 1",
     "{text} は 0 でも 1 でもありません: 1 として扱われます"},
    {FindingKind::ColourUnknown, kProblem, "colour-unknown", kMessages,
     "{text} is no colour of the list: the item will become orange",
     "{text} は色の一覧にありません: アイテムはオレンジになります"},
    {FindingKind::ColourEmpty, kProblem, "colour-empty", kSurprises,
     "the colour is stored as an empty text: the item will become orange",
     "色が空のテキストで保存されています: アイテムはオレンジになります"},
    {FindingKind::ColourMissing, kProblem, "colour-missing", kSurprises,
     "no colour is stored: the bone will become orange, though the property panel shows Modeler Setting",
     "色が保存されていません: プロパティパネルには「モデラー設定」と出ますが、ボーンはオレンジになります"},
    {FindingKind::NumberUnreadable, kProblem, "number-unreadable", kMessages,
     "{text} does not begin with a number: it will count as 0",
     "{text} は数で始まっていません: 0 として扱われます"},
    {FindingKind::NumberPartly, kProblem, "number-partly", kMessages,
     "{text} is not a number of this kind as a whole: it will count as {number}",
     "{text} の全体はこの種類の数ではありません: {number} として扱われます"},
    {FindingKind::CommandTooLong, kProblem, "command-too-long", kMessages,
     "the command \"{other}\" with this text would have {number} bytes, more than can be sent: the whole conversion will end here",
     "このテキストを付けたコマンド「{other}」は {number} バイトになり、送れません: 変換全体がここで終わります"},
    {FindingKind::PathTooLong, kProblem, "path-too-long", kSurprises,
     "the whole path of the file has {number} characters, more than the {other} that can be opened: none of its settings will arrive; the conversion will take the file that it read before in its place, and end here when there was none",
     "ファイルのパス全体が {number} 文字あり、開ける {other} 文字を超えています: 設定は届きません。変換は代わりに前に読んだファイルを使い、なければここで終わります"},
    {FindingKind::PathCodePage, kProblem, "path-code-page", kSurprises,
     "the file name {text} has characters that code page {number} lacks: the file will not be found, and the conversion will end here",
     "ファイル名 {text} にコードページ {number} に無い文字があります: ファイルが見つからず、変換はここで終わります"},
    {FindingKind::CommandCodePage, kProblem, "command-code-page", kSurprises,
     "{text} has characters that code page {number} lacks: Layout will read another name in the command \"{other}\"",
     "{text} にコードページ {number} に無い文字があります: コマンド「{other}」では別の名前になります"},
    {FindingKind::TextCodePage, kNote, "text-code-page", kMessages,
     "its texts are no UTF-8, but can be read in code page {number} and are shown so: the conversion takes them as they stand",
     "テキストが UTF-8 ではなく、コードページ {number} として読めるので、そのように表示します: 変換は保存されたまま扱います"},
    {FindingKind::UnknownSlot, kNote, "unknown-slot", kMessages,
     "the tag {other} with the text {text} is of no setting: nothing will come of it",
     "タグ {other}（テキスト {text}）はどの設定のものでもありません: 何にも使われません"},
    {FindingKind::WeightOnlyLate, kProblem, "weight-only-late", kSurprises,
     "a first conversion will leave it off and only normalization on; one more without making bones will leave both on, as stored",
     "最初の変換ではこれがオフになり、正規化だけがオンになります: ボーンを作らずにもう一度変換すると、保存どおり両方がオンになります"},
    {FindingKind::WeightOnlyLost, kProblem, "weight-only-lost", kSurprises,
     "a first conversion will switch normalization on too; one more without making bones will switch this off, and it will stay off",
     "最初の変換では正規化もオンになります: ボーンを作らずにもう一度変換するとこれがオフになり、そのままになります"},
    {FindingKind::WeightNotSent, kProblem, "weight-not-sent", kSurprises,
     "this needs a weight map, and normalization needs Use Weight Map Only too: it will not be sent",
     "ウェイトマップが必要で、正規化には「ウェイトのみ使用」も必要です: 送られません"},
    {FindingKind::TwistWithoutJoint, kProblem, "twist-without-joint", kSurprises,
     "the bone type is no joint: this will not be sent",
     "ボーンの種類がジョイントではありません: 送られません"},
    {FindingKind::LimitedRange, kNote, "limited-range", kSurprises,
     "{text} will arrive as {other}: one hundredth",
     "{text} は {other} で届きます: 100 分の 1 です"},
    {FindingKind::ZFollowLost, kProblem, "z-follow-lost", kSurprises,
     "the Z scale's own controller is Same as Item, but the Y scale's is not: this, x/+ and the offset of the Z scale will not be sent",
     "「Zスケール制御」は「アイテムと同じ」ですが、「Yスケール制御」が違います: Z スケールの「追跡」、「x/+」と加える値は送られません"},
    {FindingKind::ZFollowSent, kNote, "z-follow-sent", kSurprises,
     "the Y scale's controller is Same as Item: this, x/+ and the offset of the Z scale will be sent, though its own controller is another",
     "「Yスケール制御」が「アイテムと同じ」です: 「Zスケール制御」は違いますが、Z スケールの「追跡」、「x/+」と加える値も送られます"},
    {FindingKind::GroupDiffers, kProblem, "group-differs", kSurprises,
     "the skelegons of this layer differ in it, though it is the object's: that of the last one, {text}, will count",
     "オブジェクト全体の設定なのに、このレイヤーのスケルゴンで値が違います: 最後の {text} のものが使われます"},
    {FindingKind::TagRepeated, kProblem, "tag-repeated", kMessages,
     "is stored {number} times, first with the text {text}, last with {other}: the conversion will take the first, Modeler perhaps the last",
     "{number} 回保存されていて、最初のテキストは {text}、最後は {other} です: 変換は最初のものを使い、モデラーは最後のものを使うかもしれません"},
    {FindingKind::TextMissing, kProblem, "text-missing", kMessages,
     "names the text {number}, which the file does not have: it will count as not stored, and other programs may refuse the file",
     "ファイルにないテキスト {number} を指しています: 保存されていないものとして扱われ、ほかのプログラムはファイルを断るかもしれません"},
    // clang-format on
}};

static_assert(skg::standInOrder(kRows, &FindingRow::kind));
static_assert(static_cast<std::size_t>(FindingKind::TextMissing) + 1 == kFindingKinds);

}  // namespace

const std::array<FindingRow, kFindingKinds>& findingTable() { return kRows; }

const FindingRow& findingRow(FindingKind kind) { return kRows[static_cast<std::size_t>(kind)]; }

bool isProblem(const Finding& finding) { return findingRow(finding.kind).weight == FindingWeight::Problem; }

const char* wordOf(FindingWeight weight, Language language) {
  const bool japanese = language == Language::Japanese;
  if (weight == FindingWeight::Problem) return japanese ? "問題" : "problem";
  return japanese ? "注意" : "note";
}

std::string manualEntryOf(FindingKind kind, Language language) {
  const FindingRow& row = findingRow(kind);
  const char* const folder = language == Language::Japanese ? "ja" : "en";
  return std::string("manual/") + folder + "/" + row.page + ".html#" + row.id;
}

}  // namespace standin::rigs
