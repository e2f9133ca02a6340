// The numbers of the steps that are done by hand: what the panels ask for, and what is looked for afterwards.
#pragma once

namespace probe {

inline constexpr int kPressesOfTheMouseStep = 3;

inline constexpr int kFirstEntry = 1;  // of the list

inline constexpr int kFirstWhole = 50;
inline constexpr int kTypedWhole = 150;
inline constexpr int kGreatestWhole = 100;
inline constexpr double kFirstPercent = 50;
inline constexpr double kTypedPercent = 150;
inline constexpr int kGreatestPercent = 100;
inline constexpr double kFirstAngle = 5;  // degrees
inline constexpr double kTypedAngle = 30;
inline constexpr int kGreatestAngle = 10;

}  // namespace probe
