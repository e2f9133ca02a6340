// Texts, arrays and records that the host lends to the module until the next call into it: they are overwritten then, so
// that a module that kept one reads nonsense instead of being lucky.
#pragma once

#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "interface/lightwave.h"

namespace standin {

// Overwrites a record: every byte holds the same, so that no flag, layer, count or pointer in it can be right.
template <class Record>
void scribble(Record& record) {
  constexpr int kScribble = 0xDB;
  std::memset(static_cast<void*>(&record), kScribble, sizeof record);
}

class LentText {
 public:
  const char* lend(std::string_view text);
  // Overwrites what is lent. The memory stays, so a late read finds a wrong text, not freed memory.
  void expire();

 private:
  std::vector<std::string> retired_;  // outgrown storage that may still be pointed at
  std::string storage_;
  bool isLent_ = false;
};

// Points of a polygon. Expired ones are null.
class LentPoints {
 public:
  const lw::PointId* lend(const std::vector<lw::PointId>& points);
  void expire();

 private:
  std::vector<std::vector<lw::PointId>> retired_;
  std::vector<lw::PointId> storage_;
};

}  // namespace standin
