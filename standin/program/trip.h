// varnel trip: the typical trip of a setting, from the property panel in Modeler to the bone in Layout.
// varnel panels: the panels of the tools as text.
#pragma once

namespace CLI {
class App;
}

namespace standin {

// Each leaves the exit code in `result`: 0 done, 1 something went wrong.
void addTripCommand(CLI::App& app, int& result);
void addPanelsCommand(CLI::App& app, int& result);

}  // namespace standin
