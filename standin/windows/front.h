// Shows every open panel of the session as a real window, and runs the messages that a person's hands make.
//
// Make it after the host whose session it is to show: a new session knows no front.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "standin/panels/panel.h"
#include "standin/windows/panel_window.h"

namespace standin {

class WindowsFront : public PanelListener {
 public:
  WindowsFront();
  ~WindowsFront() override;

  // The window of an open panel; null when it has none.
  PanelWindow* windowOf(const Panel& panel) const;

  // Handles the messages that wait; false when there was none.
  bool pump();
  // Handles messages until none has come for a moment.
  void settle();
  // Handles messages until `isOver` says so.
  void runUntil(const std::function<bool()>& isOver);

  // What a person tried in vain, in order.
  const std::vector<std::string>& refusals() const { return refusals_; }
  void refused(std::string why) { refusals_.push_back(std::move(why)); }

  // Paints an "OpenGLControl" now.
  void paint(Control& control);

  void opened(Panel& panel) override;
  void closed(Panel& panel) override;
  void destroyed(Panel& panel) override;
  void resized(Panel& panel) override;
  void cameToFront(Panel& panel) override;
  void drawn(Panel& panel, int mode) override;
  void drawn(Control& control, int mode) override;
  void changed(Control& control) override;
  void withContext(Control& control, const std::function<void()>& call) override;

 private:
  GlArea* areaOf(Control& control) const;
  void leave(const Panel& panel);

  std::vector<std::unique_ptr<PanelWindow>> windows_;
  std::vector<std::unique_ptr<PanelWindow>> left_;  // of closed panels; a message of theirs may be on the stack
  std::vector<std::string> refusals_;
  int depth_ = 0;  // message loops within each other
  bool isPainting_ = false;
};

}  // namespace standin
