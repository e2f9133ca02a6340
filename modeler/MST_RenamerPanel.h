// The renamer tool: a panel with the renaming rules, the list of registered skelegons, and the button that runs a pass over
// the mesh (rename_pass.h).
#pragma once

#include <optional>
#include <string>

#include "host/lwtool2_mesh.h"
#include "modeler/open_panels.h"
#include "modeler/rename_pass.h"
#include "modeler/renamer_form.h"

namespace mst {

// One object for the module's lifetime. The host panel is made once and kept, closed or open, with all its values; so are
// the registered skelegons.
class RenamerPanel {
 public:
  RenamerPanel();
  // At the module's end: calls nothing of the host.
  ~RenamerPanel();
  RenamerPanel(const RenamerPanel&) = delete;
  RenamerPanel& operator=(const RenamerPanel&) = delete;

  // The tool's run: makes the host panel when there is none yet and opens it without waiting for the user. A panel that is
  // still open comes to the front. False when the host did not open it. Throws CBaseEx.
  bool OpenRenamerPanel();

 private:
  // The host's and the other panels' way in.
  static void OnUsed(lw::LWControl* control, void* panel);
  static void OnClosed(lw::PanelId panel, void* user);
  static void OnNews(void* panel, PanelNews news);

  void build();
  void use(const lw::LWControl* control);
  RenameMode chosenMode() const;
  void chooseMode();
  void showTexts(const char* first, const char* second);
  void add();
  void clear();
  void showRegistered();
  void run();
  RenameResult runPass(RenameMode mode) const;

  std::string title_;
  std::optional<CRenamerForm> form_;
  bool isOpen_ = false;

  RenameMode mode_ = RenameMode::Change;
  std::string changeText_;  // the first field's, of the three modes that share it
  lw::PolygonIds registered_;
};

}  // namespace mst
