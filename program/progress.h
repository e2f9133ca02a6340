// One line on the error stream that tells how far long work is: written over again and again, and gone at the end. Only for
// people: where the error stream is no terminal, nothing is written.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>

namespace standin {

class Progress {
 public:
  Progress();
  Progress(std::ostream& stream, bool isTerminal) : stream_(stream), isTerminal_(isTerminal) {}
  ~Progress() { clear(); }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void tell(const std::string& what);
  void tell(const std::string& what, double fraction);
  // Before anything else is written to the terminal.
  void clear();

 private:
  std::ostream& stream_;
  bool isTerminal_;
  std::string shown_;
};

}  // namespace standin
