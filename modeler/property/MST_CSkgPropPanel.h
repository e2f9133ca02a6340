// The property tool: a panel that shows the bone settings of the selected skelegons and stores each change at once.
//
// It works on the skelegons that its last scan found. A scan is made when the panel opens, when the user asks for it
// ("Sync"), when another tool tells of a change, and after every action that changes more than the control it began in.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/panel_life.h"
#include "modeler/property/chooser_lists.h"
#include "modeler/property/property_form.h"
#include "modeler/property/property_store.h"
#include "modeler/shared/open_panels.h"

namespace mst {

// One object for the module's lifetime; the settings of a run (page, group) are still there at the next.
class CSkgPropPanel {
 public:
  CSkgPropPanel();
  // At the module's end: calls nothing of the host.
  ~CSkgPropPanel();
  CSkgPropPanel(const CSkgPropPanel&) = delete;
  CSkgPropPanel& operator=(const CSkgPropPanel&) = delete;

  // The tool's run: makes the host panel anew, in the present language, and opens it without waiting for the user. A panel
  // that is still open is closed and replaced. False when it is not known to be open then. Throws CBaseEx.
  bool OpenPropertyPanel();

 private:
  // What a control's user pointer points at.
  struct ControlLink {
    CSkgPropPanel* panel = nullptr;
    const CChooserLists* choosers = nullptr;
    std::size_t number = 0;
  };
  // A host panel with all that the host may keep pointers to: one that takes another's place has its own.
  struct Shown {
    CChooserLists choosers;
    std::array<ControlLink, kControlCount> links;
    std::optional<CPropertyForm> form;
  };

  // The host's and the other panels' way in.
  static void OnUsed(lw::LWControl* control, void* link);
  static int OnCount(void* link);
  static const char* OnName(void* link, int index);
  static void OnOpened(lw::PanelId panel, void* user);
  static void OnClosed(lw::PanelId panel, void* user);
  static void OnNews(void* panel, PanelNews news);

  void replace();
  std::unique_ptr<Shown> build();
  CPropertyForm& form() const { return *shown_->form; }
  CChooserLists& choosers() const { return shown_->choosers; }
  void takeDown();
  void settle();
  void closed();
  bool isPanel(lw::PanelId panel) const { return shown_ && form().is(panel); }

  // What the panel knows of the mesh, and shows of it.
  struct Seen {
    std::vector<skg::SkelegonInfo> skelegons;
    std::vector<std::string> layerNames;
    std::vector<std::string> weightMaps;
    skg::SkelegonProperties properties;  // of the one that is shown
  };
  // The settings are those of the preferred skelegon if it is selected, else of the first that is.
  static Seen look(lw::PolygonId preferred);
  void take(Seen seen);
  void refreshNames();
  void refreshLists();
  lw::PolygonIds selected() const { return selectedPolygons(skelegons_); }

  void load(const skg::SkelegonProperties& properties);
  void showPage();
  void reload();
  // To the other open panels: values have changed.
  void tell() const;

  // What a control's use does.
  void use(std::size_t number);
  void showStored();
  void choosePage(int page);
  void chooseGroup(int group);
  void writeName();
  void showSelected(int index);
  void writeValue(std::size_t number);
  std::string takeChoice(std::size_t number);
  void rest(std::size_t number);
  void chooseWeightMap(std::size_t number);
  void chooseItem(std::size_t number);
  void fillWeightMaps();
  void fillLinkedNames(skg::Slot slot);
  void preset(Controller controller);
  void reset(const char* question, bool all);

  const std::string title_;
  std::unique_ptr<Shown> shown_;  // of the last run, open or not
  lw::CPanelLife life_;
  bool isBusy_ = false;  // a control's event is under way

  int page_ = 0;
  int group_ = 0;
  int widthToggle_ = 0;

  std::vector<skg::SkelegonInfo> skelegons_;
  lw::PolygonId chosen_ = nullptr;  // from the list of names, while it is selected
  std::vector<std::string> layerNames_;
};

}  // namespace mst
