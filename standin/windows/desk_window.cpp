#include "standin/windows/desk_window.h"

#include <commdlg.h>

#include <algorithm>
#include <array>

#include "standin/core/wide_text.h"
#include "standin/core/witness.h"
#include "standin/panels/metrics.h"
#include "standin/windows/messages.h"
#include "standin/windows/painting.h"
#include "standin/windows/theme.h"

namespace standin {
namespace {

constexpr wchar_t kDeskClass[] = L"VarnelDesk";
constexpr int kFirstTool = 0x200;
constexpr int kGap = 8;
constexpr int kListWidth = 220;
constexpr int kListHeight = 340;
constexpr int kButtonWidth = 190;
constexpr int kButtonHeight = 22;
constexpr int kHead = kGap + 18;  // below the headings
constexpr int kRow = 16;
constexpr int kStatusHeight = 20;
constexpr int kToolsLeft = 3 * kGap + 2 * kListWidth;
constexpr int kWidth = kToolsLeft + kButtonWidth + kGap;
constexpr int kHeight = kHead + kListHeight + kGap + kStatusHeight;
constexpr DWORD kFrame = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN;

constexpr DWORD kListStyle =
    LBS_NOTIFY | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_TABSTOP;
constexpr DWORD kButtonStyle = BS_OWNERDRAW | WS_TABSTOP;

struct DeskButton {
  DeskPart part;
  const char* text;
};
constexpr std::array kDeskButtons{
    DeskButton{DeskPart::Undo, "Undo"},
    DeskButton{DeskPart::Redo, "Redo"},
    DeskButton{DeskPart::Save, "Save"},
    DeskButton{DeskPart::SaveAs, "Save as..."},
};

int idOf(DeskPart part) { return kFirstPart + static_cast<int>(part); }

std::string fourCharacters(std::uint32_t type) {
  std::string text;
  for (int shift = 24; shift >= 0; shift -= 8) text += static_cast<char>(type >> shift & 0xFFU);
  return text;
}

std::string rowText(const MeshPolygon& polygon) {
  const std::string name = polygon.isSkelegon() ? polygon.tag(lw::kTagBone) : std::string();
  if (!name.empty()) return name;
  return "(" + fourCharacters(polygon.type) + ", " + std::to_string(polygon.points.size()) + " points)";
}

std::string textOfItem(const DRAWITEMSTRUCT& item) {
  std::wstring text(static_cast<std::size_t>(SendMessageW(item.hwndItem, LB_GETTEXTLEN, item.itemID, 0)) + 1, L'\0');
  SendMessageW(item.hwndItem, LB_GETTEXT, item.itemID, reinterpret_cast<LPARAM>(text.data()));
  text.pop_back();
  return utf8(text);
}

std::string captionOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return utf8(text);
}

void fillList(HWND list, const std::vector<std::string>& texts) {
  SendMessageW(list, WM_SETREDRAW, FALSE, 0);
  SendMessageW(list, LB_RESETCONTENT, 0, 0);
  for (const std::string& text : texts) SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide(text).c_str()));
  SendMessageW(list, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(list, nullptr, TRUE);
}

bool isPicked(HWND list, std::size_t index) { return SendMessageW(list, LB_GETSEL, index, 0) > 0; }

void pick(HWND list, std::size_t index, bool picked) {
  if (isPicked(list, index) != picked) SendMessageW(list, LB_SETSEL, picked ? TRUE : FALSE, static_cast<LPARAM>(index));
}

std::string askForPath(HWND owner) {
  std::array<wchar_t, 4096> path{};
  OPENFILENAMEW wanted{};
  wanted.lStructSize = sizeof wanted;
  wanted.hwndOwner = owner;
  wanted.lpstrFilter = L"Object files\0*.lwo\0All files\0*.*\0";
  wanted.lpstrDefExt = L"lwo";
  wanted.lpstrFile = path.data();
  wanted.nMaxFile = static_cast<DWORD>(path.size());
  wanted.Flags = OFN_OVERWRITEPROMPT | OFN_NOCHANGEDIR;
  return GetSaveFileNameW(&wanted) != FALSE ? utf8(path.data()) : std::string();
}

