// One open panel of the stand-in as a real window, made of the system's own controls.
//
// The window shows what the panel's record holds: whoever changes the record calls wantSync(), and the window follows with
// the next message. What a person does in the window goes through standin/panels/person.h, so that one rule stands in one
// place.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "standin/panels/person.h"
#include "standin/windows/gl_area.h"
#include "standin/windows/native_kinds.h"
#include "standin/windows/system.h"

namespace standin {

class PanelWindow;
class WindowsFront;

enum class PartRole { Label, Main, Slider };

// One window of a control: its label, the control itself, or the slider beside its field.
struct PanelPart {
  PanelWindow* window = nullptr;
  Control* control = nullptr;
  PartRole role = PartRole::Main;
  HWND handle = nullptr;

  // As it was shown last.
  std::optional<Rectangle> place;
  bool isShown = false;
  std::string content;  // all that the part draws, as one text; of a field: its text

  bool isChoiceWaiting = false;
  // A drag of the slider: where it began, and with which shown value.
  bool isDragged = false;
  int dragStart = 0;
  double dragFrom = 0;

  std::unique_ptr<GlArea> area;

  Look look() const { return nativeKind(control->kind->kind).look; }
};

class PanelWindow {
 public:
  // Makes and shows the window. The front outlives it.
  PanelWindow(WindowsFront& front, Panel& panel);
  ~PanelWindow();
  PanelWindow(const PanelWindow&) = delete;
  PanelWindow& operator=(const PanelWindow&) = delete;

  HWND handle() const { return handle_; }
  // Null once the panel is closed.
  Panel* panel() const { return panel_; }
  // Null for a control that has no such part.
  PanelPart* part(const Control& control, PartRole role = PartRole::Main);

  // Lets the window follow the record soon.
  void wantSync();
  // Paints an "OpenGLControl" anew, soon.
  void wantPaint(const Control& control);
  void bringToFront() const;
  // The panel is closed: hides the window and forgets the panel.
  void leave();

  // For the windows of the parts.
  void commitField(PanelPart& part);
  void drag(PanelPart& slider, int x);
  void paintArea(PanelPart& part);
  // x and y from the panel's corner.
  void mouse(UINT message, WPARAM wide, int x, int y);
  void wheel(WPARAM wide, LPARAM place);

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wide, LPARAM place);
  std::optional<LRESULT> received(UINT message, WPARAM wide, LPARAM place);
  std::optional<LRESULT> receivedFromParts(UINT message, WPARAM wide, LPARAM place);
  void command(int id, int code, HWND from);
  void notified(const NMHDR& note);
  void partCommand(PanelPart& part, int code);
  void openMenu(PanelPart& part);
  void chosen(PanelPart& part);
  void drawPart(const DRAWITEMSTRUCT& item);
  void paint();
  void sized(int width, int height);
  void moved();
  void limits(MINMAXINFO& out) const;
  void close();
  void revertField(HWND field);

  void makeParts();
  void makePart(Control& control, PartRole role, const wchar_t* windowClass, DWORD style);
  void sync();
  void syncFrame();
  void syncPart(PanelPart& part);
  void showContent(PanelPart& part, const std::string& content);
  SIZE outerSize(int width, int height) const;
  PanelPart* partOf(HWND window) const;
  void report(const Done& done);

  WindowsFront& front_;
  Panel* panel_;
  HWND handle_ = nullptr;
  std::vector<std::unique_ptr<PanelPart>> parts_;
  std::string title_;
  std::string borders_;  // where the borders were painted
  int wheelRest_ = 0;
  bool isReady_ = false;
  bool isSyncing_ = false;
  bool isSyncWaiting_ = false;
};

}  // namespace standin
