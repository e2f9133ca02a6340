#include <algorithm>
#include <ctime>
#include <iostream>
#include <memory>
#include <thread>

#include "objectfile/temporary_folder.h"
#include "objectfile/whole_file.h"
#include "program/host_option.h"
#include "program/rig_tool_support.h"
#include "program/subcommands.h"
#include "standin/core/program_folder.h"
#include "standin/validate/check_run.h"
#include "standin/validate/ladder_report.h"

namespace standin {
namespace {

namespace v = validate;

constexpr double kQuickShare = 0.02;

struct ValidateOptions {
  std::string module;
  HostWords host;
  std::string levels = "1-6";
  std::vector<std::string> only;
  std::string report;
  std::uint64_t seed = 1;
  double share = 1;
  int limit = 60;
  unsigned jobs = std::max(1U, std::thread::hardware_concurrency());
  bool quick = false;
  bool list = false;
  bool force = false;
};

// "4" is the ladder up to there, "3-5" are these. Throws Trouble.
void takeLevels(const std::string& text, v::RunOrder& order) {
  const std::size_t dash = text.find('-');
  const auto number = [&](const std::string& part) {
    const bool isNumber = !part.empty() && part.size() < 4 && part.find_first_not_of("0123456789") == std::string::npos;
    const int value = isNumber ? std::stoi(part) : 0;
    if (value < v::kFirstLevel || value > v::kLastLevel)
      throw Trouble{"\"" + text + "\" is no level from 1 to 11, nor a range"};
    return value;
  };
  order.firstLevel = dash == std::string::npos ? v::kFirstLevel : number(text.substr(0, dash));
  order.lastLevel = number(dash == std::string::npos ? text : text.substr(dash + 1));
}

void takeNames(const std::vector<std::string>& names, v::RunOrder& order) {
  for (const std::string& name : names) {
    if (v::checkNamed(name) == nullptr) throw Trouble{"there is no check \"" + name + "\"; --list names them all"};
  }
  order.only = names;
}

std::string today() {
  const std::time_t now = std::time(nullptr);
  char text[32];
  std::strftime(text, sizeof text, "%Y-%m-%d %H:%M", std::gmtime(&now));
  return std::string(text) + " UTC";
}

std::string reportFile(const ValidateOptions& options, const char* extension) {
  return utf8Of(pathFromUtf8(options.report) / (std::string("report.") + extension));
}

// Before the checks, which can take an hour.
void prepareReports(const ValidateOptions& options) {
  if (options.report.empty()) return;
  mustBeFolder(options.report);
  mustBeWritten(refusedFolder(options.report));
  mustBeWritten(refusedFiles({reportFile(options, "txt"), reportFile(options, "html")}, existingFiles(options.force)));
}

void writeReports(const ValidateOptions& options, const v::ReportHead& head, const std::vector<v::CheckResult>& results) {
  if (options.report.empty()) return;
  const Existing existing = existingFiles(options.force);
  mustBeWritten(writeWholeFile(reportFile(options, "txt"), v::reportText(head, results), existing));
  mustBeWritten(writeWholeFile(reportFile(options, "html"), v::reportPage(head, results), existing));
}

int list(const v::RunOrder& order) {
  for (const v::Check* check : v::chosenChecks(order)) {
    std::cout << (check->level < 10 ? " " : "") << check->level << "  " << check->name << "\n      " << check->sentence
              << "\n";
  }
  return 0;
}

int validateModule(const ValidateOptions& options) {
  v::RunOrder order;
  takeLevels(options.levels, order);
  takeNames(options.only, order);
  if (v::chosenChecks(order).empty()) throw Trouble{"no check fits: the selection is empty"};
  if (options.list) return list(order);
  order.module = options.module.empty() ? modulePath() : utf8Of(std::filesystem::absolute(pathFromUtf8(options.module)));
  if (order.module.empty()) throw Trouble{"there is no module beside the program; name one"};
  if (!std::filesystem::exists(pathFromUtf8(order.module))) throw Trouble{"there is no file " + order.module};
  if (const Outcome<std::string> bytes = readFileBytes(order.module); !bytes) throw Trouble{bytes.why()};
  prepareReports(options);
  const TemporaryFolder folder;
  order.program = programFile();
  order.folder = folder.path();
  order.seed = options.seed;
  order.share = options.quick ? std::min(options.share, kQuickShare) : options.share;
  order.host = options.host.choice();
  order.jobs = std::max(1U, options.jobs);
  order.limit = std::chrono::seconds(options.limit);
  order.told = [](const v::CheckResult& result) { std::cout << v::resultText(result) << std::flush; };
  const std::vector<v::CheckResult> results = v::runChecks(order);
  const std::string host = order.host.words().empty() ? std::string() : order.host.text();
  const v::ReportHead head{order.module, v::thisBuild(), today(), order.seed, order.share, host};
  const std::string text = v::reportText(head, results);
  std::cout << text.substr(text.rfind("\n\n") + 1);
  writeReports(options, head, results);
  return v::isSound(results) ? 0 : kNotAllWell;
}

}  // namespace

Command validateCommand() {
  const auto options = std::make_shared<ValidateOptions>();
  return {
      .name = "validate",
      .text = "Check a module's file on a ladder of eleven levels",
      .options =
          {
              {"module", &options->module, "The module's file (the one beside this program by default)"},
              {"--level", &options->levels, "The ladder up to a level, or a range: 4, 7-9", {.showsDefault = true}},
              {"--only", &options->only, "Only these checks, by name", {.separator = ','}},
              hostOption(options->host),
              {"--seed", &options->seed, "Of everything random", {.showsDefault = true}},
              {"--report", &options->report, "Write report.txt and report.html into this folder"},
              forceOption(options->force),
              {"--share",
               &options->share,
               "Do only this share of the long checks of levels 7 to 11",
               {.range = {{0.0001, 1.0}}}},
              {"--quick", &options->quick, "Short forms of levels 7 to 11"},
              {"--limit",
               &options->limit,
               "Seconds without a sign of life after which a check hangs",
               {.showsDefault = true, .range = {{1, 3600}}}},
              {"--jobs", &options->jobs, "Processes at the same time", {.range = {{1, 64}}}},
              {"--list", &options->list, "Only name the checks"},
          },
      .footer =
          "Exit code 0: sound; 1: something was found; 2: nothing could be checked.\n\n"
          "Examples:\n  varnel validate --only descriptor,servers " +
          moduleFileName() +
          "\n  varnel validate --level 3 --report report\n"
          "  varnel validate --only walks --quick --seed 7\n"
          "  varnel validate --level 5-5 --host new-bones=selected --host sets=fire",
      .run = [options] { return exitCodeOf([&] { return validateModule(*options); }); },
  };
}

Command validateCheckCommand() {
  const auto order = std::make_shared<v::Order>();
  const auto host = std::make_shared<HostWords>();
  return {
      .name = "validate-check",
      .text = "Run a single check in this process",
      .options =
          {
              {"--check", &order->check, {}, {.isRequired = true}},
              {"--module", &order->module, {}, {.isRequired = true}},
              {"--folder", &order->folder, {}, {.isRequired = true}},
              {"--log", &order->log, {}, {.isRequired = true}},
              {"--seed", &order->seed},
              {"--share", &order->share},
              {"--from", &order->from},
              hostOption(*host),
          },
      .run =
          [order, host] {
            order->host = host->choice();
            return v::runCheckHere(*order);
          },
      .isHidden = true,
  };
}

}  // namespace standin
