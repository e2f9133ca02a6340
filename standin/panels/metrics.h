// Sizes of texts and controls in the stand-in's panels, in pixels. The font is of fixed pitch: a wide (East Asian) character
// takes two cells, every other one a cell.
#pragma once

#include <string>
#include <string_view>

namespace standin {

inline constexpr int kCellWidth = 6;
inline constexpr int kTextHeight = 14;
inline constexpr int kTextAscent = 11;
inline constexpr int kIconWidth = 16;  // of any icon that a rich-text escape names
inline constexpr int kRowHeight = 20;  // of every control of one row
inline constexpr int kRowInset = 1;    // rows' hot areas lie this far below the control's top
inline constexpr int kLabelGap = 4;    // between a label and the hot area, counted as label width
inline constexpr int kCheckMarkWidth = 18;
inline constexpr int kFieldInset = 8;    // left and right edge of a text field together
inline constexpr int kNumberWidth = 60;  // of number fields whose description gives no width
inline constexpr int kSliderWidth = 20;  // of the slider beside a field
inline constexpr int kPopupArrowWidth = 20;
inline constexpr int kTabInset = 16;    // left and right edge of a tab together
inline constexpr int kButtonInset = 8;  // left and right edge of a button together
inline constexpr int kPanelMargin = 4;

// One character of a UTF-8 text, or one rich-text escape: byte 0x03 and a code in parentheses.
struct TextPiece {
  enum class Kind { Character, Icon, Broken } kind = Kind::Broken;  // Broken: a byte that is no UTF-8
  std::string_view bytes;
  char32_t character = 0;
};

// Takes the first piece off `text`, which must not be empty.
TextPiece takePiece(std::string_view& text);

// True for characters that take two cells.
bool isWide(char32_t character);

// Width of a text with its icons.
int textWidth(std::string_view text);

// The text as it can be printed: escapes as "<(code)>", broken bytes as "\xNN", quotes and control characters escaped.
std::string spelledOut(std::string_view text);

}  // namespace standin
