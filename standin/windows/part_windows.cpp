#include "standin/windows/part_windows.h"

#include <algorithm>
#include <utility>

#include "standin/core/wide_text.h"
#include "standin/panels/metrics.h"
#include "standin/windows/painting.h"
#include "standin/windows/theme.h"
// After windows.h, which it needs.
#include <windowsx.h>

namespace standin {
namespace {

constexpr int kFieldEdgeX = kFieldInset / 2;
constexpr int kListRow = 16;
constexpr int kListFrame = 6;  // what a closed list is higher than its field

PanelPart& partBehind(DWORD_PTR data) { return *reinterpret_cast<PanelPart*>(data); }

bool hasFocus(HWND window) { return GetFocus() == window; }

// Draws a whole window anew from what `draw` puts into a picture in memory, so that nothing flickers.
template <class Draw>
void paintWindow(HWND window, Draw draw) {
  PAINTSTRUCT paint{};
  HDC const screen = BeginPaint(window, &paint);
  RECT area{};
  GetClientRect(window, &area);
  HDC const memory = CreateCompatibleDC(screen);
  HBITMAP const bitmap = CreateCompatibleBitmap(screen, area.right, area.bottom);
  HGDIOBJ const before = SelectObject(memory, bitmap);
  draw(memory, area);
  BitBlt(screen, 0, 0, area.right, area.bottom, memory, 0, 0, SRCCOPY);
  SelectObject(memory, before);
  DeleteObject(bitmap);
  DeleteDC(memory);
  EndPaint(window, &paint);
}

// ---------------------------------------------------------------------------------------------------------------------
// Fields: the system's edit control, with an edge of our own.

// Above and below a line of text, in a field that is so high.
int fieldEdgeY(int height) { return std::max(1, (height - fontHeight()) / 2); }

void paintFieldEdge(HWND window) {
  HDC const dc = GetWindowDC(window);
  RECT area{};
  GetWindowRect(window, &area);
  OffsetRect(&area, -area.left, -area.top);
  const int edgeY = fieldEdgeY(area.bottom);
  ExcludeClipRect(dc, kFieldEdgeX, edgeY, area.right - kFieldEdgeX, area.bottom - edgeY);
  fill(dc, area, Tone::Field);
  frame(dc, area, hasFocus(window) ? Tone::Highlight : Tone::Edge);
  ReleaseDC(window, dc);
}

LRESULT CALLBACK fieldProcedure(HWND window, UINT message, WPARAM wide, LPARAM place, UINT_PTR /*id*/, DWORD_PTR /*data*/) {
  switch (message) {
    case WM_NCCALCSIZE: {
      RECT& area = *reinterpret_cast<RECT*>(place);
      InflateRect(&area, -kFieldEdgeX, -fieldEdgeY(area.bottom - area.top));
      return 0;
    }
    case WM_NCHITTEST: return HTCLIENT;
    case WM_NCPAINT: paintFieldEdge(window); return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS: {
      const LRESULT result = DefSubclassProc(window, message, wide, place);
      paintFieldEdge(window);
      return result;
    }
    default: return DefSubclassProc(window, message, wide, place);
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Lists

LRESULT CALLBACK listProcedure(HWND window, UINT message, WPARAM wide, LPARAM place, UINT_PTR /*id*/, DWORD_PTR data) {
  PanelPart& part = partBehind(data);
  switch (message) {
    case WM_ERASEBKGND: return 1;
    case WM_PAINT:
      if (part.window->panel() == nullptr) break;
      paintWindow(window, [&](HDC dc, const RECT& area) {
        drawClosedList(dc, area, *part.control, {.hasFocus = hasFocus(window)});
      });
      return 0;
    case WM_MOUSEWHEEL:  // over a closed list it is the panel's
      if (SendMessageW(window, CB_GETDROPPEDSTATE, 0, 0) != 0) break;
      part.window->wheel(wide, place);
      return 0;
    default: break;
  }
  return DefSubclassProc(window, message, wide, place);
}

// ---------------------------------------------------------------------------------------------------------------------
// Tabs

void paintTabs(const PanelPart& part) {
  paintWindow(part.handle, [&](HDC dc, const RECT& area) {
    fill(dc, area, Tone::Panel);
    const std::vector<std::string> items = part.control->items();
    for (std::size_t i = 0; i < items.size(); ++i) {
      RECT tab{};
      TabCtrl_GetItemRect(part.handle, static_cast<int>(i), &tab);
      tab.top = area.top;
      tab.bottom = area.bottom;
      const bool isOn = std::cmp_equal(part.control->integer, i);
      drawTab(dc, tab, items[i], {.isOn = isOn});
    }
  });
}

LRESULT CALLBACK tabsProcedure(HWND window, UINT message, WPARAM wide, LPARAM place, UINT_PTR /*id*/, DWORD_PTR data) {
  const PanelPart& part = partBehind(data);
  switch (message) {
    case WM_ERASEBKGND: return 1;
    case WM_NCHITTEST: return HTCLIENT;
    case WM_PAINT:
      if (part.window->panel() == nullptr) break;
      paintTabs(part);
      return 0;
    default: break;
  }
  return DefSubclassProc(window, message, wide, place);
}

// ---------------------------------------------------------------------------------------------------------------------
// Sliders

LRESULT CALLBACK sliderProcedure(HWND window, UINT message, WPARAM wide, LPARAM place, UINT_PTR /*id*/, DWORD_PTR data) {
  PanelPart& part = partBehind(data);
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      SetFocus(GetParent(window));  // what was typed into a field is taken first
      part.isDragged = true;
      part.dragStart = GET_X_LPARAM(place);
      part.window->drag(part, part.dragStart);
      SetCapture(window);
      InvalidateRect(window, nullptr, FALSE);
      return 0;
    case WM_MOUSEMOVE:
      if (part.isDragged) part.window->drag(part, GET_X_LPARAM(place));
      return 0;
    case WM_LBUTTONUP: ReleaseCapture(); return 0;
    case WM_CAPTURECHANGED:
      part.isDragged = false;
      InvalidateRect(window, nullptr, FALSE);
      return 0;
    default: return DefSubclassProc(window, message, wide, place);
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Drawing areas

bool isMouse(UINT message) { return message >= WM_MOUSEFIRST && message <= WM_MBUTTONDBLCLK; }

LRESULT CALLBACK areaProcedure(HWND window, UINT message, WPARAM wide, LPARAM place) {
  auto* const part = reinterpret_cast<PanelPart*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (part == nullptr || part->window->panel() == nullptr) return DefWindowProcW(window, message, wide, place);
  if (isMouse(message)) {
    POINT point{GET_X_LPARAM(place), GET_Y_LPARAM(place)};
    MapWindowPoints(window, GetParent(window), &point, 1);
    part->window->mouse(message, wide, point.x, point.y);
    return 0;
  }
  switch (message) {
    case WM_ERASEBKGND: return 1;
    case WM_PAINT:
      ValidateRect(window, nullptr);
      part->window->paintArea(*part);
      return 0;
    case WM_GETDLGCODE: return DLGC_WANTCHARS | DLGC_WANTARROWS;
    default: return DefWindowProcW(window, message, wide, place);
  }
}

}  // namespace

void registerDrawingClass() {
  static const bool done = [] {
    WNDCLASSW kind{};
    kind.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
    kind.lpfnWndProc = &areaProcedure;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    kind.lpszClassName = kDrawingClass;
    return RegisterClassW(&kind) != 0;
  }();
  static_cast<void>(done);
}

void equip(PanelPart& part) {
  const auto data = reinterpret_cast<DWORD_PTR>(&part);
  SetWindowLongPtrW(part.handle, GWLP_USERDATA, static_cast<LONG_PTR>(data));
  SendMessageW(part.handle, WM_SETFONT, reinterpret_cast<WPARAM>(panelFont()), 0);
  if (part.role == PartRole::Slider) SetWindowSubclass(part.handle, &sliderProcedure, 1, data);
  if (part.role != PartRole::Main) return;
  switch (part.look()) {
    case Look::Field: SetWindowSubclass(part.handle, &fieldProcedure, 1, data); break;
    case Look::List:
      SetWindowSubclass(part.handle, &listProcedure, 1, data);
      SendMessageW(part.handle, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), kRowHeight - 2 * kRowInset - kListFrame);
      SendMessageW(part.handle, CB_SETITEMHEIGHT, 0, kListRow);
      break;
    case Look::Tabs:
      SetWindowSubclass(part.handle, &tabsProcedure, 1, data);
      TabCtrl_SetPadding(part.handle, kTabInset / 2 - 1, 1);  // a pixel less: the first tab does not begin at the edge
      SendMessageW(part.handle, TCM_SETMINTABWIDTH, 0, 1);
      break;
    case Look::Drawing: part.area = std::make_unique<GlArea>(part.handle); break;
    default: break;
  }
}

void fillTabs(const PanelPart& part) {
  TabCtrl_DeleteAllItems(part.handle);
  int index = 0;
  for (const std::string& item : part.control->items()) {
    std::wstring text = wide(item);
    TCITEMW tab{};
    tab.mask = TCIF_TEXT;
    tab.pszText = text.data();
    SendMessageW(part.handle, TCM_INSERTITEMW, static_cast<WPARAM>(index++), reinterpret_cast<LPARAM>(&tab));
  }
  TabCtrl_SetCurSel(part.handle, part.control->integer);
}

}  // namespace standin
