// What Layout makes of AddNull: of three in a row, and of two of the same name.
#pragma once

#include <array>
#include <string>

#include "probe/layout_scene.h"

namespace probe::layout {

// One AddNull, with what was there before and after it.
struct AddedNull {
  Items objectsBefore;
  Items objectsAfter;
  Items selectedBefore;
  Items selectedAfter;
  lw::ItemId null = nullptr;
  Items strangers;      // other items that came with it
  std::string renamed;  // what became of the name of an item that was there; empty when all kept theirs
};

// Throws Trouble when no null comes.
AddedNull addNull(const LayoutScene& scene, const std::string& name);

// Three nulls; before the second and third the first is selected.
class TrialNulls {
 public:
  explicit TrialNulls(const LayoutScene& scene);

  const AddedNull& first() const { return added_[0]; }
  const AddedNull& second() const { return added_[1]; }
  const AddedNull& third() const { return added_[2]; }
  lw::ItemId parentOfSecond() const { return parentOfSecond_; }
  // What another plug-in did meanwhile, by the name of the answer: "none" where nobody did anything.
  const std::string& others() const { return others_; }
  const std::string& seenOfOthers() const { return seenOfOthers_; }
  // Throws Trouble where another plug-in changed the scene, so that what happens there is not the host's doing.
  void mustBeAlone() const;

 private:
  void judgeOthers(const LayoutScene& scene);
  void judgeStrangers(const LayoutScene& scene);
  bool cameLast(const AddedNull& added) const;

  std::array<AddedNull, 3> added_;
  lw::ItemId parentOfSecond_ = nullptr;
  std::string others_;
  std::string seenOfOthers_;
};

}  // namespace probe::layout
