// The commands of a conversion, as the transcript of Layout has them.
#pragma once

#include <vector>

#include "rigs/report.h"
#include "standin/layout/transcript.h"
#include "views/report_page.h"

namespace standin {

// In order, with what became of each.
std::vector<rigs::SentCommand> sentCommands(const Transcript& transcript);

// The same by the item whose turn it was. A turn begins when the tool moves its progress bar, and is that of the item which is
// selected first in it; other items may be selected on the way.
std::vector<views::SentToItem> sentByItem(const Transcript& transcript);

}  // namespace standin
