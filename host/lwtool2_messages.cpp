#include "host/lwtool2_messages.h"

#include "host/host_call.h"
#include "host/lwtool2_globals.h"

namespace lw {

void ShowError(const char* text) {
  const CUsersTurn turn;
  messages().error(text, "");
}

bool AskYesNo(const char* title, const char* question) {
  const CUsersTurn turn;
  return messages().yesNo(title, question, "") != 0;
}

}  // namespace lw
