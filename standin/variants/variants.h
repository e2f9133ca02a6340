// What the host's documents leave open, as one table: each open question with every plausible answer. Hosts that differ in
// these are all possible; the module has to do its whole job in each. The validator plays them one by one and in mixtures,
// and docs/stand-in.md is printed from the rows.
//
// To add a question: an option in options.h of the area, whose initial value is the default, and a row in the file of the
// area.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "standin/core/options.h"
#include "standin/layout/options.h"
#include "standin/modeler/options.h"
#include "standin/panels/options.h"

namespace standin {

// A whole host, as far as hosts may differ.
struct HostOptions {
  ProgramOptions program;
  PanelOptions panels;
  ModelerOptions modeler;
  LayoutOptions layout;

  bool operator==(const HostOptions&) const = default;
};

struct VariantValue {
  const char* name;                                 // one word
  void (*set)(HostOptions&) = [](HostOptions&) {};  // the default sets nothing: the options begin with it
};

struct HostVariant {
  const char* name;                      // one word, as on the command line: "open-answer"
  const char* question;                  // what differs: "What `open` answers for a panel that does not block"
  const char* why;                       // why it is open, and why the first value is the default
  const char* module;                    // what the module does, so that it works in each
  std::span<const VariantValue> values;  // the default first
};

std::span<const HostVariant> programVariants();
std::span<const HostVariant> panelVariants();
std::span<const HostVariant> mouseVariants();
std::span<const HostVariant> modelerVariants();
std::span<const HostVariant> layoutVariants();

struct VariantArea {
  const char* name;  // of the check "hosts-NAME", which plays its rows
  const char* heading;
  std::span<const HostVariant> (*rows)();
};
// In the order in which they are printed.
std::span<const VariantArea> variantAreas();
// The rows of all areas, in that order.
std::span<const HostVariant* const> allVariants();

// One value for each variant: one that was settled, else the default.
class HostChoice {
 public:
  // Nothing is settled.
  HostChoice() : picks_(allVariants().size()) {}
  // A value of each by chance, the same for the same seed; but what another choice has settled stays, and no other value
  // contradicts it.
  static HostChoice mixture(std::uint64_t seed, const HostChoice& settled = {});

  // False when there is no such variant or value.
  [[nodiscard]] bool choose(std::string_view variant, std::string_view value);
  // Takes "open-answer=0". Gives a sentence with what there is when that cannot be taken, else nothing.
  [[nodiscard]] std::string take(std::string_view word);

  HostOptions options() const;
  // The name of the value that is settled; null where none is, or there is no such variant.
  const char* settled(std::string_view variant) const;
  // What is settled, defaults too, as words that take() takes.
  std::vector<std::string> words() const;
  // What differs from the defaults, as one text: "open-answer=0 mouse=control"; "the default host" when nothing does.
  std::string text() const;
  bool operator==(const HostChoice&) const = default;

 private:
  friend std::vector<HostChoice> singleChoices(std::span<const HostVariant> rows, const HostChoice& base);

  bool bears(std::size_t row, std::size_t pick) const;

  std::vector<std::optional<std::size_t>> picks_;
};

// The hosts that differ from the base in one of the rows that it leaves open: each of these with each value but the default
// that does not contradict it.
std::vector<HostChoice> singleChoices(std::span<const HostVariant> rows, const HostChoice& base = {});

// The table for people at a terminal, and for the documents (in Markdown).
std::string variantsText();
std::string variantsPage();

}  // namespace standin
