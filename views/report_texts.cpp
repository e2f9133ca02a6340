#include "views/report_texts.h"

#include <array>

#include "rigs/text.h"
#include "skelegon/table_order.h"

namespace standin::views {
namespace {

struct Row {
  ReportText text;
  const char* english;
  const char* japanese;
};

constexpr std::array<Row, kReportTextCount> kTexts = {{
    // clang-format off
    {ReportText::Title, "{0}: rig report", "{0}: リグのレポート"},
    {ReportText::AllReports, "Rig reports", "リグのレポート"},
    {ReportText::ToIndex, "All rigs", "すべてのリグ"},
    {ReportText::Rig, "Rig", "リグ"},
    {ReportText::ReadInCodePage, "read in code page {0}", "コードページ {0} として読んだ"},
    {ReportText::NotRead, "not read: {0}", "読めない: {0}"},
    {ReportText::MadeBy, "Made by varnel {0}.", "varnel {0} で作成。"},
    {ReportText::Pictures, "Pictures", "図"},
    {ReportText::PicturesText,
     "Before: the skelegons as they lie in the object. After: the bones that the conversion makes of them, with their helper items. What has a problem is marked.",
     "前: オブジェクトの中のスケルゴン。後: 変換でできるボーンと補助アイテム。問題のあるものには印が付いています。"},
    {ReportText::Before, "before", "前"},
    {ReportText::After, "after", "後"},
    {ReportText::Changes, "Changes since {0}", "{0} からの変更"},
    {ReportText::ChangesText, "Compared are the skelegons and what they store, not the mesh.",
     "比べるのはスケルゴンとその設定で、メッシュは比べません。"},
    {ReportText::ChangesPictures, "What has changed is marked.", "変わったものには印が付いています。"},
    {ReportText::NoChanges, "Nothing differs.", "違いはありません。"},
    {ReportText::ChangesRest, "And {0} more: varnel diff shows all.", "ほかに {0} 件あります。varnel diff がすべてを表示します。"},
    {ReportText::What, "What", "項目"},
    {ReportText::None, "(none)", "(なし)"},
    {ReportText::Findings, "Findings", "見つかったこと"},
    {ReportText::FindingsText,
     "A problem is a setting that will not arrive, will arrive at another item, or as something else. A note may be meant so.",
     "「問題」は、届かない、別のアイテムに届く、別のものになって届く設定です。「注意」は、そのつもりかもしれないことです。"},
    {ReportText::NoFindings, "There are none.", "ありません。"},
    {ReportText::FindingsRest, "And {0} more: varnel inspect shows all.", "ほかに {0} 件あります。varnel inspect がすべてを表示します。"},
    {ReportText::WholeFile, "the file", "ファイル"},
    {ReportText::ManualEntry, "manual", "マニュアル"},
    {ReportText::Skelegons, "Skelegons", "スケルゴン"},
    {ReportText::SkelegonsText, "Each with the settings that it stores and that are not at their default.",
     "それぞれに保存された設定のうち、初期値でないもの。"},
    {ReportText::NoSkelegons, "There are none in this object.", "このオブジェクトにはありません。"},
    {ReportText::SkelegonsRest, "And {0} more: varnel inspect shows all.", "ほかに {0} 個あります。varnel inspect がすべてを表示します。"},
    {ReportText::Skelegon, "Skelegon", "スケルゴン"},
    {ReportText::Settings, "Settings", "設定"},
    {ReportText::AtDefaults, "all at their defaults", "すべて初期値"},
    {ReportText::Scene, "Scene", "シーン"},
    {ReportText::SceneText,
     "Behind each item stands how many of its settings differ from those of a fresh one.",
     "アイテムの後ろの数は、新しいアイテムと違う設定の数です。表示は英語です。"},
    {ReportText::SceneRest, "And {0} more lines: varnel convert shows all.", "ほかに {0} 行あります。varnel convert がすべてを表示します。"},
    {ReportText::Sent, "What the conversion sent", "変換が送ったもの"},
    {ReportText::SentText, "The commands to Layout, in order, by the item whose turn it was: {0}, of which {1} refused.",
     "レイアウトへのコマンドを、順番に、対象のアイテムごとにまとめたもの: {0}、そのうち断られたもの {1}。"},
    {ReportText::SentFirst, "Beginning", "始め"},
    {ReportText::SentRest, "And {0} more: varnel commands shows all.", "ほかに {0} 個あります。varnel commands がすべてを表示します。"},
    {ReportText::Conversion, "Conversion", "変換"},
    {ReportText::Problems, "Problems", "問題"},
    {ReportText::Notes, "Notes", "注意"},
    {ReportText::Rejected, "refused: {0}", "断られた: {0}"},
    {ReportText::Asked, "would ask the user: {0}", "ユーザーに尋ねるところだった: {0}"},
    {ReportText::Verdict, "Verdict", "判定"},
    {ReportText::VerdictText,
     "What became of the conversion in the Layout that the program plays.",
     "プログラムが演じるレイアウトで変換がどうなったか。理由は英語です。"},
    {ReportText::AllWell, "all went well", "すべてうまくいきました"},
    {ReportText::NotAllWell, "not all went well", "うまくいかなかったことがあります"},
    {ReportText::NotConverted, "not converted", "変換していません"},
    {ReportText::ObjectsConverted, "Objects converted", "変換したオブジェクト"},
    {ReportText::BonesSet, "Bones set", "設定したボーン"},
    {ReportText::BonesPartlySet, "Bones set only in part", "一部だけ設定したボーン"},
    {ReportText::BonesNotSet, "Bones without settings", "設定のないボーン"},
    {ReportText::RefusedByLayout, "Refused by Layout", "レイアウトが断った"},
    {ReportText::OnStatusLine, "On the status line", "ステータスラインに"},
    {ReportText::PassedOver, "Passed over", "飛ばした"},
    {ReportText::CutOff, "The run was cut off", "途中で終わった"},
    {ReportText::Times, "{0}, {1} times", "{0}、{1} 回"},
    {ReportText::AndMore, "{0} and {1} more", "{0}、ほか {1}"},
    // clang-format on
}};

static_assert(skg::standInOrder(kTexts, &Row::text));

}  // namespace

const char* textOf(ReportText text, Language language) {
  const Row& row = kTexts[static_cast<std::size_t>(text)];
  return language == Language::Japanese ? row.japanese : row.english;
}

std::string filledText(ReportText text, Language language, const std::string& first, const std::string& second) {
  return rigs::filled(textOf(text, language), {{"{0}", first}, {"{1}", second}});
}

std::string countedText(std::size_t count, const char* english, const char* japanese, Language language) {
  const std::string number = std::to_string(count);
  if (language == Language::Japanese) return japanese + (' ' + number);
  return number + ' ' + english + (count == 1 ? "" : "s");
}

}  // namespace standin::views
