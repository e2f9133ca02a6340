// One stay of the module in one of the two programs, with a rig loaded: what the checks play on.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "standin/core/module_file.h"
#include "standin/panels/panel.h"
#include "standin/validate/tools.h"
#include "standin/variants/played_host.h"

namespace standin::validate {

inline constexpr std::uint32_t kEnglish = 0x409;
inline constexpr std::uint32_t kJapanese = 0x411;

// A rig, and the file that holds it.
struct TripRig {
  ObjectFile object;
  std::string path;
};

// The rigs that are shipped, the lizard with every setting, written into a folder.
TripRig lizardRig(const std::string& folder);
TripRig japaneseRig(const std::string& folder);
// Writes any object under a name.
TripRig rigOf(ObjectFile object, const std::string& path);

class Session {
 public:
  // Starts the program, loads the rig (in Modeler with all layers in the foreground, in Layout selected) and the module.
  // On the default host, or on another.
  Session(Program program, const TripRig& rig, const std::string& module, const HostOptions& host = {});
  // Unloads the module without looking.
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // Why the module could not be loaded; empty when it is.
  const std::string& refusal() const { return refusal_; }
  ModelerHost* modeler() { return modeler_.get(); }
  LayoutHost* layout() { return layout_.get(); }
  ModuleFile& module() { return module_; }

  void setLocale(std::uint32_t word);
  void setProduct(std::uint32_t word);
  // Lays an answer to the next question ready, unless one is.
  void layAnswer(Answer answer = Answer::Yes);

  std::optional<int> activate(const Tool& tool, std::optional<int> version = std::nullopt);
  // Activates the tool; its open panel. Null when there is none.
  Panel* open(const Tool& tool);

  // Which rules of the host the module has broken since the last call; empty when none.
  std::string complaints();
  // In Layout: what the conversion switches off is on again, and the user is asked before something is deleted.
  bool isSwitchedBack() const;
  // Ends the module's stay and loads it afresh, in the same session. False when it cannot be loaded again.
  bool reload();
  // Ends the module's stay; complaints, also of panels without end.
  std::string end();

 private:
  std::unique_ptr<PlayedModeler> modeler_;
  std::unique_ptr<PlayedLayout> layout_;
  ModuleFile module_;
  std::string path_;
  std::string refusal_;
  std::size_t told_ = 0;  // faults that complaints() gave
};

// The values that a panel's controls show, as lines, on every page. Turns the pages and ends on the first ones.
std::string everythingShown(Panel& panel);

}  // namespace standin::validate
