#include "standin/windows/painting.h"

#include <algorithm>
#include <array>

#include "standin/core/wide_text.h"
#include "standin/panels/metrics.h"
#include "standin/windows/theme.h"

namespace standin {
namespace {

constexpr int kFieldTextInset = kFieldInset / 2;
constexpr int kCheckSide = 13;

RECT inset(RECT area, int dx, int dy) {
  InflateRect(&area, -dx, -dy);
  return area;
}

// Runs of characters and icons, in order: `run` gets each text without icons, `icon` the escape of each icon.
template <class Run, class Icon>
void walk(std::string_view text, Run run, Icon icon) {
  std::string characters;
  const auto flush = [&] {
    if (!characters.empty()) run(wide(characters));
    characters.clear();
  };
  while (!text.empty()) {
    const TextPiece piece = takePiece(text);
    if (piece.kind == TextPiece::Kind::Icon) {
      flush();
      icon(piece.bytes);
    } else {
      characters += piece.kind == TextPiece::Kind::Broken ? "?" : piece.bytes;
    }
  }
  flush();
}

int extent(HDC dc, const std::wstring& text) {
  SIZE size{};
  GetTextExtentPoint32W(dc, text.data(), static_cast<int>(text.size()), &size);
  return size.cx;
}

// Selected into a device context for as long as this lives.
class Selected {
 public:
  Selected(HDC dc, HGDIOBJ object) : dc_(dc), before_(SelectObject(dc, object)) {}
  ~Selected() { SelectObject(dc_, before_); }
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;

 private:
  HDC dc_;
  HGDIOBJ before_;
};

void drawBox(HDC dc, int x, int middle, COLORREF) {
  const RECT box{x + 2, middle - 5, x + 13, middle + 6};
  frame(dc, box, Tone::Mark);
  fill(dc, inset(box, 3, 3), Tone::Mark);
}

void drawLeftArrow(HDC dc, int x, int middle, COLORREF ink) {
  const std::array<POINT, 7> outline{{{x + 2, middle},
                                      {x + 7, middle - 5},
                                      {x + 7, middle - 2},
                                      {x + 13, middle - 2},
                                      {x + 13, middle + 2},
                                      {x + 7, middle + 2},
                                      {x + 7, middle + 5}}};
  const Selected pen(dc, GetStockObject(DC_PEN));
  const Selected brush(dc, GetStockObject(DC_BRUSH));
  SetDCPenColor(dc, ink);
  SetDCBrushColor(dc, ink);
  Polygon(dc, outline.data(), static_cast<int>(outline.size()));
}

// The images of the host that the stand-in has a drawing for. Of the others it only shows where they stand.
struct IconRow {
  std::string_view escape;
  void (*draw)(HDC dc, int x, int middle, COLORREF ink);
};
constexpr std::array kIcons{IconRow{"\x03(i:MIMG_LEFTARROW)", &drawLeftArrow}};

void drawIcon(HDC dc, int x, int middle, COLORREF ink, std::string_view escape) {
  const auto* const row =
      std::find_if(kIcons.begin(), kIcons.end(), [&](const IconRow& icon) { return icon.escape == escape; });
  (row == kIcons.end() ? &drawBox : row->draw)(dc, x, middle, ink);
}

// A triangle that points down, left or right, as rows of pixels.
enum class Point { Down, Left, Right };
void drawTriangle(HDC dc, int x, int y, int size, Point point, COLORREF ink) {
  const int rows = size;
  for (int row = 0; row < rows; ++row) {
    for (int k = row; k < 2 * rows - 1 - row; ++k) {
      switch (point) {
        case Point::Down: SetPixelV(dc, x + k, y + row, ink); break;
        case Point::Right: SetPixelV(dc, x + row, y + k, ink); break;
        case Point::Left: SetPixelV(dc, x + rows - 1 - row, y + k, ink); break;
      }
    }
  }
}

int middleOf(const RECT& area) { return (area.top + area.bottom) / 2; }

void drawField(HDC dc, const RECT& area, bool hasFocus) {
  fill(dc, area, Tone::Field);
  frame(dc, area, hasFocus ? Tone::Highlight : Tone::Edge);
}

}  // namespace

int drawnWidth(HDC dc, std::string_view text) {
  const Selected font(dc, panelFont());
  int width = 0;
  walk(
      text, [&](const std::wstring& run) { width += extent(dc, run); }, [&](std::string_view) { width += kIconWidth; });
  return width;
}

void drawText(HDC dc, const RECT& area, std::string_view text, COLORREF ink, Align align) {
  const Selected font(dc, panelFont());
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, ink);
  int x = area.left;
  if (align == Align::Centre) x += (area.right - area.left - drawnWidth(dc, text)) / 2;
  const int y = area.top + (area.bottom - area.top - fontHeight()) / 2;
  const auto run = [&](const std::wstring& characters) {
    ExtTextOutW(dc, x, y, ETO_CLIPPED, &area, characters.data(), static_cast<UINT>(characters.size()), nullptr);
    x += extent(dc, characters);
  };
  const auto icon = [&](std::string_view escape) {
    drawIcon(dc, x, middleOf(area), ink, escape);
    x += kIconWidth;
  };
  walk(text, run, icon);
}

