#include "standin/validate/check_run.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <iostream>

#include "objectfile/file_bytes.h"
#include "standin/validate/check.h"
#include "standin/validate/child_process.h"

namespace standin::validate {
namespace {

constexpr std::size_t kLongestText = 1000;
constexpr std::uint64_t kMostSteps = 400;  // in one process

// A line of the log is a line.
std::string oneLine(std::string_view text) {
  std::string line;
  while (!text.empty() && text.back() == '\n') text.remove_suffix(1);
  for (const char c : text.substr(0, kLongestText)) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '\n') {
      line += " | ";
    } else {
      line += byte < 0x20 || byte == 0x7F ? '?' : c;
    }
  }
  if (text.size() > kLongestText) line += "...";
  return line;
}

}  // namespace

CheckRun::CheckRun(const Order& order) : order_(order), log_(pathFromUtf8(order.log), std::ios::binary | std::ios::app) {}

std::size_t CheckRun::shareOf(std::size_t whole, std::size_t least) const {
  return std::max(least, static_cast<std::size_t>(std::lround(static_cast<double>(whole) * order_.share)));
}

std::uint64_t CheckRun::stride() const { return static_cast<std::uint64_t>(std::max(1L, std::lround(1 / order_.share))); }

bool CheckRun::step(std::uint64_t n, std::string_view what) {
  if (n < order_.from) return false;
  if (++steps_ > kMostSteps) throw Pause{n};
  ++cases_;
  tell("step", std::to_string(n) + ' ' + std::string(what));
  return true;
}

void CheckRun::at(std::string_view what) { tell("at", what); }
void CheckRun::fail(std::string_view why) { tell("fail", why); }
void CheckRun::skip(std::string_view why) { tell("skip", why); }
void CheckRun::note(std::string_view text) { tell("note", text); }

void CheckRun::end() {
  tell("cases", std::to_string(cases_));
  tell("injected", std::to_string(injected_));
  tell("end", "");
}

void CheckRun::pause(const Pause& pause) {
  tell("pause", std::to_string(pause.next));
  end();
}

void CheckRun::tell(std::string_view word, std::string_view text) {
  log_ << word << ' ' << oneLine(text) << '\n' << std::flush;
}

int runCheckHere(const Order& order) {
  const Check* const check = checkNamed(order.check);
  if (check == nullptr) {
    std::cerr << "there is no check \"" << order.check << "\"\n";
    return 2;
  }
  dieQuietly();
  CheckRun run(order);
  try {
    check->run(run);
  } catch (const Pause& pause) {
    run.pause(pause);
    return 0;
  } catch (const std::exception& error) {
    // Of the stand-in's own making: nothing that the module throws comes here.
    run.fail(std::string("the check itself failed: ") + error.what());
  }
  run.end();
  return 0;
}

}  // namespace standin::validate
