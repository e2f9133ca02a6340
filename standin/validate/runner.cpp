#include "standin/validate/runner.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <thread>
#include <utility>

#include "objectfile/file_bytes.h"
#include "standin/validate/child_process.h"

namespace standin::validate {
namespace {

constexpr std::size_t kMostFindings = 20;  // kept for each check
constexpr int kPollMilliseconds = 100;
constexpr std::size_t kOutputTail = 2000;

// What a check's process told, read from its log.
struct Told {
  std::optional<std::uint64_t> step;  // the last that began
  std::string stepName;
  std::string at;
  std::uint64_t steps = 0;
  std::optional<std::uint64_t> cases;
  std::uint64_t injected = 0;
  std::string skip;
  std::vector<std::string> notes;
  std::vector<CheckFinding> failures;
  std::optional<std::uint64_t> pausedBefore;
  bool ended = false;

  std::string where() const { return stepName.empty() ? at : at.empty() ? stepName : stepName + "; " + at; }

  void take(const std::string& line) {
    const std::size_t blank = std::min(line.find(' '), line.size());
    const std::string word = line.substr(0, blank);
    const std::string text = blank < line.size() ? line.substr(blank + 1) : std::string();
    if (word == "step") {
      ++steps;
      step = std::stoull(text);
      const std::size_t name = text.find(' ');
      stepName = name == std::string::npos ? std::string() : text.substr(name + 1);
      at.clear();
    } else if (word == "at") {
      at = text;
    } else if (word == "fail") {
      failures.push_back({Verdict::Fail, step, where(), text});
    } else if (word == "skip") {
      skip = text;
    } else if (word == "note") {
      notes.push_back(text);
    } else if (word == "cases") {
      cases = std::stoull(text);
    } else if (word == "injected") {
      injected = std::stoull(text);
    } else if (word == "pause") {
      pausedBefore = std::stoull(text);
    } else if (word == "end") {
      ended = true;
    }
  }
};

Told readLog(const std::string& path) {
  Told told;
  std::ifstream log(pathFromUtf8(path), std::ios::binary);
  std::string line;
  while (std::getline(log, line)) told.take(line);
  return told;
}

// The end of what the process printed: a sanitizer's report, a runtime's last words.
std::string lastWords(const std::string& path) {
  const Outcome<std::string> bytes = readFileBytes(path);
  if (!bytes || bytes->empty()) return {};
  // The sanitizers say it in their first lines.
  const std::size_t error = bytes->find("ERROR: ");
  const std::size_t runtime = bytes->find("runtime error: ");
  const std::size_t from = std::min({error, runtime, bytes->size()});
  if (from < bytes->size()) {
    const std::size_t line = bytes->rfind('\n', from);
    return bytes->substr(line == std::string::npos ? 0 : line + 1, kOutputTail);
  }
  return bytes->size() > kOutputTail ? bytes->substr(bytes->size() - kOutputTail) : *bytes;
}

class CheckKeeper {
 public:
  CheckKeeper(const RunOrder& order, const Check& check, std::size_t number)
      : order_(order), base_(order.folder + "/check-" + std::to_string(number)) {
    result_.check = &check;
  }

  CheckResult run() {
    const auto begin = std::chrono::steady_clock::now();
    std::optional<std::uint64_t> from = 0;
    for (int starts = 0; from; ++starts) {
      if (deaths_ >= order_.mostDeaths) {
        result_.notes.push_back("given up after " + std::to_string(deaths_) + " crashes and hangs, before step " +
                                std::to_string(*from));
        break;
      }
      from = runFrom(*from, base_ + "-" + std::to_string(starts));
    }
    result_.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    if (result_.verdict == Verdict::Skip) {
      result_.cases = 0;
    } else if (result_.cases == 0) {
      result_.cases = 1;
    }
    return std::move(result_);
  }

