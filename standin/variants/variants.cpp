#include "standin/variants/variants.h"

#include <algorithm>
#include <array>
#include <random>

namespace standin {
namespace {

constexpr std::array kAreas{
    VariantArea{"both", "Both programs", programVariants},    VariantArea{"panels", "Panels", panelVariants},
    VariantArea{"mouse", "Mouse and drawing", mouseVariants}, VariantArea{"modeler", "Modeler", modelerVariants},
    VariantArea{"layout", "Layout", layoutVariants},
};

template <class Things>
std::string joined(const Things& things, std::string_view between, std::string_view around = {}) {
  std::string text;
  for (const auto& thing : things) {
    text.append(text.empty() ? std::string_view() : between).append(around).append(thing.name).append(around);
  }
  return text;
}

std::string pageOf(const VariantArea& area) {
  std::string text = std::string("### ") + area.heading +
                     "\n\n| variant | what may differ | values, the default first | why | what the module does |\n"
                     "| --- | --- | --- | --- | --- |\n";
  for (const HostVariant& row : area.rows()) {
    text.append("| `").append(row.name).append("` | ").append(row.question).append(" | ");
    text.append(joined(row.values, ", ", "`"));
    text.append(" | ").append(row.why).append(" | ").append(row.module).append(" |\n");
  }
  return text;
}

}  // namespace

std::span<const VariantArea> variantAreas() { return kAreas; }

std::span<const HostVariant* const> allVariants() {
  static const std::vector<const HostVariant*> all = [] {
    std::vector<const HostVariant*> rows;
    for (const VariantArea& area : kAreas) {
      for (const HostVariant& row : area.rows()) rows.push_back(&row);
    }
    return rows;
  }();
  return all;
}

// --- a choice -------------------------------------------------------------------------------------------------------------

namespace {

// Whether the host does so: to set the value changes nothing; and the default, which sets nothing, is where no other value is.
bool holds(const HostVariant& row, std::size_t pick, const HostOptions& host) {
  const auto isThere = [&](const VariantValue& value) {
    HostOptions same = host;
    value.set(same);
    return same == host;
  };
  const auto others = row.values.subspan(1);
  return pick == 0 ? std::none_of(others.begin(), others.end(), isThere) : isThere(row.values[pick]);
}

}  // namespace

// Some values of one row set what other rows set, too. False where what is settled would no longer hold.
bool HostChoice::bears(std::size_t row, std::size_t pick) const {
  HostChoice more = *this;
  more.picks_[row] = pick;
  const HostOptions before = options();
  const HostOptions after = more.options();
  const auto all = allVariants();
  for (std::size_t i = 0; i < picks_.size(); ++i) {
    if (picks_[i] && holds(*all[i], *picks_[i], before) && !holds(*all[i], *picks_[i], after)) return false;
  }
  return true;
}

HostChoice HostChoice::mixture(std::uint64_t seed, const HostChoice& settled) {
  std::mt19937_64 random(seed);
  HostChoice choice;
  for (std::size_t i = 0; i < choice.picks_.size(); ++i) {
    const std::size_t pick = random() % allVariants()[i]->values.size();
    choice.picks_[i] = settled.picks_[i].value_or(settled.bears(i, pick) ? pick : 0);
  }
  return choice;
}

namespace {

// The index of the first thing of that name; the number of things when there is none.
template <class Things>
std::size_t placeOf(const Things& things, std::string_view name) {
  const auto found = std::find_if(things.begin(), things.end(), [&](const auto& one) { return one.name == name; });
  return static_cast<std::size_t>(found - things.begin());
}

std::size_t rowNamed(std::string_view name) {
  const auto all = allVariants();
  const auto found = std::find_if(all.begin(), all.end(), [&](const HostVariant* row) { return row->name == name; });
  return static_cast<std::size_t>(found - all.begin());
}

std::string allNames() {
  std::string names;
  for (const HostVariant* row : allVariants()) names.append(names.empty() ? "" : ", ").append(row->name);
  return names;
}

}  // namespace

bool HostChoice::choose(std::string_view variant, std::string_view value) {
  const std::size_t row = rowNamed(variant);
  if (row == allVariants().size()) return false;
  const auto values = allVariants()[row]->values;
  const std::size_t pick = placeOf(values, value);
  if (pick == values.size()) return false;
  picks_[row] = pick;
  return true;
}

std::string HostChoice::take(std::string_view word) {
  const std::size_t sign = word.find('=');
  const std::string text(word);
  if (sign == std::string_view::npos) return "\"" + text + "\" is no NAME=VALUE; the names are " + allNames();
  const std::string_view name = word.substr(0, sign);
  const std::size_t row = rowNamed(name);
  if (row == allVariants().size()) return "hosts do not differ in \"" + std::string(name) + "\"; they do in " + allNames();
  if (choose(name, word.substr(sign + 1))) return {};
  return "\"" + text + "\" is no host; the values of " + std::string(name) + " are " +
         joined(allVariants()[row]->values, ", ");
}

HostOptions HostChoice::options() const {
  HostOptions options;
  for (std::size_t i = 0; i < picks_.size(); ++i) allVariants()[i]->values[picks_[i].value_or(0)].set(options);
  return options;
}

const char* HostChoice::settled(std::string_view variant) const {
  const std::size_t row = rowNamed(variant);
  return row < picks_.size() && picks_[row] ? allVariants()[row]->values[*picks_[row]].name : nullptr;
}

namespace {

std::string wordOf(std::size_t row, std::size_t pick) {
  return std::string(allVariants()[row]->name) + "=" + allVariants()[row]->values[pick].name;
}

}  // namespace

std::vector<std::string> HostChoice::words() const {
  std::vector<std::string> words;
  for (std::size_t i = 0; i < picks_.size(); ++i) {
    if (picks_[i]) words.push_back(wordOf(i, *picks_[i]));
  }
  return words;
}

std::string HostChoice::text() const {
  std::string text;
  for (std::size_t i = 0; i < picks_.size(); ++i) {
    if (picks_[i].value_or(0) != 0) text.append(text.empty() ? "" : " ").append(wordOf(i, *picks_[i]));
  }
  return text.empty() ? "the default host" : text;
}

std::vector<HostChoice> singleChoices(std::span<const HostVariant> rows, const HostChoice& base) {
  std::vector<HostChoice> choices;
  for (const HostVariant& row : rows) {
    const std::size_t place = rowNamed(row.name);
    if (base.picks_[place]) continue;
    for (std::size_t pick = 1; pick < row.values.size(); ++pick) {
      if (!base.bears(place, pick)) continue;
      choices.push_back(base);
      choices.back().picks_[place] = pick;
    }
  }
  return choices;
}

// --- the table ------------------------------------------------------------------------------------------------------------

std::string variantsText() {
  std::string text;
  for (const VariantArea& area : kAreas) {
    text.append(text.empty() ? "" : "\n").append(area.heading).append("\n");
    for (const HostVariant& row : area.rows()) {
      text.append("  ").append(row.name).append("  ").append(joined(row.values, ", ")).append("\n      ");
      text.append(row.question).append("\n");
    }
  }
  return text;
}

std::string variantsPage() {
  std::string text;
  for (const VariantArea& area : kAreas) text.append(text.empty() ? "" : "\n").append(pageOf(area));
  return text;
}

}  // namespace standin
