// A random user: acts on whatever panels are open, and on the object or the scene below them, as a seed says.
#pragma once

#include <cstdint>
#include <optional>
#include <random>
#include <string>

#include "standin/validate/session.h"

namespace standin::validate {

class CheckRun;

// A whole walk in a session of its own.
struct WalkOrder {
  Program program = Program::Modeler;
  const TripRig* rig = nullptr;
  std::uint64_t seed = 1;
  int actions = 1000;
  HostChoice host = {};
  std::optional<std::uint32_t> language = {};  // one by the seed when it is not given
};
// Fails the run with the first thing that was wrong, and ends there.
void walkOnce(CheckRun& run, const WalkOrder& order);

class Walk {
 public:
  // `session` must have the rig loaded; the walk opens tools on its way.
  Walk(Session& session, const TripRig& rig, std::uint64_t seed);

  // One action; what it was.
  std::string act();

 private:
  std::uint32_t below(std::uint32_t count) { return static_cast<std::uint32_t>(random_() % count); }

  std::string openTool();
  std::string useControl();
  std::string usePanel();
  std::string changeMesh();
  std::string changeObjects();
  std::string changeScene();

  Session& session_;
  const TripRig& rig_;
  std::mt19937_64 random_;
};

}  // namespace standin::validate
