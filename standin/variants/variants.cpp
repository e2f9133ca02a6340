#include "standin/variants/variants.h"

#include <algorithm>
#include <random>

namespace standin {
namespace {

std::string tableOf(const char* heading, std::span<const HostVariant> rows) {
  std::string text = std::string("## ") + heading +
                     "\n\n| variant | what may differ | values, the default first | why | what the module does |\n"
                     "| --- | --- | --- | --- | --- |\n";
  for (const HostVariant& row : rows) {
    text.append("| `").append(row.name).append("` | ").append(row.question).append(" | ");
    for (const VariantValue& value : row.values) {
      text.append(&value == row.values.data() ? "`" : ", `").append(value.name).append("`");
    }
    text.append(" | ").append(row.why).append(" | ").append(row.module).append(" |\n");
  }
  return text;
}

}  // namespace

std::span<const HostVariant* const> allVariants() {
  static const std::vector<const HostVariant*> all = [] {
    std::vector<const HostVariant*> joined;
    for (const std::span<const HostVariant> area : {panelVariants(), mouseVariants(), modelerVariants(), layoutVariants()}) {
      for (const HostVariant& row : area) joined.push_back(&row);
    }
    return joined;
  }();
  return all;
}

HostChoice HostChoice::mixture(std::uint64_t seed) {
  std::mt19937_64 random(seed);
  HostChoice choice;
  for (std::size_t i = 0; i < choice.picks_.size(); ++i) choice.picks_[i] = random() % allVariants()[i]->values.size();
  return choice;
}

bool HostChoice::choose(std::string_view variant, std::string_view value) {
  const auto all = allVariants();
  const auto row = std::find_if(all.begin(), all.end(), [&](const HostVariant* one) { return one->name == variant; });
  if (row == all.end()) return false;
  const auto values = (*row)->values;
  const auto picked = std::find_if(values.begin(), values.end(), [&](const VariantValue& one) { return one.name == value; });
  if (picked == values.end()) return false;
  picks_[static_cast<std::size_t>(row - all.begin())] = static_cast<std::size_t>(picked - values.begin());
  return true;
}

HostOptions HostChoice::options() const {
  HostOptions options;
  for (std::size_t i = 0; i < picks_.size(); ++i) allVariants()[i]->values[picks_[i]].set(options);
  return options;
}

std::string HostChoice::text() const {
  std::string text;
  for (std::size_t i = 0; i < picks_.size(); ++i) {
    const HostVariant& row = *allVariants()[i];
    if (picks_[i] == 0) continue;
    text.append(text.empty() ? "" : " ").append(row.name).append("=").append(row.values[picks_[i]].name);
  }
  return text.empty() ? "the default host" : text;
}

std::vector<HostChoice> singleChoices() {
  std::vector<HostChoice> choices;
  for (const HostVariant* row : allVariants()) {
    for (const VariantValue& value : row->values.subspan(1)) {
      if (!choices.emplace_back().choose(row->name, value.name)) choices.pop_back();
    }
  }
  return choices;
}

std::string variantsPage() {
  return tableOf("Panels", panelVariants()) + "\n" + tableOf("Mouse and drawing", mouseVariants()) + "\n" +
         tableOf("Modeler", modelerVariants()) + "\n" + tableOf("Layout", layoutVariants());
}

}  // namespace standin
