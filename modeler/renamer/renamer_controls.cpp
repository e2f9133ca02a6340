#include "modeler/renamer/renamer_controls.h"

#include "skelegon/table_order.h"

namespace mst {
namespace {

using By = RenamerPlace::By;
using Item = RenamerItem;
using Kind = HostControl;
using List = texts::RenamerList;
using Block = RenamerBlock;

constexpr std::nullopt_t kNoLabel = std::nullopt;

constexpr RenamerPlace at(int x, int y, Block block = Block::None) { return {By::LeftEdge, x, y, block}; }
constexpr RenamerPlace labelled(int y) { return {By::HotArea, 100, y, Block::None}; }
constexpr RenamerPlace beside(Block block, int y) { return {By::Beside, 0, y, block}; }

// In simple modes the last two stand 500 pixels higher: the border frames the check mark that is there then, the button
// keeps clear of it.
constexpr int kBorderTop = 568;
constexpr int kRunTop = 600;

// clang-format off
constexpr std::array<RenamerRow, kRenamerItemCount> kTable = {{
    // item                   kind              label      width  place                        number text
    // choices
    {Item::Mode,              Kind::Popup,      0,          140,  labelled(0),                 0,     "",                   List::RenameMode},
    {Item::FirstText,         Kind::Edit,       kNoLabel,    33,  labelled(24),                0,     "",                   {}},
    {Item::SecondText,        Kind::Edit,       kNoLabel,    33,  labelled(48),                0,     "",                   {}},
    {Item::Target,            Kind::Popup,      16,         140,  labelled(72),                0,     "",                   List::RenameTarget},
    {Item::RegisteredCount,   Kind::NumberInfo, 17,           0,  labelled(96),                0,     "",                   {}},
    {Item::Add,               Kind::Button,     18,          60,  at(188, 96),                 0,     "",                   {}},
    {Item::Clear,             Kind::Button,     19,          40,  at(248, 96),                 0,     "",                   {}},
    {Item::ConversionHeading, Kind::Text,       3,            0,  at(4, 120),                  0,     "",                   {}},
    {Item::BaseNameOn,        Kind::Bool,       4,            0,  at(4, 142, Block::Names),    0,     "",                   {}},
    {Item::BaseName,          Kind::Edit,       kNoLabel,    34,  beside(Block::Names, 142),   0,     "Bone01_[col]_[row]", {}},
    {Item::PrefixOn,          Kind::Bool,       6,            0,  at(4, 166, Block::Names),    0,     "",                   {}},
    {Item::Prefix,            Kind::Edit,       kNoLabel,    34,  beside(Block::Names, 166),   0,     "",                   {}},
    {Item::SuffixOn,          Kind::Bool,       8,            0,  at(4, 190, Block::Names),    0,     "",                   {}},
    {Item::Suffix,            Kind::Edit,       kNoLabel,    34,  beside(Block::Names, 190),   0,     "",                   {}},
    {Item::ReplaceOn,         Kind::Bool,       10,           0,  at(4, 214, Block::Names),    0,     "",                   {}},
    {Item::ReplaceFrom,       Kind::Edit,       kNoLabel,    34,  beside(Block::Names, 214),   0,     "",                   {}},
    {Item::ReplaceTo,         Kind::Edit,       kNoLabel,    34,  beside(Block::Names, 236),   0,     "",                   {}},
    {Item::RegexOn,           Kind::Bool,       13,           0,  at(4, 260, Block::Names),    0,     "",                   {}},
    {Item::RegexPattern,      Kind::Edit,       kNoLabel,    34,  beside(Block::Names, 260),   0,     "(.*)_L(.*)",         {}},
    {Item::RegexFormat,       Kind::Edit,       kNoLabel,    34,  beside(Block::Names, 282),   0,     "$1_R$2",             {}},
    {Item::ColumnOn,          Kind::Bool,       21,           0,  at(4, 318, Block::Columns),  0,     "",                   {}},
    {Item::Order,             Kind::Popup,      22,         140,  beside(Block::Columns, 318), 0,     "",                   List::RenameOrder},
    {Item::ColumnStart,       Kind::Popup,      23,         140,  beside(Block::Columns, 342), 0,     "",                   List::ColumnLetter},
    {Item::Invert,            Kind::Bool,       24,           0,  at(140, 366),                0,     "",                   {}},
    {Item::RowOn,             Kind::Bool,       25,           0,  at(4, 402, Block::Rows),     0,     "",                   {}},
    {Item::RowDigits,         Kind::Number,     26,           0,  beside(Block::Rows, 402),    2,     "",                   {}},
    {Item::RowStart,          Kind::Number,     27,           0,  beside(Block::Rows, 424),    1,     "",                   {}},
    {Item::TagHeading,        Kind::Text,       28,           0,  at(4, 460),                  0,     "",                   {}},
    {Item::SkelegonName,      Kind::Bool,       29,           0,  at(100, 460),                1,     "",                   {}},
    {Item::WeightMap,         Kind::Bool,       30,           0,  at(100, 482),                1,     "",                   {}},
    {Item::BoneProperty,      Kind::Bool,       31,           0,  at(100, 504),                0,     "",                   {}},
    {Item::OverlapCheck,      Kind::Bool,       20,           0,  labelled(540),               1,     "",                   {}},
    {Item::Border,            Kind::Border,     kNoLabel,   320,  at(0, kBorderTop),           0,     "",                   {}},
    {Item::Run,               Kind::Button,     33,          80,  at(120, kRunTop),            0,     "",                   {}},
}};
// clang-format on

static_assert(skg::standInOrder(kTable, &RenamerRow::item));

constexpr bool havePopupsTheirLists() {
  for (const RenamerRow& row : kTable) {
    if ((row.kind == HostControl::Popup) != row.choices.has_value()) return false;
  }
  return true;
}
static_assert(havePopupsTheirLists());

}  // namespace

const std::array<RenamerRow, kRenamerItemCount>& renamerTable() { return kTable; }

}  // namespace mst
