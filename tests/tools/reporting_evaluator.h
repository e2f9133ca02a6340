// An evaluator that tells its callers what Layout refused, in the place of the module's own, which reports a refused command
// itself and always says that it went. The sequences of commands are written for either: programs that link this one show
// that they end where they should.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace varnel::test {

struct Report {
  std::string source;
  int line = 0;
  std::string message;
};

class ReportingEvaluator {
 public:
  // Begins anew: nothing is refused, nothing was sent.
  void reset();
  // These commands fail, and do not reach the host. They are asked for in turn, each once.
  void refuse(std::function<bool(const std::string& command)> which) { refuses_ = std::move(which); }
  // Lets the n-th command from now fail, counted from 1.
  void refuseCommand(std::size_t n);

  // Commands in order, refused ones too; without status texts.
  const std::vector<std::string>& sent() const { return sent_; }
  // The refused ones.
  const std::vector<std::string>& refused() const { return refused_; }
  const std::vector<Report>& reports() const { return reports_; }
  const std::vector<std::string>& statusTexts() const { return statusTexts_; }

  // For the functions that stand in the module's place.
  bool send(const std::string& command);
  void report(Report report) { reports_.push_back(std::move(report)); }
  void status(std::string text) { statusTexts_.push_back(std::move(text)); }

 private:
  std::function<bool(const std::string&)> refuses_;
  std::vector<std::string> sent_;
  std::vector<std::string> refused_;
  std::vector<Report> reports_;
  std::vector<std::string> statusTexts_;
};

ReportingEvaluator& evaluator();

}  // namespace varnel::test
