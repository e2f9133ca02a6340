// What the host's documents leave open, as one table: each open question with every plausible answer. Hosts that differ in these
// are all possible; the module has to do its whole job in each. The validator plays them one by one and in mixtures, and
// docs/stand-in.md is printed from the rows.
//
// To add a question: an option in options.h of the area, whose initial value is the default, and a row in the file of the area.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "standin/layout/options.h"
#include "standin/modeler/options.h"
#include "standin/panels/options.h"

namespace standin {

// A whole host, as far as hosts may differ.
struct HostOptions {
  PanelOptions panels;
  ModelerOptions modeler;
  LayoutOptions layout;
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

// The rows of each area, in the order in which they are printed.
std::span<const HostVariant> panelVariants();
std::span<const HostVariant> mouseVariants();
std::span<const HostVariant> modelerVariants();
std::span<const HostVariant> layoutVariants();
// All of them, in that order.
std::span<const HostVariant* const> allVariants();

// One value for each variant.
class HostChoice {
 public:
  // The default of each.
  HostChoice() : picks_(allVariants().size(), 0) {}
  // A value of each by chance; the same for the same seed.
  static HostChoice mixture(std::uint64_t seed);

  // False when there is no such variant or value.
  [[nodiscard]] bool choose(std::string_view variant, std::string_view value);
  HostOptions options() const;
  // What differs from the defaults, "open-answer=0 mouse=control"; "the default host" when nothing does.
  std::string text() const;

 private:
  std::vector<std::size_t> picks_;
};

// Each variant with each value but its default, alone.
std::vector<HostChoice> singleChoices();

// The tables of docs/stand-in.md, in Markdown.
std::string variantsPage();

}  // namespace standin
