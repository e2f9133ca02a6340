// Whether a panel of ours is on the screen.
#pragma once

namespace lw {

// The hooks tell it. What `open` answers for a panel that does not block is not documented: anything but 0 is taken for
// success, but 0 alone for nothing, for the open hook may have come already, or come yet.
class CPanelLife {
 public:
  bool isOpen() const { return state_ == State::Open; }
  // Open, or asked to be: its events and the news are for it, and it is closed before it is destroyed.
  bool mayBeOpen() const { return state_ != State::Closed; }

  // Makes the call that opens the panel and gives what the host answers.
  template <class Call>
  int open(Call&& call) {
    if (state_ == State::Closed) state_ = State::Asked;
    isOpening_ = true;
    const int answer = call();
    isOpening_ = false;
    if (state_ == State::Asked && answer != 0) state_ = State::Open;
    return answer;
  }

  // For the open hook. True when it comes after `open` has returned: what was done to the panel then is to be done again.
  bool opened() {
    state_ = State::Open;
    return !isOpening_;
  }
  // For the close hook, and after `close`, which need not call it.
  void closed() { state_ = State::Closed; }

 private:
  enum class State { Closed, Asked, Open };

  State state_ = State::Closed;
  bool isOpening_ = false;
};

}  // namespace lw
