#include "probe/trial.h"

#include <array>
#include <utility>

#include "probe/ask.h"

namespace probe {
namespace {

constexpr const char* kSkipped = "the user skipped it";
constexpr const char* kClosed = "the user closed the panel";

// All that the trial tells, in the order in which the file tells it.
constexpr std::array kTold{
    "sets",         "open-answer",   "open-hook",   "close-hook",      "panel-size",    "resize-hook",
    "same-choice",  "outside-index", "silent-menu", "popup-functions", "early-drawing", "typing",
    "range",        "range-unit",    "texts",       "cut-texts",       "field-length",  "padding",
    "rows",         "mouse",         "mouse-order", "drag-hook",       "clicks",        "qualifiers",
    "mouse-origin", "wheel",         "painter",     "paint-time",      "context",       "open-resize",
};

}  // namespace

bool CTrial::begin(const Host& host, Facts& facts, std::function<void()> ended) {
  stop();
  hands_ = std::make_unique<Hands>();
  facts_ = &facts;
  ended_ = std::move(ended);
  for (const char* const name : kTold) facts_->tell(name, notTold(kNotReached));
  const std::string trouble = troubleOf([&] {
    panels_ = &host.service<lw::LWPanelFuncs>("LWPanelServices 3");
    panels_->globalFun = host.global;  // the host may give out another table each time
    showFirstPanel();
  });
  if (trouble.empty()) return true;
  stop();
  for (const char* const name : kTold) facts_->tell(name, notTold(trouble));
  return false;
}

void CTrial::showFirstPanel() {
  site_ = std::make_unique<CPanelSite>(
      *panels_, Ways{[this] { guard([this] { panelsDone(); }); }, [this] { guard([this] { skipHands(); }); },
                     [this] { guard([this] { end(kClosed); }); }});
  site_->open();
  askAtOnce(*site_, *facts_);
  facts_->figure("sizes of controls", sizes(*site_));
}

void CTrial::stop() {
  ended_ = nullptr;
  site_.reset();
  hands_.reset();
}

void CTrial::forget() {
  ended_ = nullptr;
  if (site_) site_->panel().forget();
  if (!hands_) return;
  for (Step* const step : {&hands_->mouse, &hands_->fields, &hands_->wheel}) {
    if (step->panel) step->panel->forget();
  }
}

// Trouble in a callback ends the trial: there is nobody else to tell.
void CTrial::guard(const std::function<void()>& action) {
  const std::string trouble = troubleOf(action);
  if (!trouble.empty()) end(trouble);
}

Ways CTrial::waysOf(Step& step, void (CTrial::*done)(bool isSkipped)) {
  return {[this, done] { guard([&] { (this->*done)(false); }); },
          [this, done, &step] {
            step.whyNot = kSkipped;
            guard([&] { (this->*done)(true); });
          },
          [this] { guard([this] { end(kClosed); }); }};
}

void CTrial::leaveFirstPanel() {
  askLater(*site_, *facts_);
  site_->panel().close();
  facts_->tell("close-hook", closeHook(*site_));
}

void CTrial::skipHands() {
  leaveFirstPanel();
  end(kSkipped);
}

void CTrial::panelsDone() {
  leaveFirstPanel();
  openMouseStep(*hands_, *panels_, waysOf(hands_->mouse, &CTrial::mouseDone));
  facts_->tell("resize-hook", answerOf([&] { return resizeHook(*hands_->mouse.panel); }));
}

void CTrial::mouseDone(bool isSkipped) {
  if (!isSkipped) mouseStepDone(*hands_);
  hands_->mouse.panel->close();
  openFieldsStep(*hands_, *panels_, waysOf(hands_->fields, &CTrial::fieldsDone));
}

void CTrial::fieldsDone(bool isSkipped) {
  if (!isSkipped) fieldsStepDone(*hands_);
  hands_->fields.panel->close();
  openWheelStep(*hands_, *panels_, waysOf(hands_->wheel, &CTrial::wheelDone));
}

void CTrial::wheelDone(bool isSkipped) {
  if (!isSkipped) wheelStepDone(*hands_);
  hands_->wheel.panel->close();
  end(kSkipped);
}

// Tells what was done, and of the rest why not.
void CTrial::end(const std::string& whyNot) {
  const std::function<void()> ended = std::exchange(ended_, nullptr);
  if (!ended) return;
  site_->panel().closeIfOpen();
  for (Step* const step : {&hands_->mouse, &hands_->fields, &hands_->wheel}) {
    if (step->panel) step->panel->closeIfOpen();
    if (step->whyNot == kNotReached) step->whyNot = whyNot;
  }
  askMouse(*hands_, *facts_);
  askFields(*hands_, *facts_);
  figureMouse(*hands_, *facts_);
  ended();
}

}  // namespace probe
