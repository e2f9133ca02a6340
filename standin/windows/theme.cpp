#include "standin/windows/theme.h"

#include <array>

#include "standin/panels/metrics.h"

namespace standin {
namespace {

struct ToneRow {
  Tone tone;
  COLORREF colour;
};

constexpr COLORREF grey(unsigned level) { return level | level << 8 | level << 16; }

constexpr std::array kTones{
    ToneRow{Tone::Panel, grey(0x42)},     ToneRow{Tone::Field, grey(0x2A)},  ToneRow{Tone::Raised, grey(0x5A)},
    ToneRow{Tone::Pressed, grey(0x34)},   ToneRow{Tone::Chosen, 0x00A0683C}, ToneRow{Tone::Edge, grey(0x1C)},
    ToneRow{Tone::Highlight, grey(0x6E)}, ToneRow{Tone::Text, grey(0xE4)},   ToneRow{Tone::Mark, 0x0040C8F0},
};

constexpr bool rowsFollowTheEnum() {
  for (std::size_t i = 0; i < kTones.size(); ++i) {
    if (static_cast<std::size_t>(kTones[i].tone) != i) return false;
  }
  return kTones.size() == static_cast<std::size_t>(Tone::Mark) + 1;
}
static_assert(rowsFollowTheEnum());

HFONT makeFont(const wchar_t* face) {
  constexpr int height = 2 * kCellWidth;  // of the characters, in pixels; half as wide, or as wide for East Asian ones
  return CreateFontW(-height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, SHIFTJIS_CHARSET, OUT_TT_PRECIS, CLIP_DEFAULT_PRECIS,
                     ANTIALIASED_QUALITY, FIXED_PITCH | FF_MODERN, face);
}

int widthOf(HDC dc, const wchar_t* text, int length) {
  SIZE size{};
  GetTextExtentPoint32W(dc, text, length, &size);
  return size.cx;
}

bool hasThePanelsCells(HFONT font) {
  HDC const dc = CreateCompatibleDC(nullptr);
  HGDIOBJ const before = SelectObject(dc, font);
  const bool fits = widthOf(dc, L"iW", 2) == 2 * kCellWidth && widthOf(dc, L"\x30DC\x30FC", 2) == 4 * kCellWidth;
  SelectObject(dc, before);
  DeleteDC(dc);
  return fits;
}

HFONT chooseFont() {
  // The first is a free font that stays readable in cells this small, the second comes with Japanese Windows.
  for (const wchar_t* face : {L"VL Gothic", L"MS Gothic", L"IPAGothic", L"IPA\x30B4\x30B7\x30C3\x30AF"}) {
    HFONT const font = makeFont(face);
    if (hasThePanelsCells(font)) return font;
    DeleteObject(font);
  }
  return makeFont(L"Courier New");
}

}  // namespace

COLORREF colour(Tone tone) { return kTones[static_cast<std::size_t>(tone)].colour; }

HBRUSH brush(Tone tone) {
  static const auto brushes = [] {
    std::array<HBRUSH, kTones.size()> made{};
    for (std::size_t i = 0; i < made.size(); ++i) made[i] = CreateSolidBrush(kTones[i].colour);
    return made;
  }();
  return brushes[static_cast<std::size_t>(tone)];
}

HFONT panelFont() {
  static HFONT const font = chooseFont();
  return font;
}

int fontHeight() {
  static const int height = [] {
    HDC const dc = CreateCompatibleDC(nullptr);
    HGDIOBJ const before = SelectObject(dc, panelFont());
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc, &metrics);
    SelectObject(dc, before);
    DeleteDC(dc);
    return static_cast<int>(metrics.tmHeight);
  }();
  return height;
}

void fill(HDC dc, const RECT& area, Tone tone) { FillRect(dc, &area, brush(tone)); }
void frame(HDC dc, const RECT& area, Tone tone) { FrameRect(dc, &area, brush(tone)); }

}  // namespace standin
