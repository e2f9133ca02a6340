// Commands to the host and its status line.
#pragma once

#include <string>

#include "host/lwtool2_errors.h"

namespace lw {

// printf-style formatting into 512 bytes with the closing zero, independent of the process's locale. A longer result comes
// out empty, not cut: a cut name would be another name.
std::string FormatString(const char* format, ...) VARNEL_PRINTF(1, 2);

// Sends one command, UTF-8. Modeler: false when done, CEvalEx when refused. Layout: false when done, true when refused,
// which is reported on the status line, and the caller goes on. An empty command throws CEvalEx in both.
bool Eval(const std::string& command);

// Formats a command and sends it. Always true: what Layout refuses, Eval has reported.
bool EvalF(const char* format, ...) VARNEL_PRINTF(1, 2);

// Sends one command of plain ASCII to Layout as Eval does, but takes no memory unless it is refused: for what must be sent
// even when there is none. Nothing where there is no Layout.
void EvalPlain(const char* command);

// Layout's status line; nothing in Modeler. The fraction runs from 0 to 1 and draws a progress bar.
void StatusText(const char* format, ...) VARNEL_PRINTF(1, 2);
void StatusProgress(float fraction, const char* format, ...) VARNEL_PRINTF(2, 3);

// Sends a command through the Modeler functions that were acquired once; what fails is dropped without a word.
void EvalQuiet(const std::string& command);

}  // namespace lw
