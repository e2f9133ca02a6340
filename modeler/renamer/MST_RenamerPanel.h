// The renamer tool: a panel with the renaming rules, the list of registered skelegons, and the button that runs a pass over
// the mesh (rename_pass.h).
#pragma once

#include <memory>
#include <string>

#include "host/lwtool2_globals.h"
#include "host/lwtool2_mesh.h"
#include "host/panel_life.h"
#include "modeler/renamer/rename_pass.h"
#include "modeler/renamer/renamer_form.h"
#include "modeler/shared/open_panels.h"

namespace mst {

// One object for the module's lifetime. The host panel is kept, closed or open, with all its values; so are the registered
// skelegons. Only when the host's language has changed another panel takes its place, with all that the first one held.
class RenamerPanel {
 public:
  RenamerPanel();
  // At the module's end: calls nothing of the host.
  ~RenamerPanel();
  RenamerPanel(const RenamerPanel&) = delete;
  RenamerPanel& operator=(const RenamerPanel&) = delete;

  // The tool's run: makes the host panel when there is none in the present language and opens it without waiting for the
  // user. A panel that is still open comes to the front, in the language that it has. False when it is not known to be open
  // then. Throws CBaseEx.
  bool OpenRenamerPanel();

 private:
  // The host's and the other panels' way in.
  static void OnUsed(lw::LWControl* control, void* panel);
  static void OnOpened(lw::PanelId panel, void* user);
  static void OnClosed(lw::PanelId panel, void* user);
  static void OnNews(void* panel, PanelNews news);

  void build();
  bool isInPresentLanguage() const { return made_.labels.data() == lw::renamerTexts().labels.data(); }
  bool isPanel(lw::PanelId panel) const { return form_ && form_->is(panel); }
  void complain(const RenameResult& result) const;
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
  std::unique_ptr<CRenamerForm> form_;
  lw::RenamerTexts made_;  // the texts of the panel: what it says is in its language, whatever the host's is now
  lw::CPanelLife life_;
  bool isBusy_ = false;  // a control's event is under way

  RenameMode mode_ = RenameMode::Change;
  std::string changeText_;  // the first field's, of the three modes that share it
  lw::PolygonIds registered_;
};

}  // namespace mst
