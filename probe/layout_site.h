// Where the questions to Layout are asked: an empty scene, and what the probe makes in it once it is asked for.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <utility>

#include "probe/ask.h"
#include "probe/layout_nulls.h"
#include "probe/layout_rig.h"
#include "probe/layout_scene.h"

namespace probe::layout {

// Made when it is first asked for. Where that fails it is not tried again: each who asks is told why.
template <class Made>
class Once {
 public:
  template <class... Arguments>
  Made& get(Arguments&&... arguments) {
    if (!made_ && why_.empty()) {
      why_ = troubleOf([&] { made_.emplace(std::forward<Arguments>(arguments)...); });
    }
    if (!made_) throw Trouble{why_};
    return *made_;
  }

 private:
  std::optional<Made> made_;
  std::string why_;
};

class LayoutSite {
 public:
  explicit LayoutSite(const Host& host) : scene(host) {}

  const LayoutScene scene;

  LayoutRig& rig() { return rig_.get(scene); }
  TrialNulls& nulls() { return nulls_.get(scene); }

 private:
  Once<LayoutRig> rig_;
  Once<TrialNulls> nulls_;
};

using LayoutQuestions = std::span<const Question<LayoutSite>>;

LayoutQuestions selectionQuestions();
LayoutQuestions itemQuestions();
LayoutQuestions parentingQuestions();
LayoutQuestions skelegonQuestions();
LayoutQuestions channelQuestions();
LayoutQuestions serviceQuestions();

// What a switch of the whole program makes of 0 and 1.
Answer switchAnswer(const LayoutScene& scene, const std::string& command, lw::GeneralFlags bit);

// What is told for people alone.
void tellLayoutFigures(LayoutSite& site, Facts& facts);
void tellCommandFigures(LayoutSite& site, Facts& facts);

}  // namespace probe::layout
