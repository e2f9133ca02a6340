// Trips: what a user does with a tool from its opening to its end, as the fifth to seventh level do them.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "standin/validate/session.h"

namespace standin::validate {

struct TripOrder {
  std::string module;
  const TripRig* rig = nullptr;
  std::uint32_t language = kEnglish;
  HostChoice host = {};  // where it is played
  // Called when all is ready and the tool is about to be opened, and when the user is done. What fails in between is made
  // to.
  std::function<void()> begin;
  std::function<void()> end;
};

struct TripReport {
  // What the user could not do or found wrong. It counts only on a host that fails in nothing.
  std::vector<std::string> troubles;
  // Rules that were broken, which hold whatever the host does: faults, open edits, switches left off, panels that show
  // something else than what is stored.
  std::vector<std::string> broken;
};

// Where a trip leads. What differs in a program where it does not lead cannot change it.
enum class Visits { Modeler, Layout, Both };
constexpr bool meet(Visits one, Visits other) { return one == other || one == Visits::Both || other == Visits::Both; }

struct Trip {
  const char* name;
  Visits visits;
  TripReport (*go)(const TripOrder&);
};

// Each tool used from its opening to its end.
std::span<const Trip> allTrips();
// What meets the mesh meanwhile: deletions, closed objects, layers, refusals.
std::span<const Trip> meshTrips();

}  // namespace standin::validate
