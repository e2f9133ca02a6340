// A flag that is up for as long as something goes on.
#pragma once

#include <utility>

namespace lw {

class CRaisedFlag {
 public:
  explicit CRaisedFlag(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
  ~CRaisedFlag() { flag_ = before_; }
  CRaisedFlag(const CRaisedFlag&) = delete;
  CRaisedFlag& operator=(const CRaisedFlag&) = delete;

 private:
  bool& flag_;
  bool before_;
};

}  // namespace lw
