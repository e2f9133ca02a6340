#include "standin/modeler/messages.h"

#include "standin/modeler/session.h"

namespace standin {
namespace {

std::string copied(const char* text) { return text == nullptr ? std::string() : std::string(text); }

void tell(const char* function, MessageKind kind, const char* first, const char* second) {
  const ModelerCall call(function);
  if (first == nullptr) call.fault("was called without a text");
  if (ModelerSession* session = call.session()) {
    MessageDesk& desk = session->messages;
    desk.shown.push_back({kind, {}, copied(first), copied(second), Answer::no});
    if (desk.person) desk.person(desk.shown.back());
  }
}

void info(const char* first, const char* second) { tell("LWMessageFuncs::info", MessageKind::info, first, second); }
void error(const char* first, const char* second) { tell("LWMessageFuncs::error", MessageKind::error, first, second); }
void warning(const char* first, const char* second) { tell("LWMessageFuncs::warning", MessageKind::warning, first, second); }

// The numbers that one kind of question answers with. A button that the question does not have counts as no.
struct AnswerNumbers {
  int cancel, no, yes, yesToAll;
};

int ask(const char* function, MessageKind kind, const AnswerNumbers& numbers, const char* title, const char* first,
        const char* second) {
  const ModelerCall call(function);
  if (first == nullptr) call.fault("was called without a text");
  ModelerSession* session = call.session();
  if (session == nullptr) return numbers.cancel;
  Answer answer = Answer::no;
  if (session->messages.answers.empty() && session->messages.person) {
    answer = session->messages.person({kind, copied(title), copied(first), copied(second), Answer::no});
  } else if (session->messages.answers.empty()) {
    call.fault("asked \"" + copied(first) + "\", for which no answer was laid ready");
  } else {
    answer = session->messages.answers.front();
    session->messages.answers.pop_front();
  }
  session->messages.shown.push_back({kind, copied(title), copied(first), copied(second), answer});
  switch (answer) {
    case Answer::cancel: return numbers.cancel;
    case Answer::yes: return numbers.yes;
    case Answer::yesToAll: return numbers.yesToAll;
    default: return numbers.no;
  }
}

int okCancel(const char* title, const char* first, const char* second) {
  return ask("LWMessageFuncs::okCancel", MessageKind::okCancel, {0, 0, 1, 1}, title, first, second);
}
int yesNo(const char* title, const char* first, const char* second) {
  return ask("LWMessageFuncs::yesNo", MessageKind::yesNo, {0, 0, 1, 1}, title, first, second);
}
int yesNoCan(const char* title, const char* first, const char* second) {
  return ask("LWMessageFuncs::yesNoCan", MessageKind::yesNoCancel, {0, 1, 2, 2}, title, first, second);
}
int yesNoAll(const char* title, const char* first, const char* second) {
  return ask("LWMessageFuncs::yesNoAll", MessageKind::yesNoAll, {0, 1, 2, 3}, title, first, second);
}

const char* askName(const char* /*title*/, const char* /*label*/, const char* /*initial*/) {
  const ModelerCall call("LWMessageFuncs::askName");
  call.fault("is not a question that this host asks");
  return nullptr;
}

}  // namespace

lw::LWMessageFuncs* messageServices() {
  static lw::LWMessageFuncs table = {&info, &error, &warning, &okCancel, &yesNo, &yesNoCan, &yesNoAll, &askName};
  return &table;
}

}  // namespace standin
