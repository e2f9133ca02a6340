// A panel of the probe's own: it notes down what the host calls, and otherwise does nothing by itself.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "interface/lightwave.h"
#include "probe/panel_log.h"

namespace probe {

// What to read of a control when its event comes.
enum class Reads { Nothing, Integer, Real };

// Where the user goes from a panel.
struct Ways {
  std::function<void()> done;
  std::function<void()> skip;
  std::function<void()> closed;
};

class CTrialPanel {
 public:
  // The title must live as long as the panel. Throws Trouble when the host makes no panel; so do the functions that add.
  CTrialPanel(lw::LWPanelFuncs& panels, const char* title);
  // Closes and destroys it, unless the host was left with it.
  ~CTrialPanel();
  CTrialPanel(const CTrialPanel&) = delete;
  CTrialPanel& operator=(const CTrialPanel&) = delete;

  // Below the last one, or beside it. Labels and lists must live as long as the panel.
  enum class Where { Below, Beside };
  lw::LWControl* add(const char* kind, lw::LWPanControlDesc what, const char* label, Reads reads = Reads::Nothing,
                     Where where = Where::Below);
  void addLines(const char** lines);
  lw::LWControl* addChoice(const char* kind, const char** items, const char* label);
  // A popup whose functions are noted down, if `isLogged`.
  lw::LWControl* addCustomPopup(const char* label, bool isLogged);
  lw::LWControl* addRange(const char* kind, const char* label, int greatest, Reads reads);
  // One for each panel: of it the mouse is noted down.
  lw::LWControl* addArea(int width, int height);
  void addButton(const char* label, std::function<void()> pressed, Where where = Where::Below);

  // Places what was added and sets the panel's size.
  void layOut() const;
  // Gives what the host answers.
  int open(int flags);
  void close();
  void closeIfOpen();
  // When the user closes it.
  void onUsersClosing(std::function<void()> closed) { usersClosing_ = std::move(closed); }
  // When the open hook comes while open runs.
  void onOpening(std::function<void()> opening) { opening_ = std::move(opening); }
  // The host keeps it: at the end of the module nothing of the host may be called.
  void forget() { panel_ = nullptr; }

  int measure(lw::PanelAttribute attribute) const;
  void setWidth(int width);
  // From now on no hook tells of the mouse.
  void dropMouseHooks() const;
  // Called at each release of a button that a hook tells of.
  void onRelease(std::function<void()> released) { released_ = std::move(released); }

  lw::LWControl* area() const { return area_; }
  MouseTold mouse() const;
  const Log& log() const { return log_; }

 private:
  struct Field {
    lw::LWControl* control;
    Reads reads;
  };
  struct Button {
    lw::LWControl* control;
    std::function<void()> pressed;
  };

  template <class Action>
  void doWithin(Within within, Action&& action);
  void installHooks();
  void setHook(lw::PanelAttribute attribute, void* pointer) const;
  Called& note(Call call);
  template <class Member, class Ask>
  void noteAnswer(Member Called::*member, Ask&& ask);
  void noteHook(Call call, int bits, int x, int y);
  void event(lw::LWControl* control);
  void paint() const;

  template <class Action>
  static void onPanel(void* user, Action&& action);
  static void onOpen(lw::PanelId panel, void* user);
  static void onClose(lw::PanelId panel, void* user);
  static void onResize(lw::PanelId panel, void* user, int width, int height);
  static void onButton(lw::PanelId panel, void* user, int bits, int x, int y);
  static void onMotion(lw::PanelId panel, void* user, int bits, int x, int y);
  static void onWheel(lw::PanelId panel, void* user, int bits, int x, int y);
  static void onEvent(lw::LWControl* control, void* user);
  static void onDraw(lw::LWControl* control, void* user, int mode);
  static int count(void* user);
  static const char* name(void* user, int index);

  lw::LWPanelFuncs& panels_;
  lw::PanelId panel_ = nullptr;
  lw::LWControl* area_ = nullptr;
  std::vector<std::vector<lw::LWControl*>> rows_;
  std::vector<Field> fields_;
  std::vector<Button> buttons_;
  Log log_;
  std::function<void()> opening_;
  std::function<void()> usersClosing_;
  std::function<void()> released_;
  Within within_ = Within::Nothing;
  bool mayBeOpen_ = false;
  bool isCloseTold_ = true;  // by the close hook, since it was opened
};

// The entries of the popups: as many as there are.
inline constexpr int kEntries = 3;
extern const char* kEntryNames[kEntries + 1];

}  // namespace probe
