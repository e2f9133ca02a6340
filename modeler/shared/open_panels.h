// The tool panels that are open, and how they hear of what another one has changed. Module-wide, on the host's one thread.
#pragma once

namespace mst {

// The numbers are the codes that callbacks get.
enum class PanelNews : int {
  Refresh = 0,
  NamesChanged = 1,       // skelegon names
  PropertiesChanged = 2,  // bone settings
  SelectionChanged = 5,   // or values shown
};

using PanelCallback = void (*)(void* panel, PanelNews news);

// Adds a panel at the end of the list; one that is in it keeps its place and its callback.
void enterPanel(void* panel, PanelCallback callback);

// Takes a panel out of the list, if it is in. Allowed within a callback.
void removePanel(const void* panel);

// Calls every panel of the list but the sender (may be null), in list order. An exception out of one callback
// does not keep the others from hearing. Does nothing while a callback runs: a refresh would cause the next one without end.
void NotifyPanels(const void* sender, PanelNews news);

}  // namespace mst
