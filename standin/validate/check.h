// A check of a module as data, and the table of all of them. The ladder's steps:
//
//    1 file         4 panels       7 memory         10 endurance
//    2 activation   5 trips        8 walks          11 hosts
//    3 services     6 refusals     9 hostile data
//
// The runner (runner.h) runs each check in a process of its own; the functions here run in that process.
#pragma once

#include <span>
#include <string_view>

namespace standin::validate {

class CheckRun;

inline constexpr int kFirstLevel = 1;
inline constexpr int kLastLevel = 11;

struct Check {
  const char* name;
  int level;
  const char* sentence;  // what holds when it passes
  void (*run)(CheckRun&);
};

// By level, each level's in a fixed order.
std::span<const Check> allChecks();
// Null when there is none of that name.
const Check* checkNamed(std::string_view name);

struct Level {
  const char* name;   // "panels", for its heading
  const char* putIn;  // what its checks put in, to see what becomes of it
};
// `level` is one of the ladder.
const Level& levelOf(int level);

// The checks of each level, beside the code that makes them.
std::span<const Check> fileChecks();        // 1
std::span<const Check> activationChecks();  // 2 and 3
std::span<const Check> panelChecks();       // 4
std::span<const Check> tripChecks();        // 5, 6 and 7
std::span<const Check> walkChecks();        // 8
std::span<const Check> hostileChecks();     // 9
std::span<const Check> enduranceChecks();   // 10
std::span<const Check> hostChecks();        // 11

}  // namespace standin::validate
