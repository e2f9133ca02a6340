#include "probe/panel_trial.h"

#include <algorithm>

#include "host/gl_calls.h"
#include "host/lwtool2_errors.h"
#include "host/platform.h"
#include "probe/panel_access.h"
#include "probe/panel_paint.h"
#include "probe/trouble.h"
#include "probe/whole_tables.h"

namespace probe {
namespace {

constexpr int kPopupWidth = 120;
constexpr std::size_t kMostCalls = 20000;

void* currentContext() {
  const GlCalls* const gl = platform::glCalls();
  return gl == nullptr ? nullptr : gl->currentContext();
}

// Without it some kinds do not bear opening, so a set that was dropped is made once more.
void setUserData(lw::LWControl* control, void* user) {
  lw::LWValue value;
  value.ptr = {lw::kValuePointer, nullptr};
  setPointer(control, lw::kControlUserData, user);
  control->get(control, lw::kControlUserData, &value);
  if (value.ptr.ptr != user) setPointer(control, lw::kControlUserData, user);
}

}  // namespace

const char* kEntryNames[kEntries + 1] = {"First", "Second", "Third", nullptr};

CTrialPanel::CTrialPanel(lw::LWPanelFuncs& panels, const char* title)
    : panels_(panels), panel_(panels.create(title, &panels)) {
  if (panel_ == nullptr) throw Trouble{"the host makes no panel"};
  installHooks();
}

CTrialPanel::~CTrialPanel() {
  if (panel_ == nullptr) return;
  closeIfOpen();
  // A host may refuse to close. Where its hook told nothing, the panel may be open still, and must not be destroyed so.
  if (!isCloseTold_) close();
  panels_.destroy(panel_);
}

void CTrialPanel::setHook(lw::PanelAttribute attribute, void* pointer) const { panels_.set(panel_, attribute, pointer); }

void CTrialPanel::installHooks() {
  setHook(lw::kPanelUserData, this);
  setHook(lw::kPanelOpenHook, reinterpret_cast<void*>(&CTrialPanel::onOpen));
  setHook(lw::kPanelCloseHook, reinterpret_cast<void*>(&CTrialPanel::onClose));
  setHook(lw::kPanelResizeHook, reinterpret_cast<void*>(&CTrialPanel::onResize));
  setHook(lw::kPanelMouseButtonHook, reinterpret_cast<void*>(&CTrialPanel::onButton));
  setHook(lw::kPanelMouseMoveHook, reinterpret_cast<void*>(&CTrialPanel::onMotion));
  setHook(lw::kPanelMouseWheelHook, reinterpret_cast<void*>(&CTrialPanel::onWheel));
}

void CTrialPanel::dropMouseHooks() const {
  setHook(lw::kPanelMouseButtonHook, nullptr);
  setHook(lw::kPanelMouseMoveHook, nullptr);
}

// ---------------------------------------------------------------------------------------------------------------------
// Controls

lw::LWControl* CTrialPanel::add(const char* kind, lw::LWPanControlDesc what, const char* label, Reads reads, Where where) {
  lw::LWControl* const control = panels_.addControl(panel_, kind, &what, label);
  if (control == nullptr) throw Trouble{"the host makes no " + std::string(kind)};
  if (!isWhole(*control)) throw Trouble{"a function is missing in the host's " + std::string(kind)};
  setUserData(control, this);
  setCallback(control, lw::kControlEventCallback, &CTrialPanel::onEvent);
  if (where == Where::Below || rows_.empty()) rows_.emplace_back();
  rows_.back().push_back(control);
  fields_.push_back({control, reads});
  return control;
}

void CTrialPanel::addLines(const char** lines) {
  lw::LWPanControlDesc what = description(lw::kValueText);
  what.text.text = lines;
  add("TextControl", what, "");
}

lw::LWControl* CTrialPanel::addChoice(const char* kind, const char** items, const char* label) {
  lw::LWPanControlDesc what = description(lw::kValueChoice);
  what.choice.items = items;
  return add(kind, what, label, Reads::Integer);
}

lw::LWControl* CTrialPanel::addCustomPopup(const char* label, bool isLogged) {
  lw::LWPanControlDesc what = description(lw::kValuePopup);
  what.popup.width = kPopupWidth;
  what.popup.countFn = isLogged ? &CTrialPanel::count : [](void*) { return kEntries; };
  what.popup.nameFn = isLogged ? &CTrialPanel::name : [](void*, int index) -> const char* {
    return index >= 0 && index < kEntries ? kEntryNames[index] : "";
  };
  return add("CustomPopupControl", what, label, Reads::Integer);
}

lw::LWControl* CTrialPanel::addRange(const char* kind, const char* label, int greatest, Reads reads) {
  lw::LWPanControlDesc what = description(lw::kValueRange);
  what.range = {lw::kValueRange, 0, 0, greatest};
  return add(kind, what, label, reads);
}

lw::LWControl* CTrialPanel::addArea(int width, int height) {
  lw::LWPanControlDesc what = description(lw::kValueArea);
  what.area = {lw::kValueArea, width, height};
  area_ = add("OpenGLControl", what, "");
  setCallback(area_, lw::kControlDrawCallback, &CTrialPanel::onDraw);
  return area_;
}

void CTrialPanel::addButton(const char* label, std::function<void()> pressed, Where where) {
  lw::LWControl* const button = add("ButtonControl", description(lw::kValueInteger), label, Reads::Nothing, where);
  buttons_.push_back({button, std::move(pressed)});
}

void CTrialPanel::layOut() const { probe::layOut(panels_, panel_, rows_); }

// ---------------------------------------------------------------------------------------------------------------------
// The panel

template <class Action>
void CTrialPanel::doWithin(Within within, Action&& action) {
  const Within before = std::exchange(within_, within);
  action();
  within_ = before;
}

int CTrialPanel::open(int flags) {
  mayBeOpen_ = true;
  isCloseTold_ = false;
  int answer = 0;
  doWithin(Within::Open, [&] { answer = panels_.open(panel_, flags); });
  return answer;
}

void CTrialPanel::close() {
  doWithin(Within::Close, [&] { panels_.close(panel_); });
  mayBeOpen_ = false;
}

void CTrialPanel::closeIfOpen() {
  if (mayBeOpen_) close();
}

int CTrialPanel::measure(lw::PanelAttribute attribute) const {
  int number = 0;
  panels_.get(panel_, attribute, &number);
  return number;
}

void CTrialPanel::setWidth(int width) {
  doWithin(Within::SetWidth, [&] { panels_.set(panel_, lw::kPanelWidth, &width); });
}

MouseTold CTrialPanel::mouse() const {
  MouseTold told;
  told.panelX = measure(lw::kPanelMouseX);
  told.panelY = measure(lw::kPanelMouseY);
  told.qualifiers = measure(lw::kPanelQualifiers);
  if (area_ == nullptr) return told;
  told.controlX = integerOf(area_, lw::kControlMouseX);
  told.controlY = integerOf(area_, lw::kControlMouseY);
  told.clicks = integerOf(area_, lw::kControlClickCount);
  return told;
}

void CTrialPanel::paint() const {
  paintHalves(integerOf(area_, lw::kControlHotWidth), integerOf(area_, lw::kControlHotHeight));
}

// ---------------------------------------------------------------------------------------------------------------------
// What the host calls

// A host that calls without end must not fill the memory: what comes after the most is noted over the last.
Called& CTrialPanel::note(Call call) {
  if (log_.size() == kMostCalls) log_.pop_back();
  Called& called = log_.emplace_back();
  called.call = call;
  called.within = within_;
  called.context = currentContext();
  return called;
}

// The host may call back while it is asked something, and the log grow meanwhile: an entry is found by its place then.
template <class Member, class Ask>
void CTrialPanel::noteAnswer(Member Called::*member, Ask&& ask) {
  const std::size_t place = log_.size() - 1;
  const Member answer = ask();
  log_[place].*member = answer;
}

void CTrialPanel::noteHook(Call call, int bits, int x, int y) {
  Called& called = note(call);
  called.bits = bits;
  called.x = x;
  called.y = y;
  noteAnswer(&Called::mouse, [this] { return mouse(); });
  const bool isDown = (bits & lw::kMouseDown) != 0;
  if (call != Call::WheelHook && !isDown && released_) released_();
}

void CTrialPanel::event(lw::LWControl* control) {
  const auto pressed = std::find_if(buttons_.begin(), buttons_.end(), [&](const Button& b) { return b.control == control; });
  if (pressed != buttons_.end()) {
    // A host may tell of one press twice, and leave a panel on the screen that it was to close.
    if (mayBeOpen_) pressed->pressed();
    return;
  }
  note(Call::Event).control = control;
  if (control == area_) {
    noteAnswer(&Called::mouse, [this] { return mouse(); });
    return paint();
  }
  for (const Field& field : fields_) {
    if (field.control != control || field.reads == Reads::Nothing) continue;
    noteAnswer(&Called::value, [&] { return field.reads == Reads::Integer ? integerOf(control) : realOf(control); });
  }
}

// Nothing once the module ends: what a panel would ask the host then must not be asked.
template <class Action>
void CTrialPanel::onPanel(void* user, Action&& action) {
  lw::onTool<CTrialPanel>(user, [&](CTrialPanel& panel) {
    if (panel.panel_ != nullptr) action(panel);
  });
}

void CTrialPanel::onOpen(lw::PanelId /*panel*/, void* user) {
  onPanel(user, [](CTrialPanel& panel) {
    panel.note(Call::Opened);
    if (panel.within_ == Within::Open && panel.opening_) panel.opening_();
  });
}

void CTrialPanel::onClose(lw::PanelId /*panel*/, void* user) {
  onPanel(user, [](CTrialPanel& panel) {
    panel.note(Call::Closed);
    panel.isCloseTold_ = true;
    if (panel.within_ == Within::Close || !panel.mayBeOpen_) return;
    panel.mayBeOpen_ = false;
    if (panel.usersClosing_) panel.usersClosing_();
  });
}

void CTrialPanel::onResize(lw::PanelId /*panel*/, void* user, int width, int height) {
  onPanel(user, [&](CTrialPanel& panel) {
    Called& called = panel.note(Call::Resized);
    called.x = width;
    called.y = height;
  });
}

void CTrialPanel::onButton(lw::PanelId /*panel*/, void* user, int bits, int x, int y) {
  onPanel(user, [&](CTrialPanel& panel) { panel.noteHook(Call::ButtonHook, bits, x, y); });
}

void CTrialPanel::onMotion(lw::PanelId /*panel*/, void* user, int bits, int x, int y) {
  onPanel(user, [&](CTrialPanel& panel) { panel.noteHook(Call::MotionHook, bits, x, y); });
}

void CTrialPanel::onWheel(lw::PanelId /*panel*/, void* user, int bits, int x, int y) {
  onPanel(user, [&](CTrialPanel& panel) { panel.noteHook(Call::WheelHook, bits, x, y); });
}

void CTrialPanel::onEvent(lw::LWControl* control, void* user) {
  onPanel(user, [&](CTrialPanel& panel) { panel.event(control); });
}

void CTrialPanel::onDraw(lw::LWControl* control, void* user, int /*mode*/) {
  onPanel(user, [&](CTrialPanel& panel) {
    panel.note(Call::Draw).control = control;
    panel.paint();
  });
}

int CTrialPanel::count(void* user) {
  onPanel(user, [](CTrialPanel& panel) { panel.note(Call::PopupCount); });
  return kEntries;
}

const char* CTrialPanel::name(void* user, int index) {
  onPanel(user, [&](CTrialPanel& panel) { panel.note(Call::PopupName).x = index; });
  return index >= 0 && index < kEntries ? kEntryNames[index] : "";
}

}  // namespace probe