 private:
  // The step to go on with in a new process; empty when there is no more to do.
  std::optional<std::uint64_t> runFrom(std::uint64_t from, const std::string& base) {
    const std::string folder = base + "-files";
    std::error_code ignored;
    std::filesystem::create_directories(pathFromUtf8(folder), ignored);
    const std::string log = base + ".log";
    const std::string output = base + ".out";
    std::ofstream(pathFromUtf8(log), std::ios::binary).flush();
    std::vector<std::string> words{"validate-check",
                                   "--check",
                                   result_.check->name,
                                   "--module",
                                   order_.module,
                                   "--folder",
                                   folder,
                                   "--log",
                                   log,
                                   "--seed",
                                   std::to_string(order_.seed),
                                   "--share",
                                   std::to_string(order_.share),
                                   "--from",
                                   std::to_string(from)};
    for (const std::string& word : order_.host.words()) words.insert(words.end(), {"--host", word});
    ChildProcess process(order_.program, words, output);
    if (!process.why().empty()) {
      add({Verdict::Crash, std::nullopt, {}, process.why()});
      return std::nullopt;
    }
    const std::optional<ProcessEnd> end = watch(process, log);
    const Told told = readLog(log);
    take(told);
    std::filesystem::remove_all(pathFromUtf8(folder), ignored);
    if (end && end->ofItself && end->code == 0 && told.ended) {
      if (result_.verdict == Verdict::Pass && !told.skip.empty()) {
        result_.verdict = Verdict::Skip;
        result_.reason = told.skip;
      }
      return told.pausedBefore;
    }
    if (end && end->ofItself && told.ended) {
      // Only at the very end something was wrong: memory that nobody gave back, in a build that looks for it.
      add({Verdict::Fail, std::nullopt, "after the check's end", end->how + ": " + lastWords(output)});
      return told.pausedBefore;
    }
    ++deaths_;
    if (end) {
      const std::string words = lastWords(output);
      add({Verdict::Crash, told.step, told.where(), end->how + (words.empty() ? "" : ": " + words)});
    } else {
      add({Verdict::Hang, told.step, told.where(),
           "no sign of life for " + std::to_string(order_.limit.count()) + " s, and was ended"});
    }
    return told.step ? std::optional(*told.step + 1) : std::nullopt;
  }

  // Its end; empty when it was ended because it showed no sign of life for too long.
  std::optional<ProcessEnd> watch(ChildProcess& process, const std::string& log) const {
    using Clock = std::chrono::steady_clock;
    std::uintmax_t size = 0;
    for (Clock::time_point seen = Clock::now(); Clock::now() - seen < order_.limit;) {
      if (auto end = process.wait(kPollMilliseconds)) return end;
      std::error_code error;
      const std::uintmax_t now = std::filesystem::file_size(pathFromUtf8(log), error);
      if (!error && now != size) {
        size = now;
        seen = Clock::now();
      }
    }
    process.end();
    return std::nullopt;
  }

  void take(const Told& told) {
    // A process that came to no end did not count up.
    result_.cases += told.cases.value_or(told.steps);
    result_.injected += told.injected;
    result_.notes.insert(result_.notes.end(), told.notes.begin(), told.notes.end());
    for (const CheckFinding& failure : told.failures) add(failure);
  }

  // The worst that was found is what became of the check: it crashed, else it hung, else it failed.
  void add(CheckFinding finding) {
    const auto weight = [](Verdict verdict) {
      return verdict == Verdict::Crash ? 3 : verdict == Verdict::Hang ? 2 : verdict == Verdict::Fail ? 1 : 0;
    };
    if (weight(finding.verdict) > weight(result_.verdict)) result_.verdict = finding.verdict;
    if (result_.findings.size() < kMostFindings || finding.verdict != Verdict::Fail) {
      result_.findings.push_back(std::move(finding));
    } else {
      ++result_.furtherFindings;
    }
  }

  const RunOrder& order_;
  std::string base_;
  int deaths_ = 0;
  CheckResult result_;
};

}  // namespace

const char* nameOf(Verdict verdict) {
  switch (verdict) {
    case Verdict::Pass: return "pass";
    case Verdict::Fail: return "fail";
    case Verdict::Crash: return "crash";
    case Verdict::Hang: return "hang";
    case Verdict::Skip: return "skip";
  }
  return "";
}

std::vector<const Check*> chosenChecks(const RunOrder& order) {
  std::vector<const Check*> chosen;
  for (const Check& check : allChecks()) {
    const bool named = std::find(order.only.begin(), order.only.end(), check.name) != order.only.end();
    const bool inLevels = check.level >= order.firstLevel && check.level <= order.lastLevel;
    if (order.only.empty() ? inLevels : named) chosen.push_back(&check);
  }
  return chosen;
}

std::vector<CheckResult> runChecks(const RunOrder& order) {
  const std::vector<const Check*> chosen = chosenChecks(order);
  std::vector<CheckResult> results(chosen.size());
  std::atomic<std::size_t> next = 0;
  std::mutex telling;
  std::exception_ptr trouble;
  const auto work = [&] {
    for (std::size_t i = next++; i < chosen.size(); i = next++) {
      results[i] = CheckKeeper(order, *chosen[i], i).run();
      const std::lock_guard lock(telling);
      if (order.told) order.told(results[i]);
    }
  };
  // What a thread lets out would end the whole program. The others do not begin anything then.
  const auto workOrStop = [&] {
    try {
      work();
    } catch (...) {
      const std::lock_guard lock(telling);
      if (!trouble) trouble = std::current_exception();
      next = chosen.size();
    }
  };
  {
    std::vector<std::jthread> workers;
    for (unsigned i = 1; i < order.jobs; ++i) workers.emplace_back(workOrStop);
    workOrStop();
  }
  if (trouble) std::rethrow_exception(trouble);
  return results;
}

}  // namespace standin::validate