void registerDeskClass(WNDPROC procedure) {
  static const bool done = [procedure] {
    WNDCLASSW kind{};
    kind.lpfnWndProc = procedure;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    kind.hbrBackground = brush(Tone::Panel);
    kind.lpszClassName = kDeskClass;
    return RegisterClassW(&kind) != 0;
  }();
  static_cast<void>(done);
}

}  // namespace

DeskWindow::DeskWindow(ModelerHost& host, ModuleFile& module, WindowsFront& front)
    : host_(host), module_(module), front_(front) {
  ask = [this](const std::string& text, UINT kind) { return MessageBoxW(handle_, wide(text).c_str(), L"Varnel", kind); };
  askPath = [this] { return askForPath(handle_); };
  host_.showMessagesTo([this](const Message& message) { return answered(message); });
  registerDeskClass(&DeskWindow::procedure);
  RECT frame{0, 0, kWidth, kHeight};
  AdjustWindowRectEx(&frame, kFrame, FALSE, WS_EX_CONTROLPARENT);
  CreateWindowExW(WS_EX_CONTROLPARENT, kDeskClass, L"Varnel", kFrame, 20, 20, frame.right - frame.left,
                  frame.bottom - frame.top, nullptr, nullptr, GetModuleHandleW(nullptr), this);
  saved_ = written();
  makeParts();
  makeTools();
  refresh();
  ShowWindow(handle_, SW_SHOW);
}

DeskWindow::~DeskWindow() {
  host_.showMessagesTo(nullptr);
  DestroyWindow(handle_);
}

HWND DeskWindow::part(DeskPart part) const { return GetDlgItem(handle_, idOf(part)); }

HWND DeskWindow::toolButton(std::string_view server) const {
  const auto found = std::find(tools_.begin(), tools_.end(), server);
  return found == tools_.end() ? nullptr : GetDlgItem(handle_, kFirstTool + static_cast<int>(found - tools_.begin()));
}

// ---------------------------------------------------------------------------------------------------------------------
// Making

HWND DeskWindow::make(const wchar_t* windowClass, const std::string& text, DWORD style, const RECT& place, int id) const {
  HWND const window = CreateWindowExW(0, windowClass, wide(text).c_str(), WS_CHILD | WS_VISIBLE | style, place.left,
                                      place.top, place.right - place.left, place.bottom - place.top, handle_,
                                      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
  SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(panelFont()), 0);
  return window;
}

void DeskWindow::makeParts() {
  const auto column = [](int left) { return RECT{left, kHead, left + kListWidth, kHead + kListHeight}; };
  const auto heading = [](int left) { return RECT{left, kGap, left + kListWidth, kHead}; };
  const int second = 2 * kGap + kListWidth;
  make(L"STATIC", "Layers (ticked: foreground)", 0, heading(kGap), -1);
  make(L"STATIC", "Polygons (marked: selected)", 0, heading(second), -1);
  make(L"STATIC", "Tools", 0, heading(kToolsLeft), -1);
  make(L"LISTBOX", "", kListStyle | LBS_MULTIPLESEL, column(kGap), idOf(DeskPart::Layers));
  make(L"LISTBOX", "", kListStyle | LBS_EXTENDEDSEL, column(second), idOf(DeskPart::Polygons));
  int y = kHead + kListHeight - static_cast<int>(kDeskButtons.size()) * (kButtonHeight + 4);
  for (const DeskButton& button : kDeskButtons) {
    y += 4;
    make(L"BUTTON", button.text, kButtonStyle, {kToolsLeft, y, kToolsLeft + kButtonWidth, y + kButtonHeight},
         idOf(button.part));
    y += kButtonHeight;
  }
  const int top = kHead + kListHeight + kGap;
  make(L"STATIC", "", SS_NOPREFIX, {kGap, top, kWidth - kGap, top + kStatusHeight}, idOf(DeskPart::Status));
}

