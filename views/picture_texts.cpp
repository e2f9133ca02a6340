#include "views/picture_texts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

#include "rigs/text.h"
#include "views/svg.h"

namespace standin::views {
namespace {

struct Both {
  const char* english;
  const char* japanese;

  const char* in(Language language) const { return language == Language::Japanese ? japanese : english; }
};

constexpr Both kViews[] = {{"Front", "正面"}, {"Side", "側面"}, {"Top", "上面"}, {"Turned", "斜め"}};

constexpr std::array<Both, kHelperKinds> kKinds = {{
    {"target", "目標"},
    {"pole", "極ベクトル"},
    {"goal", "ゴール"},
    {"position", "位置"},
    {"rotation", "回転"},
    {"scale", "スケール"},
    {"initial position", "初期位置"},
}};

// One, several; "#" stands for the number.
struct CountRow {
  const char* one;
  const char* several;
  const char* japanese;
};
constexpr CountRow kCounts[] = {
    {"1 skelegon", "# skelegons", "スケルゴン #"},
    {"1 bone", "# bones", "ボーン #"},
    {"1 helper item", "# helper items", "ヘルパーアイテム #"},
    {"1 with a problem, in red", "# with a problem, in red", "問題あり # (赤)"},
    {"1 changed, in red", "# changed, in red", "変更あり # (赤)"},
    {"1 without a finite position, not drawn", "# without a finite position, not drawn",
     "位置が有限でないもの # (描かない)"},
    {"1 helper item without a finite position, not drawn", "# helper items without a finite position, not drawn",
     "位置が有限でないヘルパーアイテム # (描かない)"},
    {"1 name left out", "# names left out", "書ききれない名前 #"},
    {"mesh: 1 short edge left out", "mesh: # short edges left out", "メッシュ: 短い辺 # を省略"},
};

constexpr Both kNoSkelegons = {"no skelegons", "スケルゴンなし"};
constexpr Both kNoBones = {"no bones", "ボーンなし"};

constexpr Both kRemarks[] = {
    {"so many bones are drawn as lines", "数が多いので、ボーンは線で描く"},
    {"mesh: outline only", "メッシュ: 輪郭のみ"},
    {"has a problem", "問題あり"},
};

template <class Table, class Row>
auto& rowOf(Table& table, Row row) {
  return table[static_cast<std::size_t>(row)];
}

struct Unit {
  double metres;
  const char* name;
};
constexpr Unit kUnits[] = {{1e-6, "µm"}, {1e-3, "mm"}, {1e-2, "cm"}, {1, "m"}, {1e3, "km"}};

}  // namespace

const char* nameOf(View view, Language language) { return rowOf(kViews, view).in(language); }
const char* nameOf(HelperKind kind, Language language) { return rowOf(kKinds, kind).in(language); }
const char* remarkText(Remark remark, Language language) { return rowOf(kRemarks, remark).in(language); }

std::string countText(Counted what, std::size_t count, Language language) {
  const CountRow& row = rowOf(kCounts, what);
  if (count == 0 && what == Counted::Skelegons) return kNoSkelegons.in(language);
  if (count == 0 && what == Counted::Bones) return kNoBones.in(language);
  std::string text = language == Language::Japanese ? row.japanese : count == 1 ? row.one : row.several;
  if (const std::size_t at = text.find('#'); at != std::string::npos) text.replace(at, 1, std::to_string(count));
  return text;
}

std::string captionOf(const PosedNull& null, Language language) {
  std::array<bool, kHelperKinds> isOfKind{};
  for (const HelperLine& line : null.lines) rowOf(isOfKind, line.kind) = true;
  std::string kinds;
  for (std::size_t kind = 0; kind < kHelperKinds; ++kind) {
    if (isOfKind[kind]) kinds.append(kinds.empty() ? " (" : ", ").append(kKinds[kind].in(language));
  }
  return kinds.empty() ? std::string() : kinds + ")";
}

std::string titleOf(const PosedNull& null, const std::vector<PosedBone>& bones, Language language) {
  constexpr std::size_t kMostShown = 12;
  std::string title = null.name;
  for (std::size_t i = 0; i < std::min(null.lines.size(), kMostShown); ++i) {
    const HelperLine& line = null.lines[i];
    const std::string& bone = bones[line.bone].name;
    const std::string kind = nameOf(line.kind, language);
    title.append(i == 0 ? ": " : ", ");
    if (language == Language::Japanese) {
      title.append(bone).append(" の").append(kind);
    } else {
      title.append(kind).append(" of ").append(bone);
    }
  }
  return title + (null.lines.size() > kMostShown ? ", …" : "");
}

std::string titleOf(const PosedBone& bone, Language language) {
  const char* const none = language == Language::Japanese ? "(名前なし)" : "(no name)";
  std::string name = bone.name.empty() ? none : bone.name;
  if (!bone.isMarked) return name;
  return name + ": " + (bone.remark.empty() ? remarkText(Remark::HasProblem, language) : bone.remark);
}

std::string lengthText(double metres) {
  const auto unit =
      std::find_if(std::rbegin(kUnits), std::rend(kUnits), [&](const Unit& u) { return metres >= u.metres * (1 - 1e-9); });
  const bool isUsual = unit != std::rend(kUnits) && metres < 1e6 * (1 + 1e-9);
  return isUsual ? exactNumber(metres / unit->metres) + " " + unit->name : exactNumber(metres) + " m";
}

}  // namespace standin::views