void drawLabel(HDC dc, const RECT& area, const Control& control) {
  fill(dc, area, Tone::Panel);
  drawText(dc, area, control.label.read(), colour(Tone::Text));
}

void drawLines(HDC dc, const RECT& area, const Control& control) {
  fill(dc, area, Tone::Panel);
  RECT line{area.left, area.top + 2, area.right, area.top + 2 + kTextHeight};
  for (const std::string& text : control.lines()) {
    drawText(dc, line, text, colour(Tone::Text));
    OffsetRect(&line, 0, kTextHeight);
  }
}

void drawButton(HDC dc, const RECT& area, std::string_view label, PartState state) {
  fill(dc, area, state.isPressed ? Tone::Pressed : state.isOn ? Tone::Chosen : Tone::Raised);
  frame(dc, area, Tone::Edge);
  if (!state.isPressed) {
    const RECT top{area.left + 1, area.top + 1, area.right - 1, area.top + 2};
    fill(dc, top, Tone::Highlight);
  }
  if (state.hasFocus) frame(dc, inset(area, 1, 1), Tone::Highlight);
  drawText(dc, inset(area, 2, 1), label, colour(Tone::Text), Align::Centre);
}

void drawTick(HDC dc, int left, const RECT& area, bool isOn, PartState state) {
  const int top = area.top + (area.bottom - area.top - kCheckSide) / 2;
  const RECT box{left, top, left + kCheckSide, top + kCheckSide};
  fill(dc, box, state.isPressed ? Tone::Pressed : Tone::Field);
  frame(dc, box, state.hasFocus ? Tone::Highlight : Tone::Edge);
  if (!isOn) return;
  const COLORREF ink = colour(Tone::Mark);
  // Down to the right, then up.
  for (int i = 0; i < 7; ++i) {
    const int y = box.top + (i < 3 ? 6 + i : 10 - i);
    for (int thick = 0; thick < 2; ++thick) SetPixelV(dc, box.left + 3 + i, y + thick, ink);
  }
}

void drawCheck(HDC dc, const RECT& area, const Control& control, PartState state) {
  fill(dc, area, Tone::Panel);
  drawTick(dc, area.left + 2, area, control.integer != 0, state);
}

void drawInfo(HDC dc, const RECT& area, const Control& control) {
  fill(dc, area, Tone::Panel);
  frame(dc, area, Tone::Edge);
  drawText(dc, inset(area, kFieldTextInset, 1), control.shown(), colour(Tone::Text));
}

void drawSlider(HDC dc, const RECT& area, PartState state) {
  fill(dc, area, state.isPressed ? Tone::Pressed : Tone::Raised);
  frame(dc, area, Tone::Edge);
  const int y = middleOf(area) - 3;
  drawTriangle(dc, area.left + 4, y, 4, Point::Left, colour(Tone::Text));
  drawTriangle(dc, area.right - 8, y, 4, Point::Right, colour(Tone::Text));
}

void drawClosedList(HDC dc, const RECT& area, const Control& control, PartState state) {
  drawField(dc, area, state.hasFocus);
  const RECT arrow{area.right - kPopupArrowWidth + 2, area.top + 1, area.right - 1, area.bottom - 1};
  fill(dc, arrow, Tone::Raised);
  drawTriangle(dc, (arrow.left + arrow.right) / 2 - 4, middleOf(area) - 2, 4, Point::Down, colour(Tone::Text));
  const RECT text{area.left + kFieldTextInset, area.top + 1, arrow.left, area.bottom - 1};
  if (text.right - text.left >= 2 * kCellWidth) drawText(dc, text, control.shown(), colour(Tone::Text));
}

void drawItem(HDC dc, const RECT& area, std::string_view text, bool isUnderPointer) {
  fill(dc, area, isUnderPointer ? Tone::Chosen : Tone::Field);
  drawText(dc, inset(area, kFieldTextInset, 0), text, colour(Tone::Text));
}

void drawTab(HDC dc, const RECT& area, std::string_view text, PartState state) {
  fill(dc, area, state.isOn ? Tone::Chosen : Tone::Raised);
  frame(dc, area, Tone::Edge);
  drawText(dc, inset(area, 1, 1), text, colour(Tone::Text), Align::Centre);
}

void drawBorder(HDC dc, const RECT& area, const Control& control) {
  constexpr int line = 2;
  RECT dark = area;
  RECT light = area;
  if (area.bottom - area.top <= line) {
    dark.bottom = light.top = area.top + 1;
    light.bottom = area.top + line;
  } else {
    OffsetRect(&light, 1, 1);
    dark.right = light.right = area.right;
    dark.bottom = light.bottom = area.bottom;
  }
  frame(dc, light, Tone::Raised);
  frame(dc, dark, Tone::Edge);
  const std::string label = control.label.read();
  if (label.empty()) return;
  const RECT text{area.left + 8, area.top - kTextHeight / 2, area.left + 16 + drawnWidth(dc, label),
                  area.top + kTextHeight / 2};
  fill(dc, text, Tone::Panel);
  drawText(dc, text, label, colour(Tone::Text), Align::Centre);
}

}  // namespace standin
