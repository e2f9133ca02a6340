#include "rigs/japanese_texts.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "rigs/code_page.h"
#include "rigs/text.h"

namespace standin::rigs {
namespace {

// The names of the layers and the texts of their skelegons, one after the other.
template <class Object, class Action>
void forEachText(Object& object, Action&& action) {
  for (auto& layer : object.layers) {
    action(layer.name);
    for (auto& group : layer.groups) {
      if (group.type != lw::kTypeBone) continue;
      for (auto& polygon : group.polygons) {
        for (auto& tag : polygon.tags) action(tag.text);
      }
    }
  }
}

}  // namespace

bool isInJapaneseCodePage(const ObjectFile& object) {
  std::vector<std::string_view> others;
  forEachText(object, [&](const std::string& text) {
    if (!isUtf8(text)) others.push_back(text);
  });
  if (others.empty()) return false;
  const CodePage japanese(kJapaneseCodePage);
  return std::all_of(others.begin(), others.end(),
                     [&](std::string_view text) { return japanese.decoded(text).has_value(); });
}

std::string inUtf8(const std::string& text) {
  if (isUtf8(text)) return text;
  return CodePage(kJapaneseCodePage).decoded(text).value_or(text);
}

void putInUtf8(ObjectFile& object) {
  forEachText(object, [](std::string& text) { text = inUtf8(text); });
}

}  // namespace standin::rigs
