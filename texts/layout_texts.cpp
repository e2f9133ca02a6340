#include "texts/texts.h"

namespace texts {
namespace {

constexpr LayoutTexts kEnglish = {"", "", "Execute SkelegonToBone", "Execute Record Pivot Rotation", "Run", ""};
constexpr LayoutTexts kJapanese = {"", "", "SkelegonToBoneを実行する", "ボーンの中心点回転記録を実行する", "実行", ""};

}  // namespace

const LayoutTexts& layoutTexts(Language language) { return language == Language::Japanese ? kJapanese : kEnglish; }

}  // namespace texts
