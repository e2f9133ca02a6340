// The controls of the renamer panel as one table: what each one is, its label and default, and where it stands. Making,
// placing and reading them all walk this table. No host here.
#pragma once

#include <array>
#include <cstddef>

#include "forms/controls.h"

namespace mst {

// In the order of creation.
enum class RenamerItem : std::size_t {
  Mode,
  FirstText,
  SecondText,
  Target,
  RegisteredCount,
  Add,
  Clear,
  ConversionHeading,
  BaseNameOn,
  BaseName,
  PrefixOn,
  Prefix,
  SuffixOn,
  Suffix,
  ReplaceOn,
  ReplaceFrom,
  ReplaceTo,
  RegexOn,
  RegexPattern,
  RegexFormat,
  ColumnOn,
  Order,
  ColumnStart,
  Invert,
  RowOn,
  RowDigits,
  RowStart,
  TagHeading,
  SkelegonName,
  WeightMap,
  BoneProperty,
  OverlapCheck,
  Border,
  Run,
};
inline constexpr std::size_t kRenamerItemCount = 34;
constexpr std::size_t indexOf(RenamerItem item) { return static_cast<std::size_t>(item); }

using forms::HostControl;

// Controls beside a check mark line up with each other, block by block.
enum class RenamerBlock { None, Names, Columns, Rows };

// The x of a control: of its left edge, of its hot area with the label left of it, or of the column beside the check marks
// of its block.
struct RenamerPlace {
  enum class By { LeftEdge, HotArea, Beside };

  By by = By::LeftEdge;
  int x = 0;
  int y = 0;
  RenamerBlock block = RenamerBlock::None;
};

struct RenamerRow : forms::ControlRow {
  RenamerItem item = RenamerItem::Mode;
  RenamerPlace place;
  int number = 0;         // what it shows at first: index, count, on or off
  const char* text = "";  // likewise of fields
};

const std::array<RenamerRow, kRenamerItemCount>& renamerTable();

}  // namespace mst
