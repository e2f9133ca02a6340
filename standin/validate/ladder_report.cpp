#include "standin/validate/ladder_report.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>

#include "views/html.h"

namespace standin::validate {
namespace {

constexpr std::array kVerdicts{Verdict::Pass, Verdict::Fail, Verdict::Crash, Verdict::Hang, Verdict::Skip};

struct Sums {
  std::array<std::size_t, kVerdicts.size()> verdicts{};
  std::uint64_t cases = 0;
  std::uint64_t injected = 0;
  double seconds = 0;

  void add(const CheckResult& result) {
    ++verdicts[static_cast<std::size_t>(result.verdict)];
    cases += result.cases;
    injected += result.injected;
    seconds += result.seconds;
  }
};

std::map<int, Sums> sumsByLevel(std::span<const CheckResult> results) {
  std::map<int, Sums> levels;
  for (const CheckResult& result : results) levels[result.check->level].add(result);
  return levels;
}

Sums sumsOf(std::span<const CheckResult> results) {
  Sums sums;
  for (const CheckResult& result : results) sums.add(result);
  return sums;
}

std::string seconds(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.1f", value);
  return text;
}

std::string right(const std::string& text, std::size_t width) {
  return std::string(text.size() < width ? width - text.size() : 0, ' ') + text;
}
std::string left(const std::string& text, std::size_t width) {
  return text + std::string(text.size() < width ? width - text.size() : 0, ' ');
}

std::string findingText(const CheckFinding& finding) {
  std::string text = nameOf(finding.verdict);
  if (finding.step) text += " at step " + std::to_string(*finding.step);
  if (!finding.where.empty()) text += " (" + finding.where + ")";
  return text + ": " + finding.what;
}

std::string headText(const ReportHead& head) {
  std::string text = "module  " + head.module + "\nhost    " + head.build + "\nseed    " + std::to_string(head.seed) + "\n";
  if (!head.host.empty()) text += "on      " + head.host + "\n";
  if (head.share < 1) {
    char share[32];
    std::snprintf(share, sizeof share, "%g", head.share);
    text += std::string("share   ") + share + " of the long checks\n";
  }
  return head.date.empty() ? text : text + "date    " + head.date + "\n";
}

std::string rowText(const std::string& name, const Sums& sums) {
  std::string row = left(name, 16);
  for (const std::size_t count : sums.verdicts) row += right(std::to_string(count), 6);
  return row + right(std::to_string(sums.cases), 10) + right(std::to_string(sums.injected), 10) +
         right(seconds(sums.seconds), 9) + "\n";
}

// --- the page -------------------------------------------------------------------------------------------------------------

using views::escaped;

std::string cell(const std::string& text, const char* kind = "td", const char* style = nullptr) {
  return std::string("<") + kind + (style == nullptr ? "" : std::string(" class=\"") + style + "\"") + ">" + text + "</" +
         kind + ">";
}

std::string levelRow(const std::string& name, const Sums& sums) {
  std::string row = "<tr>" + cell(escaped(name));
  for (std::size_t i = 0; i < kVerdicts.size(); ++i) {
    const std::string style = std::string("n ") + (sums.verdicts[i] == 0 ? "none" : nameOf(kVerdicts[i]));
    row += cell(std::to_string(sums.verdicts[i]), "td", style.c_str());
  }
  return row + cell(std::to_string(sums.cases), "td", "n") + cell(std::to_string(sums.injected), "td", "n") +
         cell(seconds(sums.seconds), "td", "n") + "</tr>\n";
}

std::string checkRow(const CheckResult& result) {
  std::string details = escaped(result.check->sentence);
  if (!result.reason.empty()) details += "<p>Skipped: " + escaped(result.reason) + "</p>";
  for (const std::string& note : result.notes) details += "<p>" + escaped(note) + "</p>";
  if (!result.findings.empty()) {
    details += "<ul>";
    for (const CheckFinding& finding : result.findings) details += "<li>" + escaped(findingText(finding)) + "</li>";
    if (result.furtherFindings > 0) details += "<li>and " + std::to_string(result.furtherFindings) + " more</li>";
    details += "</ul>";
  }
  return "<tr>" + cell(std::to_string(result.check->level), "td", "n") + cell(escaped(result.check->name)) +
         cell(nameOf(result.verdict), "td", nameOf(result.verdict)) + cell(details) +
         cell(std::to_string(result.cases), "td", "n") + cell(std::to_string(result.injected), "td", "n") +
         cell(seconds(result.seconds), "td", "n") + "</tr>\n";
}

constexpr const char* kStyle = R"(
body{font:15px/1.45 system-ui,sans-serif;margin:2rem auto;max-width:75rem;padding:0 1rem;color:#222;background:#fff}
h1{font-size:1.5rem}h2{font-size:1.15rem;margin-top:2rem}pre{background:#f4f4f2;padding:.8rem;overflow:auto}
table{border-collapse:collapse;width:100%}th,td{border-bottom:1px solid #ddd;padding:.3rem .6rem;text-align:left;vertical-align:top}
th{border-bottom:2px solid #999}.n{text-align:right;font-variant-numeric:tabular-nums;white-space:nowrap}.none{color:#bbb}
.pass{color:#176d2c}.fail,.crash,.hang{color:#b00020;font-weight:600}.skip{color:#8a6100}
p{margin:.2rem 0;color:#555}ul{margin:.3rem 0;padding-left:1.2rem;overflow-wrap:anywhere}
)";

}  // namespace

bool isSound(std::span<const CheckResult> results) {
  return std::all_of(results.begin(), results.end(), [](const CheckResult& result) {
    return result.verdict == Verdict::Pass || result.verdict == Verdict::Skip;
  });
}

std::string resultText(const CheckResult& result) {
  std::string text = right(std::to_string(result.check->level), 2) + "  " + left(nameOf(result.verdict), 5) + "  " +
                     left(result.check->name, 18) + right(std::to_string(result.cases), 9) + " cases" +
                     right(std::to_string(result.injected), 9) + " " + left(levelOf(result.check->level).putIn, 18) +
                     right(seconds(result.seconds), 8) + " s\n";
  if (!result.reason.empty()) text += "      skipped: " + result.reason + "\n";
  for (const std::string& note : result.notes) text += "      " + note + "\n";
  for (const CheckFinding& finding : result.findings) text += "      " + findingText(finding) + "\n";
  if (result.furtherFindings > 0) text += "      and " + std::to_string(result.furtherFindings) + " more\n";
  return text;
}

std::string reportText(const ReportHead& head, std::span<const CheckResult> results) {
  std::string text = headText(head) + "\n";
  for (const CheckResult& result : results) text += resultText(result);
  text += "\nlevel             pass  fail crash  hang  skip     cases    put in        s\n";
  for (const auto& [level, sums] : sumsByLevel(results)) {
    text += rowText(right(std::to_string(level), 2) + " " + levelOf(level).name, sums);
  }
  return text + rowText("all", sumsOf(results)) +
         "put in: on purpose, by the checks: calls and memory refused, data spoilt\n";
}

std::string reportPage(const ReportHead& head, std::span<const CheckResult> results) {
  std::string page = "<!DOCTYPE html>\n<html lang=\"en\">\n<meta charset=\"utf-8\">\n";
  page += "<meta name=\"viewport\" content=\"width=device-width\">\n<title>Module validation</title>\n<style>";
  page += kStyle;
  page += "</style>\n<h1>Module validation: ";
  page += isSound(results) ? "<span class=\"pass\">sound</span>" : "<span class=\"fail\">not sound</span>";
  page += "</h1>\n<pre>" + escaped(headText(head)) + "</pre>\n<h2>Levels</h2>\n<table>\n<tr><th>Level</th>";
  for (const Verdict verdict : kVerdicts) page += cell(nameOf(verdict), "th", "n");
  page += "<th class=\"n\">cases</th><th class=\"n\">put in on purpose</th><th class=\"n\">s</th></tr>\n";
  for (const auto& [level, sums] : sumsByLevel(results))
    page += levelRow(std::to_string(level) + " " + levelOf(level).name, sums);
  page += levelRow("all", sumsOf(results));
  page += "</table>\n<h2>Checks</h2>\n<table>\n<tr><th class=\"n\"></th><th>Check</th><th>Verdict</th><th>What holds</th>";
  page += "<th class=\"n\">cases</th><th class=\"n\">put in</th><th class=\"n\">s</th></tr>\n";
  for (const CheckResult& result : results) page += checkRow(result);
  return page + "</table>\n</html>\n";
}

std::string thisBuild() {
#if defined(_WIN32)
  std::string text = "stand-in for Windows";
#else
  std::string text = "stand-in for this machine";
#endif
#if defined(VARNEL_SANITIZE)
  text += ", with sanitizers";
#elif defined(NDEBUG)
  text += ", optimised";
#endif
  return text;
}

}  // namespace standin::validate
