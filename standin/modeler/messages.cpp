#include "standin/modeler/messages.h"

#include "standin/core/gap_slots.h"
#include "standin/modeler/session.h"

namespace standin {

template <>
inline constexpr const char* kTableName<lw::LWMessageFuncs> = "LWMessageFuncs";

namespace {

std::string copied(const char* text) { return text == nullptr ? std::string() : std::string(text); }

void error(const char* first, const char* second) {
  const ModelerCall call("LWMessageFuncs::error");
  if (first == nullptr) call.fault("was called without a text");
  ModelerSession* session = call.session();
  if (session == nullptr) return;
  MessageDesk& desk = session->messages;
  desk.shown.push_back({MessageKind::Error, {}, copied(first), copied(second), Answer::No});
  if (desk.person) desk.person(desk.shown.back());
}

int yesNo(const char* title, const char* first, const char* second) {
  const ModelerCall call("LWMessageFuncs::yesNo");
  if (first == nullptr) call.fault("was called without a text");
  ModelerSession* session = call.session();
  if (session == nullptr) return 0;
  MessageDesk& desk = session->messages;
  Message question{MessageKind::YesNo, copied(title), copied(first), copied(second), Answer::No};
  if (!desk.answers.empty()) {
    question.answer = desk.answers.front();
    desk.answers.pop_front();
  } else if (desk.person) {
    question.answer = desk.person(question);
  } else {
    call.fault("asked \"" + question.first + "\", for which no answer was laid ready");
  }
  desk.shown.push_back(question);
  return question.answer == Answer::Yes ? 1 : 0;
}

}  // namespace

lw::LWMessageFuncs* messageServices() {
  static lw::LWMessageFuncs table = [] {
    lw::LWMessageFuncs t{};
    STANDIN_FILL_GAP(t, 0);
    t.error = &error;
    STANDIN_FILL_GAP(t, 16);
    t.yesNo = &yesNo;
    STANDIN_FILL_GAP(t, 40);
    return t;
  }();
  return &table;
}

}  // namespace standin
