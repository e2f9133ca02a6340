#include "modeler/property/MST_CSkgPropPanel.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "host/lwtool2_errors.h"
#include "host/lwtool2_eval.h"
#include "host/lwtool2_globals.h"
#include "host/lwtool2_messages.h"
#include "host/raised_flag.h"
#include "modeler/property/property_layout.h"
#include "modeler/shared/tool_names.h"

namespace mst {
namespace {

using skg::Slot;

constexpr const char* kResetQuestion = "Reset selected skelegon's tag ?";
constexpr const char* kResetAllQuestion = "Reset all skelegon's tag ?";

// Without an object there is nothing to scan, and the host begins no edit.
std::vector<skg::SkelegonInfo> scan() {
  return lw::objectIsLoaded() ? ScanPanelSkelegons() : std::vector<skg::SkelegonInfo>();
}

bool isInObject(lw::PolygonId polygon) { return lw::objectIsLoaded() && lw::IsLivingSkelegon(polygon); }

// Which of the selected skelegons is shown: the one that was chosen, else the first.
std::size_t shownOf(const lw::PolygonIds& polygons, lw::PolygonId chosen) {
  const auto found = std::find(polygons.begin(), polygons.end(), chosen);
  return found == polygons.end() ? 0 : static_cast<std::size_t>(found - polygons.begin());
}

// The list of a custom popup; the name popup's for all others.
ChooserList listOf(std::size_t number) {
  switch (controlTable()[number].role) {
    case Role::WeightMaps: return ChooserList::WeightMaps;
    case Role::ItemNames: return ChooserList::Items;
    default: return ChooserList::SelectedNames;
  }
}

}  // namespace

CSkgPropPanel::CSkgPropPanel()
    : title_(lw::FormatString("%s(%d.%02d)%s", kPropertyName, VARNEL_VERSION_MAJOR, VARNEL_VERSION_MINOR, " ")) {
  enterPanel(this, &OnNews);
}

CSkgPropPanel::~CSkgPropPanel() {
  removePanel(this);
  if (shown_) form().release();
}

// ---------------------------------------------------------------------------------------------------------------------
// Opening and closing

bool CSkgPropPanel::OpenPropertyPanel() {
  if (isBusy_) {  // while the host waits for an event of the panel's, it has to stay
    take(look(chosen_));
  } else {
    replace();
  }
  if (life_.isOpen()) {
    form().bringToFront();
  } else {
    life_.open([&] { return form().open(); });
  }
  if (life_.mayBeOpen()) settle();
  return life_.isOpen();
}

// Once the panel is on the screen. What was hidden before need not stay so, and the host may have chosen a size of its own.
void CSkgPropPanel::settle() {
  form().show(page_, group_, selected().size() == 1);
  form().setSize(kPropertyWidth, kPropertyHeight);
  widthToggle_ = 1;
}

// The host destroys no open panel.
void CSkgPropPanel::takeDown() {
  if (life_.mayBeOpen()) {
    form().close();
    closed();
  }
  shown_.reset();
}

// A new panel in place of the last run's. All that the host may refuse comes first: a run that fails costs no open panel.
void CSkgPropPanel::replace() {
  std::unique_ptr<Shown> made = build();
  Seen seen = look(nullptr);
  const bool wasOpen = life_.mayBeOpen();
  takeDown();
  if (wasOpen)
    seen = lw::guarded([] { return look(nullptr); }, seen);  // closing a panel may have written what was being typed
  shown_ = std::move(made);
  widthToggle_ = 0;
  take(std::move(seen));
}

std::unique_ptr<CSkgPropPanel::Shown> CSkgPropPanel::build() {
  auto made = std::make_unique<Shown>();
  FormHooks hooks{&OnUsed, {&OnCount, &OnName}, &OnOpened, &OnClosed, this, {}};
  for (std::size_t number = 0; number < kControlCount; ++number) {
    made->links[number] = {this, &made->choosers, number};
    hooks.controlUsers[number] = &made->links[number];
  }
  made->form.emplace(title_.c_str(), lw::propertyTexts(), hooks);
  made->form->setChoice(control::kPages, page_);
  made->form->setChoice(control::kGroups, group_);
  return made;
}

void CSkgPropPanel::closed() {
  life_.closed();
  skelegons_.clear();
  chosen_ = nullptr;
  layerNames_.clear();
  choosers().clearLists();
}

// ---------------------------------------------------------------------------------------------------------------------
// What the panel knows of the mesh, and what it shows of it

CSkgPropPanel::Seen CSkgPropPanel::look(lw::PolygonId preferred) {
  Seen seen;
  seen.skelegons = scan();
  seen.layerNames = lw::LayerNames();
  seen.weightMaps = lw::WeightMapNames();
  const lw::PolygonIds polygons = selectedPolygons(seen.skelegons);
  seen.properties = ReadSkelegonProperties(polygons.empty() ? nullptr : polygons[shownOf(polygons, preferred)]);
  return seen;
}

void CSkgPropPanel::take(Seen seen) {
  choosers().set(ChooserList::WeightMaps, weightMapChoices(seen.weightMaps));
  skelegons_ = std::move(seen.skelegons);
  layerNames_ = std::move(seen.layerNames);
  refreshLists();
  load(seen.properties);
}

// Names change by other ways than ours too: whatever writes names looks first.
void CSkgPropPanel::refreshNames() {
  std::unordered_map<lw::PolygonId, std::string> names;
  for (skg::SkelegonInfo& skelegon : scan()) names.emplace(skelegon.polygon, std::move(skelegon.name));
  for (skg::SkelegonInfo& skelegon : skelegons_) {
    const auto found = names.find(skelegon.polygon);
    if (found != names.end()) skelegon.name = found->second;
  }
}

void CSkgPropPanel::refreshLists() {
  ChooserTexts all, selected;
  for (const skg::SkelegonInfo& skelegon : skelegons_) {
    all.push_back(skelegon.name);
    if (skelegon.isSelected) selected.push_back(skelegon.name);
  }
  choosers().set(ChooserList::Items, itemChoices(layerNames_, all));
  choosers().set(ChooserList::SelectedNames, selected);
}

void CSkgPropPanel::load(const skg::SkelegonProperties& properties) {
  const lw::PolygonIds polygons = selected();
  const std::size_t shown = shownOf(polygons, chosen_);
  if (polygons.empty() || polygons[shown] != chosen_) chosen_ = nullptr;
  form().showValues(properties);
  form().setChoice(control::kNamePopup, static_cast<int>(shown));
  for (const PropertyRow& row : controlTable()) {
    if (row.role == Role::WeightMaps || row.role == Role::ItemNames) rest(row.number);
  }
  showPage();
}

// The width goes back and forth by one at each switch: that makes the host lay the panel out again.
void CSkgPropPanel::showPage() {
  form().show(page_, group_, selected().size() == 1);
  form().setSize(kPropertyWidth + widthToggle_, kPropertyHeight);
  widthToggle_ = 1 - widthToggle_;
}

void CSkgPropPanel::reload() {
  take(look(chosen_));
  tell();
}

void CSkgPropPanel::tell() const { NotifyPanels(this, PanelNews::SelectionChanged); }

// ---------------------------------------------------------------------------------------------------------------------
// What the user does

// Where the host did not even begin to write, what was typed or chosen must not stay in sight. It may refuse more than that: this
// asks nothing of the mesh.
void CSkgPropPanel::showStored() {
  if (!life_.mayBeOpen()) return;
  form().showKept();
  form().setChoice(control::kNamePopup, static_cast<int>(shownOf(selected(), chosen_)));
  form().show(page_, group_, selected().size() == 1);
}

void CSkgPropPanel::use(std::size_t number) {
  const PropertyRow& row = controlTable()[number];
  switch (row.role) {
    case Role::Decoration: break;
    case Role::PageTabs: choosePage(form().choice(number)); break;
    case Role::GroupTabs: chooseGroup(form().choice(number)); break;
    case Role::NameEdit: writeName(); break;
    case Role::NamePopup: showSelected(form().choice(number)); break;
    case Role::Value: writeValue(number); break;
    case Role::WeightMaps: chooseWeightMap(number); break;
    case Role::WeightFill: fillWeightMaps(); break;
    case Role::LinkedFill: fillLinkedNames(ControlSlotMap(number - 1).slot.value()); break;
    case Role::ItemNames: chooseItem(number); break;
    case Role::KeyFrames: preset(Controller::KeyFrames); break;
    case Role::InverseKinematics: preset(Controller::InverseKinematics); break;
    case Role::SameAsItem: preset(Controller::SameAsItem); break;
    case Role::Reset: reset(kResetQuestion, false); break;
    case Role::ResetAll: reset(kResetAllQuestion, true); break;
    case Role::Sync: reload(); break;
  }
}

void CSkgPropPanel::choosePage(int page) {
  if (page < 0 || page >= kPageCount) return;
  page_ = page;
  showPage();
}

void CSkgPropPanel::chooseGroup(int group) {
  if (group < 0 || group >= kMotionGroupCount) return;
  group_ = group;
  showPage();
}

void CSkgPropPanel::writeName() {
  const std::string name = form().storedText(control::kNameEdit);
  if (!applyWrites(writesForName(skelegons_, name))) return reload();
  form().keep(control::kNameEdit);
  for (skg::SkelegonInfo& skelegon : skelegons_) {
    if (skelegon.isSelected) skelegon.name = name;
  }
  refreshLists();
  tell();
}

// The settings of another one of the selected skelegons in the controls. What is written still goes to all of them.
void CSkgPropPanel::showSelected(int index) {
  const lw::PolygonIds polygons = selected();
  if (index < 0 || std::cmp_greater_equal(index, polygons.size())) return;
  const lw::PolygonId polygon = polygons[static_cast<std::size_t>(index)];
  if (!isInObject(polygon)) return reload();
  form().showValues(ReadSkelegonProperties(polygon));
  chosen_ = polygon;
  form().show(page_, group_, selected().size() == 1);
}

void CSkgPropPanel::writeValue(std::size_t number) {
  const Slot slot = ControlSlotMap(number).slot.value();
  const bool isStored = slot == Slot::Colour ? applyWrites(writesForColour(skelegons_, form().choice(number)))
                                             : WriteSlotValue(skelegons_, slot, form().storedText(number));
  if (!isStored) return reload();
  form().keep(number);
  tell();
}

// The text of a chooser's choice.
std::string CSkgPropPanel::takeChoice(std::size_t number) {
  const int index = form().choice(number);
  rest(number);
  form().refresh(number);
  return choosers().chosen(listOf(number), index);
}

// Leaves a chooser on none of its entries: it is a menu, and hosts may fire only when the choice changes, so that an entry
// it rests on could not be chosen. What a host makes of an index outside the list is not documented: where it holds indices
// to the list, there is a blank entry to rest on. That one is not read back: a host that takes no index of its list either
// leaves nothing to do, and the module goes by the choices that it is told of, never by where a chooser rests.
void CSkgPropPanel::rest(std::size_t number) {
  const ChooserList list = listOf(number);
  for (const int outside : {-1, choosers().count(list)}) {
    form().setChoice(number, outside);
    if (!choosers().has(list, form().choice(number))) return;
  }
  choosers().endWithBlank(list);
  form().setChoice(number, choosers().count(list) - 1);
}

// A map makes the bone active, none makes it inactive. Two settings, but one act of the user's and so one step to undo.
void CSkgPropPanel::chooseWeightMap(std::size_t number) {
  const std::string map = takeChoice(number);
  const char* const active = map.empty() ? "0" : "1";
  TagWrites writes = writesForValue(skelegons_, Slot::BoneActive, active);
  writes.append(writesForValue(skelegons_, Slot::WeightMap, map));
  if (!applyWrites(writes)) return reload();
  form().showText(Slot::BoneActive, active);
  form().showText(Slot::WeightMap, map);
  tell();
}

void CSkgPropPanel::chooseItem(std::size_t number) {
  const Slot slot = ControlSlotMap(number - 1).slot.value();
  const std::string item = takeChoice(number);
  if (!WriteSlotValue(skelegons_, slot, item)) return reload();
  form().showText(slot, item);
  tell();
}

void CSkgPropPanel::fillWeightMaps() {
  refreshNames();
  applyWrites(writesForWeightMapsByName(skelegons_, lw::WeightMapNames()));
  reload();
}

void CSkgPropPanel::fillLinkedNames(Slot slot) {
  refreshNames();
  applyWrites(writesForLinkedNames(skelegons_, slot));
  reload();
}

void CSkgPropPanel::preset(Controller controller) {
  if (page_ != kControllersPage) return;
  applyWrites(writesForControllerPreset(skelegons_, static_cast<skg::MotionGroup>(group_), controller));
  reload();
}

void CSkgPropPanel::reset(const char* question, bool all) {
  const lw::PolygonIds those = selected();  // closing the panel, while the question is open, empties the list
  if (!lw::AskYesNo(kPropertyName, question)) return;
  const lw::PolygonIds everyone = all && lw::objectIsLoaded() ? lw::CollectSkelegons() : lw::PolygonIds();
  applyWrites(writesForReset(all ? everyone : those));
  if (life_.mayBeOpen()) {
    reload();
  } else {
    tell();
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Called by the host and by other panels

void CSkgPropPanel::OnUsed(lw::LWControl* control, void* user) {
  lw::onTool<ControlLink>(user, [&](const ControlLink& link) {
    if (!link.panel->life_.mayBeOpen()) return;
    const CPropertyForm& form = link.panel->form();
    if (!form.owns(link.number, control) || form.isSetting()) return;
    const lw::CRaisedFlag busy(link.panel->isBusy_);
    const auto use = [&] {
      try {
        link.panel->use(link.number);
      } catch (const lw::ex::CTagWriteEx&) {
        // A tag that the host refused leaves the controls as they are, deliberately: what was entered is not lost over one polygon.
      }
      return true;
    };
    if (!lw::guarded(use, false)) link.panel->showStored();
  });
}

int CSkgPropPanel::OnCount(void* user) {
  return lw::guarded(
      [&] {
        const auto* const link = static_cast<const ControlLink*>(user);
        return link == nullptr ? 0 : link->choosers->count(listOf(link->number));
      },
      0);
}

const char* CSkgPropPanel::OnName(void* user, int index) {
  return lw::guarded(
      [&] {
        const auto* const link = static_cast<const ControlLink*>(user);
        return link == nullptr ? "" : link->choosers->name(listOf(link->number), index);
      },
      "");
}

void CSkgPropPanel::OnOpened(lw::PanelId id, void* user) {
  lw::onTool<CSkgPropPanel>(user, [&](CSkgPropPanel& panel) {
    if (panel.isPanel(id) && panel.life_.opened()) panel.settle();
  });
}

void CSkgPropPanel::OnClosed(lw::PanelId id, void* user) {
  lw::onTool<CSkgPropPanel>(user, [&](CSkgPropPanel& panel) {
    if (panel.isPanel(id)) panel.closed();
  });
}

void CSkgPropPanel::OnNews(void* user, PanelNews news) {
  lw::onTool<CSkgPropPanel>(user, [&](CSkgPropPanel& panel) {
    if (!panel.life_.mayBeOpen()) return;
    switch (news) {
      case PanelNews::Refresh:
      case PanelNews::NamesChanged:
      case PanelNews::PropertiesChanged:
      case PanelNews::SelectionChanged: panel.reload(); break;
    }
  });
}

}  // namespace mst
