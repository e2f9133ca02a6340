#include "standin/panels/metrics.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace standin {
namespace {

struct Span {
  char32_t first;
  char32_t last;
};

constexpr std::array kWide{
    Span{0x1100, 0x115F}, Span{0x2E80, 0x303E}, Span{0x3041, 0xA4CF}, Span{0xAC00, 0xD7A3},   Span{0xF900, 0xFAFF},
    Span{0xFE30, 0xFE6F}, Span{0xFF00, 0xFF60}, Span{0xFFE0, 0xFFE6}, Span{0x1F300, 0x1F64F}, Span{0x20000, 0x3FFFD},
};

constexpr char kEscape = '\x03';

unsigned byteAt(std::string_view text, std::size_t index) { return static_cast<unsigned char>(text[index]); }

// Bytes that a lead byte above ASCII announces; 0 for a byte that starts no character.
std::size_t announcedLength(unsigned lead) {
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if (lead >= 0xE0 && lead <= 0xEF) return 3;
  if (lead >= 0xF0 && lead <= 0xF4) return 4;
  return 0;
}

bool isAllowed(char32_t character, std::size_t length) {
  if (length == 3) return character >= 0x800 && (character < 0xD800 || character > 0xDFFF);
  if (length == 4) return character >= 0x10000 && character <= 0x10FFFF;
  return true;
}

TextPiece take(std::string_view& text, TextPiece::Kind kind, std::size_t length, char32_t character = 0) {
  const TextPiece piece{kind, text.substr(0, length), character};
  text.remove_prefix(length);
  return piece;
}

// How many characters at the start take a byte and a cell each.
std::size_t plainCells(std::string_view text) {
  const auto isPlain = [](char c) { return c >= 0x20 && c < 0x7F; };
  return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), isPlain) - text.begin());
}

std::string hexByte(unsigned byte) {
  constexpr std::string_view digits = "0123456789abcdef";
  return {'\\', 'x', digits[byte / 16], digits[byte % 16]};
}

}  // namespace

TextPiece takePiece(std::string_view& text) {
  if (text[0] == kEscape && text.size() > 1 && text[1] == '(') {
    const std::size_t end = text.find(')');
    if (end != std::string_view::npos) return take(text, TextPiece::Kind::Icon, end + 1);
  }
  const unsigned lead = byteAt(text, 0);
  if (lead < 0x80) return take(text, TextPiece::Kind::Character, 1, lead);
  const std::size_t length = announcedLength(lead);
  if (length == 0 || length > text.size()) return take(text, TextPiece::Kind::Broken, 1);
  char32_t character = lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if ((byteAt(text, i) & 0xC0U) != 0x80U) return take(text, TextPiece::Kind::Broken, 1);
    character = character << 6 | (byteAt(text, i) & 0x3FU);
  }
  if (!isAllowed(character, length)) return take(text, TextPiece::Kind::Broken, 1);
  return take(text, TextPiece::Kind::Character, length, character);
}

bool isWide(char32_t character) {
  if (character < kWide.front().first) return false;
  for (const Span& span : kWide) {
    if (character >= span.first && character <= span.last) return true;
  }
  return false;
}

int textWidth(std::string_view text) {
  int width = 0;
  while (!text.empty()) {
    // Nearly all there is, in a hurry.
    if (const std::size_t cells = plainCells(text); cells > 0) {
      width += kCellWidth * static_cast<int>(cells);
      text.remove_prefix(cells);
      continue;
    }
    const TextPiece piece = takePiece(text);
    if (piece.kind == TextPiece::Kind::Icon) {
      width += kIconWidth;
    } else {
      width += isWide(piece.character) ? 2 * kCellWidth : kCellWidth;
    }
  }
  return width;
}

std::string spelledOut(std::string_view text) {
  std::string out;
  while (!text.empty()) {
    const TextPiece piece = takePiece(text);
    if (piece.kind == TextPiece::Kind::Icon) {
      out.append("<").append(spelledOut(piece.bytes.substr(1))).append(">");
    } else if (piece.kind == TextPiece::Kind::Broken || piece.character < 0x20 || piece.character == 0x7F) {
      out += hexByte(static_cast<unsigned char>(piece.bytes[0]));
    } else {
      if (piece.character == '"' || piece.character == '\\') out += '\\';
      out += piece.bytes;
    }
  }
  return out;
}

}  // namespace standin
