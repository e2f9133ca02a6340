// Whether a conversion did its whole job: every stored setting is on its bone, and every null was made at the bone it was
// made for.
#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include "standin/layout/arrived.h"
#include "standin/layout/layout_host.h"
#include "standin/validate/session.h"

namespace standin::validate {

class ConversionJudge {
 public:
  // Before the run; looks on from then until its own end.
  ConversionJudge(LayoutHost& host, const TripRig& rig);
  ~ConversionJudge();
  ConversionJudge(const ConversionJudge&) = delete;
  ConversionJudge& operator=(const ConversionJudge&) = delete;

  // After the run: what is wrong.
  std::vector<std::string> verdict() const;

 private:
  struct Skelegon {
    std::string name;
    std::size_t layer = 0;  // in the order of the file
    StoredBySlot stored;
  };

  void read(const ObjectLayer& layer, const std::string& objectName);
  void look(LayoutState& state, std::string_view command);
  bool isOverridden(std::size_t skelegon, int slot) const;
  bool isInAnotherLayer(const std::string& name, std::size_t layer) const;
  Arrival arrival(const Skelegon& skelegon, int slot) const;

  LayoutHost& host_;
  std::vector<Skelegon> skelegons_;  // in the order of the file
  std::size_t layers_ = 0;           // that were read
  std::set<const Item*> seen_;       // nulls that were there before, or that were judged
  std::size_t nulls_ = 0;            // that were judged
  std::vector<std::string> wrong_;
};

}  // namespace standin::validate
