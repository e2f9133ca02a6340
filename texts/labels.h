// Builds a label table of each language from rows that hold both. Used by the text tables only.
#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "texts/texts.h"

namespace texts {

struct LabelRow {
  std::size_t index;
  const char* english;
  const char* japanese;
};

template <std::size_t Size>
using LabelTables = std::array<std::array<const char*, Size>, kLanguageCount>;

// Entries that no row names are empty texts.
template <std::size_t Size>
constexpr LabelTables<Size> labelTables(std::span<const LabelRow> rows) {
  LabelTables<Size> tables{};
  for (auto& table : tables) table.fill("");
  for (const LabelRow& row : rows) {
    tables[static_cast<std::size_t>(Language::English)][row.index] = row.english;
    tables[static_cast<std::size_t>(Language::Japanese)][row.index] = row.japanese;
  }
  return tables;
}

// True when the rows ascend, so no index is there twice, and when both languages have a text in each.
constexpr bool rowsAreSound(std::span<const LabelRow> rows) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (i > 0 && rows[i - 1].index >= rows[i].index) return false;
    if (*rows[i].english == '\0' || *rows[i].japanese == '\0') return false;
  }
  return true;
}

constexpr std::size_t entriesWithNull(Choices choices) {
  std::size_t count = 0;
  while (choices[count] != nullptr) ++count;
  return count + 1;
}

// True when the rows stand in the order of their enum and every list has as many entries as its row says.
template <class Rows>
constexpr bool listsAreSound(const Rows& rows) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (static_cast<std::size_t>(rows[i].list) != i) return false;
    if (entriesWithNull(rows[i].english) != rows[i].count || entriesWithNull(rows[i].japanese) != rows[i].count)
      return false;
  }
  return true;
}

}  // namespace texts