void DeskWindow::makeTools() {
  int y = kHead;
  for (const lw::ServerRecord& server : module_.servers()) {
    if (std::string_view(server.className) != "CommandSequence") continue;
    const int id = kFirstTool + static_cast<int>(tools_.size());
    tools_.emplace_back(server.name);
    make(L"BUTTON", server.name, kButtonStyle, {kToolsLeft, y, kToolsLeft + kButtonWidth, y + kButtonHeight}, id);
    y += kButtonHeight + 4;
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Following the object

std::string DeskWindow::written() const {
  if (host_.current() == nullptr) return {};
  const auto bytes = serializeObject(host_.current()->toFile());
  return bytes ? *bytes : std::string();
}

bool DeskWindow::isChanged() const { return written() != saved_; }

std::vector<DeskWindow::Row> DeskWindow::foregroundRows() const {
  if (host_.current() == nullptr) return {};
  std::vector<const MeshLayer*> layers;
  for (const MeshLayer& layer : host_.current()->layers()) {
    if (layer.foreground) layers.push_back(&layer);
  }
  std::vector<Row> rows;
  for (const MeshPolygon* polygon : host_.current()->scan(layers)) rows.push_back({polygon, rowText(*polygon)});
  // A body has many faces, and the tools are for skelegons.
  std::stable_partition(rows.begin(), rows.end(), [](const Row& row) { return row.polygon->type == lw::kTypeBone; });
  return rows;
}

const std::vector<MeshLayer>& DeskWindow::layers() const {
  static const std::vector<MeshLayer> none;
  return host_.current() == nullptr ? none : host_.current()->layers();
}

void DeskWindow::refreshLayers() {
  std::vector<std::string> texts;
  for (const MeshLayer& layer : layers()) {
    texts.push_back(std::to_string(layer.number + 1) + (layer.name.empty() ? "" : "  " + layer.name));
  }
  HWND const list = part(DeskPart::Layers);
  if (texts != layerTexts_) {
    layerTexts_ = std::move(texts);
    fillList(list, layerTexts_);
  }
  for (std::size_t i = 0; i < layers().size(); ++i) pick(list, i, layers()[i].foreground);
}

void DeskWindow::refreshPolygons() {
  HWND const list = part(DeskPart::Polygons);
  if (std::vector<Row> rows = foregroundRows(); rows != rows_) {
    rows_ = std::move(rows);
    std::vector<std::string> texts;
    for (const Row& row : rows_) texts.push_back(row.text);
    fillList(list, texts);
  }
  for (std::size_t i = 0; i < rows_.size(); ++i) pick(list, i, rows_[i].polygon->selected);
}

void DeskWindow::refresh() {
  refreshLayers();
  refreshPolygons();
  const std::string title =
      host_.current() == nullptr ? "Varnel" : host_.current()->name() + (isChanged() ? " * - Varnel" : " - Varnel");
  if (title != captionOf(handle_)) SetWindowTextW(handle_, wide(title).c_str());
  if (front_.refusals().size() > refusalsSaid_) say(front_.refusals().back());
  refusalsSaid_ = front_.refusals().size();
  const std::vector<Fault>& faults = witness().faults();
  if (faults.size() > faultsSaid_) say("Fault in " + faults.back().function + ": " + faults.back().what);
  faultsSaid_ = faults.size();
}

void DeskWindow::say(const std::string& text) {
  if (text == status_) return;
  status_ = text;
  SetWindowTextW(part(DeskPart::Status), wide(text).c_str());
}

// ---------------------------------------------------------------------------------------------------------------------
// What the person does

LRESULT CALLBACK DeskWindow::procedure(HWND window, UINT message, WPARAM wide, LPARAM place) {
  if (message == WM_NCCREATE) {
    auto* const made = static_cast<DeskWindow*>(reinterpret_cast<CREATESTRUCTW*>(place)->lpCreateParams);
    made->handle_ = window;
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made));
  }
  auto* const self = reinterpret_cast<DeskWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self != nullptr) {
    if (const auto result = self->received(message, wide, place)) return *result;
  }
  return DefWindowProcW(window, message, wide, place);
}

std::optional<LRESULT> DeskWindow::received(UINT message, WPARAM wide, LPARAM place) {
  switch (message) {
    case WM_COMMAND: command(LOWORD(wide), HIWORD(wide)); return 0;
    case WM_CLOSE: close(); return 0;
    case WM_DRAWITEM: draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(place)); return TRUE;
    case WM_MEASUREITEM: reinterpret_cast<MEASUREITEMSTRUCT*>(place)->itemHeight = kRow; return TRUE;
    case WM_CTLCOLORLISTBOX: return reinterpret_cast<LRESULT>(brush(Tone::Field));
    case WM_CTLCOLORSTATIC:
      SetTextColor(reinterpret_cast<HDC>(wide), colour(Tone::Text));
      SetBkColor(reinterpret_cast<HDC>(wide), colour(Tone::Panel));
      return reinterpret_cast<LRESULT>(brush(Tone::Panel));
    default: return std::nullopt;
  }
}

