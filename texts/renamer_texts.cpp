#include "texts/labels.h"
#include "texts/texts.h"

namespace texts {
namespace {

// clang-format off
constexpr LabelRow kRenamerLabels[] = {
    {  0, "Mode",                              "モード"},
    {  3, "Conversion Method",                 "変換"},
    {  4, "Based Name",                        "基本の名前"},
    {  6, "Add to Head",                       "先頭に付加"},
    {  8, "Add to Last",                       "末尾に付加"},
    { 10, "Replace",                           "置換"},
    { 13, "RegExp",                            "正規表現"},
    { 16, "Target",                            "対象"},
    { 17, "Registered Count",                  "登録数"},
    { 18, "Add",                               "追加"},
    { 19, "Clear",                             "クリア"},
    { 20, "Overlap Check",                     "重複チェック"},
    { 21, "Column Character",                  "列文字"},
    { 22, "Order",                             "順番"},
    { 23, "Start",                             "始め"},
    { 24, "Invert",                            "反転"},
    { 25, "Row Digit",                         "行数字"},
    { 26, "Number of Digits",                  "桁数"},
    { 27, "Start",                             "始め"},
    { 28, "Target",                            "対象"},
    { 29, "Skelegon",                          "スケルゴン名"},
    { 30, "Bone Weight Map",                   "ボーンウェイトマップ名"},
    { 31, "Bone Property",                     "ボーンプロパティ"},
    { 33, "Run",                               "実行"},
};
static_assert(rowsAreSound(kRenamerLabels));
constexpr auto kRenamerLabelTables = labelTables<kRenamerLabelCount>(kRenamerLabels);

constexpr const char* kRenameModeEn[] = {
    "Change", "Prefix", "Suffix", "Replace", "Regular Expression", "Advanced Setting", nullptr,
};
constexpr const char* kRenameModeJa[] = {
    "変更", "接頭辞", "接尾辞", "置き換え", "置き換え(正規表現)", "詳細設定", nullptr,
};
constexpr const char* kRenameTargetEn[] = {"Selection", "Registration", "Registration + Children", "All", nullptr};
constexpr const char* kRenameTargetJa[] = {"選択", "登録", "登録と子孫", "すべて", nullptr};
constexpr const char* kRenameOrderEn[] = {
    "Registration Order", "X Position", "Y Position", "Z Position", "Distance from Origin", "Angle from Top(XZ)+Z",
    "Angle from Top(XZ)+X", "Angle from Top(XZ)-Z", "Angle from Top(XZ)-X", "Angle from Back(XY)+Y",
    "Angle from Back(XY)+X", "Angle from Back(XY)-Y", "Angle from Back(XY)-X", "Angle from Right(ZY)+Y",
    "Angle from Right(ZY)+Z", "Angle from Right(ZY)-Y", "Angle from Right(ZY)-Z", nullptr,
};
constexpr const char* kRenameOrderJa[] = {
    "登録順", "X位置", "Y位置", "Z位置", "原点からの距離", "Top(XZ)+Zからの角度", "Top(XZ)+Xからの角度",
    "Top(XZ)-Zからの角度", "Top(XZ)-Xからの角度", "Back(XY)+Yからの角度", "Back(XY)+Xからの角度", "Back(XY)-Yからの角度",
    "Back(XY)-Xからの角度", "Right(ZY)+Yからの角度", "Right(ZY)+Zからの角度", "Right(ZY)-Yからの角度",
    "Right(ZY)-Zからの角度", nullptr,
};
constexpr const char* kColumnLetter[] = {
    "A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L", "M", "N", "O", "P", "Q", "R", "S", "T", "U", "V", "W",
    "X", "Y", "Z", nullptr,
};

constexpr std::array<RenamerListRow, kRenamerListCount> kRenamerChoices = {{
    // list                  entries with the null, English, Japanese
    {RenamerList::RenameMode,       7, kRenameModeEn,       kRenameModeJa},
    {RenamerList::RenameTarget,     5, kRenameTargetEn,     kRenameTargetJa},
    {RenamerList::RenameOrder,     18, kRenameOrderEn,      kRenameOrderJa},
    {RenamerList::ColumnLetter,    27, kColumnLetter,       kColumnLetter},
}};
static_assert(listsAreSound(kRenamerChoices));
// clang-format on

// The titles are English in both languages; the host shows none of them.
constexpr RenamerMessages kEnglishMessages = {
    "Error", "Need select the skelegon!", "", "Error", "Skelegon names are duplicated!", "",
};
constexpr RenamerMessages kJapaneseMessages = {
    "Error", "スケルゴンを選択してください！", "", "Error", "スケルゴン名が重複します！", "",
};

constexpr RenamerRefusals kEnglishRefusals = {
    "The name gets too long!",
    "The regular expression takes too long for this name!",
    "The regular expression cuts a letter in two!",
};
constexpr RenamerRefusals kJapaneseRefusals = {
    "名前が長すぎます！",
    "この名前では正規表現の処理が終わりません！",
    "正規表現が文字の途中で切っています！",
};

}  // namespace

const std::array<const char*, kRenamerLabelCount>& renamerLabels(Language language) {
  return kRenamerLabelTables[static_cast<std::size_t>(language)];
}

const std::array<RenamerListRow, kRenamerListCount>& renamerChoices() { return kRenamerChoices; }

const RenamerMessages& renamerMessages(Language language) {
  return language == Language::Japanese ? kJapaneseMessages : kEnglishMessages;
}

const RenamerRefusals& renamerRefusals(Language language) {
  return language == Language::Japanese ? kJapaneseRefusals : kEnglishRefusals;
}

}  // namespace texts
