#include "modeler/renamer/renamer_controls.h"

#include "skelegon/table_order.h"
#include "texts/texts.h"

namespace mst {
namespace {

using By = RenamerPlace::By;
using Item = RenamerItem;
using Kind = HostControl;
using List = texts::RenamerList;
using Block = RenamerBlock;

constexpr std::nullopt_t kNoLabel = std::nullopt;
constexpr std::size_t of(List list) { return static_cast<std::size_t>(list); }

constexpr RenamerPlace at(int x, int y, Block block = Block::None) { return {By::LeftEdge, x, y, block}; }
constexpr RenamerPlace labelled(int y) { return {By::HotArea, 100, y, Block::None}; }
constexpr RenamerPlace beside(Block block, int y) { return {By::Beside, 0, y, block}; }

// In simple modes the last two stand 500 pixels higher: the border frames the check mark that is there then, the button
// keeps clear of it.
constexpr int kBorderTop = 568;
constexpr int kRunTop = 600;
constexpr int kBorderHeight = 30;

// clang-format off
constexpr std::array<RenamerRow, kRenamerItemCount> kTable = {{
    // kind             label    width list                     item                     place                        number, text
    {{Kind::Popup,      0,        140, of(List::RenameMode)},   Item::Mode,              labelled(0)},
    {{Kind::Edit,       kNoLabel,  33},                         Item::FirstText,         labelled(24)},
    {{Kind::Edit,       kNoLabel,  33},                         Item::SecondText,        labelled(48)},
    {{Kind::Popup,      16,       140, of(List::RenameTarget)}, Item::Target,            labelled(72)},
    {{Kind::NumberInfo, 17,         0},                         Item::RegisteredCount,   labelled(96)},
    {{Kind::Button,     18,        60},                         Item::Add,               at(188, 96)},
    {{Kind::Button,     19,        40},                         Item::Clear,             at(248, 96)},
    {{Kind::Text,       3,          0},                         Item::ConversionHeading, at(4, 120)},
    {{Kind::Bool,       4,          0},                         Item::BaseNameOn,        at(4, 142, Block::Names)},
    {{Kind::Edit,       kNoLabel,  34},                         Item::BaseName,          beside(Block::Names, 142),   0, "Bone01_[col]_[row]"},
    {{Kind::Bool,       6,          0},                         Item::PrefixOn,          at(4, 166, Block::Names)},
    {{Kind::Edit,       kNoLabel,  34},                         Item::Prefix,            beside(Block::Names, 166)},
    {{Kind::Bool,       8,          0},                         Item::SuffixOn,          at(4, 190, Block::Names)},
    {{Kind::Edit,       kNoLabel,  34},                         Item::Suffix,            beside(Block::Names, 190)},
    {{Kind::Bool,       10,         0},                         Item::ReplaceOn,         at(4, 214, Block::Names)},
    {{Kind::Edit,       kNoLabel,  34},                         Item::ReplaceFrom,       beside(Block::Names, 214)},
    {{Kind::Edit,       kNoLabel,  34},                         Item::ReplaceTo,         beside(Block::Names, 236)},
    {{Kind::Bool,       13,         0},                         Item::RegexOn,           at(4, 260, Block::Names)},
    {{Kind::Edit,       kNoLabel,  34},                         Item::RegexPattern,      beside(Block::Names, 260),   0, "(.*)_L(.*)"},
    {{Kind::Edit,       kNoLabel,  34},                         Item::RegexFormat,       beside(Block::Names, 282),   0, "$1_R$2"},
    {{Kind::Bool,       21,         0},                         Item::ColumnOn,          at(4, 318, Block::Columns)},
    {{Kind::Popup,      22,       140, of(List::RenameOrder)},  Item::Order,             beside(Block::Columns, 318)},
    {{Kind::Popup,      23,       140, of(List::ColumnLetter)}, Item::ColumnStart,       beside(Block::Columns, 342)},
    {{Kind::Bool,       24,         0},                         Item::Invert,            at(140, 366)},
    {{Kind::Bool,       25,         0},                         Item::RowOn,             at(4, 402, Block::Rows)},
    {{Kind::Number,     26,         0},                         Item::RowDigits,         beside(Block::Rows, 402),    2},
    {{Kind::Number,     27,         0},                         Item::RowStart,          beside(Block::Rows, 424),    1},
    {{Kind::Text,       28,         0},                         Item::TagHeading,        at(4, 460)},
    {{Kind::Bool,       29,         0},                         Item::SkelegonName,      at(100, 460),                1},
    {{Kind::Bool,       30,         0},                         Item::WeightMap,         at(100, 482),                1},
    {{Kind::Bool,       31,         0},                         Item::BoneProperty,      at(100, 504)},
    {{Kind::Bool,       20,         0},                         Item::OverlapCheck,      labelled(540),               1},
    {{Kind::Border,     kNoLabel, 320, {}, kBorderHeight},      Item::Border,            at(0, kBorderTop)},
    {{Kind::Button,     33,        80},                         Item::Run,               at(120, kRunTop)},
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