void DeskWindow::command(int id, int code) {
  const int tool = id - kFirstTool;
  if (tool >= 0 && std::cmp_less(tool, tools_.size())) return runTool(tools_[static_cast<std::size_t>(tool)]);
  switch (static_cast<DeskPart>(id - kFirstPart)) {
    case DeskPart::Layers:
      if (code == LBN_SELCHANGE) layersTicked();
      break;
    case DeskPart::Polygons:
      if (code == LBN_SELCHANGE) polygonsPicked();
      break;
    case DeskPart::Undo: say(host_.undo() ? "Undone" : "There is nothing to undo"); break;
    case DeskPart::Redo: say(host_.redo() ? "Done again" : "There is nothing to do again"); break;
    case DeskPart::Save: save(false); break;
    case DeskPart::SaveAs: save(true); break;
    default: break;
  }
}

void DeskWindow::runTool(const std::string& server) {
  const std::optional<int> result = host_.activate(module_, server);
  if (result != 0) say(server + " ended with " + (result ? std::to_string(*result) : "an exception"));
}

void DeskWindow::layersTicked() {
  std::vector<int> foreground;
  for (std::size_t i = 0; i < layers().size(); ++i) {
    if (isPicked(part(DeskPart::Layers), i)) foreground.push_back(layers()[i].number);
  }
  host_.showLayers(foreground);
}

void DeskWindow::polygonsPicked() {
  std::vector<const MeshPolygon*> picked;
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    if (isPicked(part(DeskPart::Polygons), i)) picked.push_back(rows_[i].polygon);
  }
  host_.selectPolygons(picked);
}

bool DeskWindow::save(bool underNewName) {
  if (host_.current() == nullptr) {
    say("There is no object");
    return false;
  }
  const std::string path = underNewName ? askPath() : std::string();
  if (underNewName && path.empty()) return false;
  const std::optional<Failure> failure = underNewName ? host_.saveAs(path) : host_.save();
  if (failure) {
    say(failure->text);
    return false;
  }
  saved_ = written();
  say("Saved " + host_.current()->name());
  return true;
}

void DeskWindow::close() {
  if (host_.current() != nullptr && isChanged()) {
    const int answer = ask("Save the changes to " + host_.current()->name() + "?", MB_YESNOCANCEL | MB_ICONQUESTION);
    if (answer == IDCANCEL || (answer == IDYES && !save(false))) return;
  }
  isOver_ = true;
}

Answer DeskWindow::answered(const Message& message) const {
  const std::string text = message.first + (message.second.empty() ? "" : "\n" + message.second);
  const UINT box = message.kind == MessageKind::Error ? MB_OK | MB_ICONERROR : MB_YESNO;
  return ask(text, box) == IDYES ? Answer::Yes : Answer::No;
}

void DeskWindow::draw(const DRAWITEMSTRUCT& item) const {
  const bool isOn = (item.itemState & ODS_SELECTED) != 0;
  if (item.CtlType == ODT_BUTTON) {
    const PartState state{.isPressed = isOn, .hasFocus = (item.itemState & ODS_FOCUS) != 0};
    return drawButton(item.hDC, item.rcItem, captionOf(item.hwndItem), state);
  }
  if (item.itemID == static_cast<UINT>(-1)) return;
  const std::string text = textOfItem(item);
  if (item.hwndItem != part(DeskPart::Layers)) return drawItem(item.hDC, item.rcItem, text, isOn);
  drawItem(item.hDC, item.rcItem, "", false);
  drawTick(item.hDC, item.rcItem.left + 2, item.rcItem, isOn, {});
  const RECT rest{item.rcItem.left + kCheckMarkWidth + 4, item.rcItem.top, item.rcItem.right, item.rcItem.bottom};
  drawText(item.hDC, rest, text, colour(Tone::Text));
}

}  // namespace standin
