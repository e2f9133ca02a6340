// Makes a panel's windows and lets them follow its record. What arrives from a person is in panel_messages.cpp.
#include "standin/windows/panel_window.h"

#include <algorithm>

#include "standin/core/wide_text.h"
#include "standin/panels/metrics.h"
#include "standin/windows/front.h"
#include "standin/windows/messages.h"
#include "standin/windows/part_windows.h"

namespace standin {
namespace {

constexpr wchar_t kPanelClass[] = L"VarnelPanel";
constexpr int kDroppedRows = 24;
constexpr int kDroppedRowHeight = 14;

void registerPanelClass(WNDPROC procedure) {
  static const bool done = [procedure] {
    WNDCLASSW kind{};
    kind.style = CS_DBLCLKS;
    kind.lpfnWndProc = procedure;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    kind.lpszClassName = kPanelClass;
    return RegisterClassW(&kind) != 0;
  }();
  static_cast<void>(done);
}

DWORD frameStyle(const Panel& panel) {
  const DWORD sizing = panel.isResizable() ? WS_THICKFRAME | WS_MAXIMIZEBOX : 0U;
  return WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN | sizing;
}

std::string joined(const std::vector<std::string>& texts) {
  std::string all;
  for (const std::string& text : texts) all += text + '\n';
  return all;
}

std::string placeText(const Rectangle& area) {
  return std::to_string(area.x) + ' ' + std::to_string(area.y) + ' ' + std::to_string(area.width) + ' ' +
         std::to_string(area.height) + ' ';
}

bool same(const Rectangle& a, const Rectangle& b) {
  return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height;
}

// The label stands in the middle of the row that its control begins with.
Rectangle labelPlace(const Control& control) {
  Rectangle place = control.labelArea();
  if (!place.isEmpty()) place.height = std::min(control.hotHeight, kRowHeight - 2 * kRowInset);
  return place;
}

Rectangle placeOf(const PanelPart& part) {
  if (part.role == PartRole::Label) return labelPlace(*part.control);
  Rectangle hot = part.control->hot();
  if (!nativeKind(part.control->kind->kind).hasSlider) return hot;
  const int field = std::max(0, hot.width - kSliderWidth);
  if (part.role == PartRole::Main) return {hot.x, hot.y, field, hot.height};
  return {hot.x + field, hot.y, hot.width - field, hot.height};
}

// All that the part draws.
std::string contentOf(const PanelPart& part) {
  const Control& control = *part.control;
  if (part.role == PartRole::Label) return control.label.read();
  if (part.role == PartRole::Slider) return {};
  switch (part.look()) {
    case Look::Lines: return joined(control.lines());
    case Look::Tabs: return std::to_string(control.integer) + '\n' + joined(control.items());
    case Look::Button:
    case Look::Check: return control.label.read() + '\n' + std::to_string(control.integer);
    case Look::Field:
    case Look::List:
    case Look::Info: return control.shown();
    default: return {};
  }
}

}  // namespace

PanelWindow::PanelWindow(WindowsFront& front, Panel& panel) : front_(front), panel_(&panel) {
  registerPanelClass(&PanelWindow::procedure);
  registerDrawingClass();
  title_ = panel.title.read();
  const SIZE size = outerSize(panel.width, panel.height);
  CreateWindowExW(WS_EX_CONTROLPARENT, kPanelClass, wide(title_).c_str(), frameStyle(panel), panel.x, panel.y, size.cx,
                  size.cy, nullptr, nullptr, GetModuleHandleW(nullptr), this);
  makeParts();
  sync();
  ShowWindow(handle_, SW_SHOW);
  isReady_ = true;
}

PanelWindow::~PanelWindow() {
  panel_ = nullptr;
  DestroyWindow(handle_);
}

SIZE PanelWindow::outerSize(int width, int height) const {
  RECT area{0, 0, width, height};
  AdjustWindowRectEx(&area, frameStyle(*panel_), FALSE, WS_EX_CONTROLPARENT);
  return {area.right - area.left, area.bottom - area.top};
}

PanelPart* PanelWindow::part(const Control& control, PartRole role) {
  for (const auto& part : parts_) {
    if (part->control == &control && part->role == role) return part.get();
  }
  return nullptr;
}

PanelPart* PanelWindow::partOf(HWND window) const {
  for (const auto& part : parts_) {
    if (part->handle == window) return part.get();
  }
  return nullptr;
}

// ---------------------------------------------------------------------------------------------------------------------
// Making

void PanelWindow::makePart(Control& control, PartRole role, const wchar_t* windowClass, DWORD style) {
  PanelPart& part = *parts_.emplace_back(std::make_unique<PanelPart>());
  part.window = this;
  part.control = &control;
  part.role = role;
  part.handle = CreateWindowExW(0, windowClass, L"", WS_CHILD | style, 0, 0, 0, 0, handle_,
                                reinterpret_cast<HMENU>(kFirstPart + static_cast<INT_PTR>(parts_.size())),
                                GetModuleHandleW(nullptr), nullptr);
  equip(part);
}

void PanelWindow::makeParts() {
  for (const auto& control : panel_->controls) {
    const NativeKind& kind = nativeKind(control->kind->kind);
    if (!control->isAlive || kind.windowClass == nullptr) continue;
    if (!control->kind->labelInside) makePart(*control, PartRole::Label, L"STATIC", SS_OWNERDRAW);
    makePart(*control, PartRole::Main, kind.windowClass, kind.style);
    if (kind.hasSlider) makePart(*control, PartRole::Slider, L"STATIC", SS_OWNERDRAW | SS_NOTIFY);
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Following the record

void PanelWindow::wantSync() {
  if (panel_ == nullptr || isSyncWaiting_) return;
  isSyncWaiting_ = PostMessageW(handle_, kMessageSync, 0, 0) != FALSE;
}

void PanelWindow::wantPaint(const Control& control) {
  if (const PanelPart* const area = part(control)) InvalidateRect(area->handle, nullptr, FALSE);
}

void PanelWindow::bringToFront() const {
  ShowWindow(handle_, IsIconic(handle_) != FALSE ? SW_RESTORE : SW_SHOW);
  SetForegroundWindow(handle_);
}

void PanelWindow::leave() {
  panel_ = nullptr;
  ShowWindow(handle_, SW_HIDE);
}

void PanelWindow::sync() {
  isSyncWaiting_ = false;
  if (panel_ == nullptr || isSyncing_) return;
  isSyncing_ = true;
  syncFrame();
  for (const auto& part : parts_) syncPart(*part);
  isSyncing_ = false;
}

void PanelWindow::syncFrame() {
  if (std::string title = panel_->title.read(); title != title_) {
    title_ = std::move(title);
    SetWindowTextW(handle_, wide(title_).c_str());
  }
  RECT area{};
  GetClientRect(handle_, &area);
  if (area.right != panel_->width || area.bottom != panel_->height) {
    const SIZE size = outerSize(panel_->width, panel_->height);
    SetWindowPos(handle_, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
  std::string borders;
  for (const auto& control : panel_->controls) {
    if (control->is(ControlKind::Border) && isVisible(*control)) borders += placeText(control->hot());
  }
  if (borders != borders_) {
    borders_ = std::move(borders);
    InvalidateRect(handle_, nullptr, TRUE);
  }
}

void PanelWindow::syncPart(PanelPart& part) {
  const Rectangle place = placeOf(part);
  const bool isShown = part.control->isAlive && isVisible(*part.control) && !place.isEmpty();
  if (isShown) {
    if (std::string content = contentOf(part); content != part.content) showContent(part, content);
    if (part.look() != Look::Drawing && part.control->wantsPaint) panels().paint(*part.control);
  }
  const bool isMoved = isShown && (!part.place || !same(*part.place, place));
  if (!isMoved && isShown == part.isShown) return;
  UINT how = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS;
  if (isShown != part.isShown) how |= isShown ? SWP_SHOWWINDOW : SWP_HIDEWINDOW;
  if (!isMoved) how |= SWP_NOMOVE | SWP_NOSIZE;
  // Of a list the height is that of the open menu; the closed one keeps the height of its field.
  const bool isList = part.role == PartRole::Main && part.look() == Look::List;
  const int height = place.height + (isList ? kDroppedRows * kDroppedRowHeight : 0);
  SetWindowPos(part.handle, nullptr, place.x, place.y, place.width, height, how);
  if (isMoved) part.place = place;
  part.isShown = isShown;
}

void PanelWindow::showContent(PanelPart& part, const std::string& content) {
  part.content = content;
  if (part.role == PartRole::Main && part.look() == Look::Field) SetWindowTextW(part.handle, wide(content).c_str());
  if (part.role == PartRole::Main && part.look() == Look::Tabs) fillTabs(part);
  InvalidateRect(part.handle, nullptr, TRUE);
}

}  // namespace standin
