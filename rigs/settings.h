// The settings that a skelegon can store, as a person meets them: name in both languages, kind, default and choices.
//
// All of this is data of the file format, and stands once, in the tables that the module is built from too. The library
// varnel_rigs is a tool on that format; it plays no host. The parts of the stand-in that do play the host use no table of
// the module's, so that a wrong row there cannot excuse itself.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "skelegon/slots.h"
#include "texts/texts.h"

namespace standin::rigs {

using texts::Language;

struct Setting {
  skg::Slot slot{};
  std::uint32_t tag = 0;  // under which it is stored
  skg::SlotKind kind{};
  std::string_view defaultText;
  std::string english;   // unique; the key in exported settings
  std::string japanese;  // unique
  std::vector<std::string> englishChoices;
  std::vector<std::string> japaneseChoices;

  const std::string& name(Language language) const { return language == Language::Japanese ? japanese : english; }
  const std::vector<std::string>& choices(Language language) const {
    return language == Language::Japanese ? japaneseChoices : englishChoices;
  }
};

// Every setting that a panel can store, in slot order, and behind the bone's colour the second place where it is stored. The
// skelegon's name is none of them.
const std::vector<Setting>& allSettings();

// Null where there is none.
const Setting* settingOfTag(std::uint32_t tag);
const Setting* settingNamed(std::string_view english);

}  // namespace standin::rigs
