// What a person does in the three panels at random, and what is expected to come of it.
#pragma once

#include <algorithm>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "modeler/renamer/rename_targets.h"
#include "skelegon/orders.h"
#include "tests/tools/panels_walk_fixture.h"

namespace varnel::test {

// Texts that grow and grow are another test's.
inline constexpr std::size_t kLongestText = 90;  // bytes

inline constexpr const char* kNames[] = {
    "",       "Hips",    "Chest",    "Head",  "Spine",
    "腰",     "腕_L_01", "Same",     "Bone2", "a b",
    "Bone10", "100%d",   "Arm_L_02", "尾",    "右腕の補助骨その一_L_Shoulder_Helper_01"};
inline constexpr const char* kParts[] = {"", "x_", "左", "_L", "_R", "_L_", "_R_", "1", "o"};
inline constexpr const char* kBaseNames[] = {"Bone01_[col]_[row]", "骨", "A[row]", "", "[col]"};
inline constexpr const char* kPatterns[][2] = {
    {"(.*)_L(.*)", "$1_R$2"}, {"(.*)_R(.*)", "$1_L$2"}, {"[0-9]+$", "7"}, {"o*", "-"}, {"^(.)(.)", "$2$1"}, {"腕|腰", "骨"}};

class ThreePanelsUsed : public ThreePanels {
 protected:
  // The same on every system: the engine's numbers are the standard's, and no distribution is used.
  int below(int count) {
    const int number = static_cast<int>(random() % static_cast<unsigned>(count));
    drawn += " " + std::to_string(number);
    return number;
  }
  std::size_t placeBelow(std::size_t count) { return static_cast<std::size_t>(below(static_cast<int>(count))); }
  bool oneIn(int count) { return below(count) == 0; }
  template <class Values>
  const auto& oneOf(const Values& values) {
    return values[placeBelow(std::size(values))];
  }
  walk::Places someOf(const walk::Places& places) {
    const int share = 1 + below(6);
    walk::Places some;
    for (const std::size_t place : places) {
      if (oneIn(share)) some.push_back(place);
    }
    return some;
  }

  // --- the selector --------------------------------------------------------------------------------------------------------

  walk::Tree::Press somewhere() {
    const auto row = placeBelow(tree.rows().size());
    const auto [width, height, scrollX, scrollY] = tree.window();
    const int indent = 12 * tree.rows()[row].depth - scrollX / 8;
    const int places[] = {indent, indent - 16, indent + 15, indent + 30, indent + 60, indent - 30, width - 20, below(width)};
    walk::Tree::Press press;
    press.x = std::clamp(oneOf(places), 0, width - 1);
    press.y = oneIn(10) ? below(height) : 14 * static_cast<int>(row) + below(14) - scrollY / 8;
    if (press.y < 0 || press.y >= height) press.y = below(height);
    return press;
  }

  void clickTree() {
    using namespace lw;
    static constexpr int kQualifiers[] = {
        0, 0, 0, kMouseCtrl, kMouseCtrl, kMouseShift, kMouseShift, kMouseAlt, kMouseCtrl | kMouseShift | kMouseAlt};
    walk::Tree::Press press = somewhere();
    press.qualifiers = oneOf(kQualifiers);
    if (oneIn(8)) press.button = oneIn(2) ? standin::MouseButton::Right : standin::MouseButton::Middle;
    if (oneIn(6)) {
      if (oneIn(2)) press = lastPress_;  // twice at one place
      press.clicks = 2 + below(2);
    }
    press.x = std::min(press.x, tree.window().width - 1);
    press.y = std::min(press.y, tree.window().height - 1);
    lastPress_ = press;
    EXPECT_TRUE(person::click(treeControl(), press.x, press.y, press.button, press.qualifiers, press.clicks));
    if (!tree.press(press)) return;
    mesh.select(tree.selected());
    propertiesHear();
  }

  // That a host which has nothing but the event tells of releases is known from the first one on.
  void touchScrollBar() {
    const walk::Tree::Press press{tree.window().width - 5, 0};
    EXPECT_TRUE(person::click(treeControl(), press.x, press.y));
    tree.press(press);
  }

  void dragScrollBar() {
    const auto [width, height, scrollX, scrollY] = tree.window();
    const bool isVertical = oneIn(2);
    walk::Tree::Press press;
    press.x = isVertical ? width - 5 : below(width - 12);
    press.y = isVertical ? below(height - 12) : height - 5;
    const Control& area = *treeControl();
    EXPECT_TRUE(person::mousePress(selector.panel, area.x + press.x, area.y + press.y));
    tree.press(press);
    for (int i = 0; i < 2; ++i) {
      press.x += below(200) - 80;
      press.y += below(200) - 80;
      EXPECT_TRUE(person::mouseMove(selector.panel, area.x + press.x, area.y + press.y));
      tree.drag(press.x, press.y);
    }
    EXPECT_TRUE(person::mouseRelease(selector.panel, area.x + press.x, area.y + press.y));
  }

  void turnWheel() {
    const int notches = below(7) - 3;
    EXPECT_TRUE(person::wheel(selector.panel, 50, 20, notches));
    if (standin::panels().options.mouse != standin::MouseDelivery::Control) tree.wheel(notches);
  }

  void resizeSelector() {
    const int width = 250 + (oneIn(2) ? 0 : below(250));
    const int height = 87 + below(oneIn(2) ? 100 : 480);
    if (width == selector.panel->width && height == selector.panel->height) return;
    EXPECT_TRUE(person::resize(selector.panel, width, height));
    EXPECT_EQ(treeControl()->hotWidth, width - 10);
    EXPECT_EQ(treeControl()->hotHeight, height - 55);
    tree.setView(width - 10, height - 55);
  }

  void syncSelector() {
    EXPECT_TRUE(person::press(selector.panel->find("Sync")));
    treeHears();
  }

  // --- the property panel --------------------------------------------------------------------------------------------------

  // Brings a control into sight.
  void show(std::size_t number) {
    if (number < 9) return;
    const int page = number < 13 ? 0 : number < 47 ? 1 : number < 85 ? 2 : 3;
    EXPECT_TRUE(person::choose(field(mst::control::kPages), page));
    if (number < 91) return;
    EXPECT_TRUE(person::choose(field(mst::control::kGroups), number < 125 ? 0 : number < 159 ? 1 : 2));
  }
  void press(std::size_t number) {
    show(number);
    EXPECT_TRUE(person::press(field(number)));
  }
  static std::size_t fieldOf(int slot) { return mst::controlOf(static_cast<Slot>(slot)).value(); }
  static std::uint32_t typeOf(int slot) { return walk::kFamily | static_cast<std::uint32_t>(slot); }

  void useValueControl(const mst::PropertyRow& row, Control* control) {
    switch (row.kind) {
      case mst::HostControl::Bool:
      case mst::HostControl::BoolButton: EXPECT_TRUE(person::toggle(control)); break;
      case mst::HostControl::Popup:
        EXPECT_TRUE(person::choose(control, below(static_cast<int>(control->items().size()))));
        break;
      case mst::HostControl::Edit: EXPECT_TRUE(person::type(control, oneOf(kNames))); break;
      default: EXPECT_TRUE(person::enter(control, (below(8) - 2) * 25)); break;
    }
  }

  // The panel itself looks again only after what changes more than one control; the others are told of every change.
  void changeValue() {
    const mst::PropertyRow& row = mst::controlTable()[9 + placeBelow(183)];
    if (!row.slot) return;
    show(row.number);
    Control* const control = field(row.number);
    const int before = control->eventsFired;
    useValueControl(row, control);
    if (control->eventsFired == before) return;
    const std::string text = valueOf(row, *control);
    const int slot = static_cast<int>(skg::indexOf(*row.slot));
    if (*row.slot == Slot::Colour) {
      mesh.putOnSelected(walk::kColourCopy, text);
      mesh.putOnSelected(lw::kTagColour, text == "DkCyn" || text == "Cyan" ? "" : text);
    } else {
      mesh.putValue(slot, text);
    }
    treeHears();
  }

  void typeName() {
    Control* const edit = field(mst::control::kNameEdit);
    const std::string name = oneOf(kNames);
    const int before = edit->eventsFired;
    EXPECT_TRUE(person::type(edit, name));
    if (edit->eventsFired == before) return;
    mesh.putOnSelected(lw::kTagBone, name);
    mesh.putOnSelected(lw::kTagPart, name);
    treeHears();
  }

  void showAnother() {
    const int index = below(static_cast<int>(mesh.selected().size()));
    EXPECT_TRUE(person::choose(field(mst::control::kNamePopup), index));
    chosen = mesh.selected()[static_cast<std::size_t>(index)];
  }

  void fillLinked() {
    static constexpr std::pair<int, const char*> kFills[] = {{142, "_initpos"}, {52, "_tar"}, {53, "_pole"}, {55, "_goal"},
                                                             {73, "_pos"},      {92, "_rot"}, {110, "_scl"}};
    const auto& [slot, suffix] = oneOf(kFills);
    press(fieldOf(slot) + 1);
    for (const std::size_t place : mesh.selected()) mesh.put(place, typeOf(slot), mesh[place].name() + suffix);
    bothHear();
  }

  void fillWeightMaps() {
    press(kMapChooser + 1);
    for (const std::size_t place : mesh.selected()) {
      const std::string name = mesh[place].name();
      const bool isMap = std::find(kWalkMaps.begin(), kWalkMaps.end(), name) != kWalkMaps.end();
      mesh.put(place, typeOf(27), isMap ? "1" : "0");
      mesh.put(place, lw::kTagBoneWeight, isMap ? name : "");
    }
    bothHear();
  }

  void chooseWeightMap() {
    show(kMapChooser);
    const auto index = placeBelow(kWalkMaps.size() + 1);
    EXPECT_TRUE(person::choose(field(kMapChooser), static_cast<int>(index)));
    mesh.putValue(27, index == 0 ? "0" : "1");
    mesh.putValue(28, index == 0 ? "" : kWalkMaps[index - 1]);
    treeHears();
  }

  void chooseItem() {
    static constexpr int kParents[] = {51, 130, 131, 132, 133, 134, 135};
    const int slot = oneOf(kParents);
    const std::size_t chooser = fieldOf(slot) + 1;
    show(chooser);
    const Names items = field(chooser)->items();
    const int index = below(static_cast<int>(items.size()));
    EXPECT_TRUE(person::choose(field(chooser), index));
    mesh.putValue(slot, index == 0 ? "" : items[static_cast<std::size_t>(index)]);
    treeHears();
  }

  void pressPreset() {
    static constexpr std::size_t kControllers[] = {91, 125, 159};
    static constexpr int kFirst[] = {76, 95, 113};
    static constexpr const char* kValues[] = {"0", "3", "6"};
    const auto group = placeBelow(3);
    const auto which = placeBelow(3);
    show(kControllers[group]);
    EXPECT_TRUE(person::press(field(88 + which)));
    for (int axis = 0; axis < 3; ++axis) mesh.putOnSelected(typeOf(kFirst[group] + 5 * axis), kValues[which]);
    bothHear();
  }

  void resetValues() {
    const bool isAll = oneIn(4);
    const bool yes = !oneIn(4);
    host.answer(yes ? standin::Answer::Yes : standin::Answer::No);
    press(isAll ? mst::control::kResetAll : mst::control::kReset);
    if (!yes) return;
    for (const std::size_t place : isAll ? mesh.living() : mesh.selected()) mesh.resetSettings(place);
    bothHear();
  }

  void turnPage() { show(9 + placeBelow(183)); }

  void syncProperties() {
    press(mst::control::kSync);
    bothHear();
  }

  // --- the renamer ---------------------------------------------------------------------------------------------------------

  mst::RenameMode mode() const { return static_cast<mst::RenameMode>(at(Item::Mode)->integer); }
  void type(Item item, std::string_view text) { EXPECT_TRUE(person::type(at(item), text)); }

  void chooseMode() {
    static constexpr int kModes[] = {0, 1, 2, 3, 4, 5, 5};
    EXPECT_TRUE(person::choose(at(Item::Mode), oneOf(kModes)));
  }

  void typeTexts() {
    const auto& [pattern, format] = oneOf(kPatterns);
    switch (mode()) {
      case mst::RenameMode::RegularExpression:
        type(Item::FirstText, pattern);
        type(Item::SecondText, format);
        break;
      case mst::RenameMode::Replace: type(Item::SecondText, oneOf(kParts)); [[fallthrough]];
      case mst::RenameMode::Prefix:
      case mst::RenameMode::Suffix: type(Item::FirstText, oneOf(kParts)); break;
      default: type(Item::FirstText, oneOf(kNames)); break;
    }
  }

  using Settings = mst::RenamerSettings;
  static constexpr std::pair<Item, bool Settings::*> kMarks[] = {
      // clang-format off
      {Item::BaseNameOn, &Settings::baseNameOn}, {Item::PrefixOn, &Settings::prefixOn}, {Item::SuffixOn, &Settings::suffixOn},
      {Item::ReplaceOn, &Settings::replaceOn},   {Item::RegexOn, &Settings::regexOn},   {Item::ColumnOn, &Settings::columnOn},
      {Item::Invert, &Settings::invert},         {Item::RowOn, &Settings::rowOn},
      {Item::SkelegonName, &Settings::renameSkelegonName}, {Item::WeightMap, &Settings::renameWeightMap},
      {Item::BoneProperty, &Settings::renameProperties},   {Item::OverlapCheck, &Settings::overlapCheck},
      // clang-format on
  };
  static constexpr std::pair<Item, std::string Settings::*> kTexts[] = {
      // clang-format off
      {Item::Prefix, &Settings::prefix},           {Item::Suffix, &Settings::suffix},
      {Item::ReplaceFrom, &Settings::replaceFrom}, {Item::ReplaceTo, &Settings::replaceTo},
      {Item::BaseName, &Settings::baseName},
      {Item::RegexPattern, &Settings::regexPattern}, {Item::RegexFormat, &Settings::regexFormat},
      // clang-format on
  };

  Settings settings() const {
    Settings s;
    for (const auto& [item, mark] : kMarks) s.*mark = at(item)->integer != 0;
    for (const auto& [item, text] : kTexts) s.*text = at(item)->text;
    s.target = static_cast<mst::RenameTarget>(at(Item::Target)->integer);
    s.order = at(Item::Order)->integer;
    s.columnStart = at(Item::ColumnStart)->integer;
    s.rowDigits = std::clamp(at(Item::RowDigits)->integer, 1, 6);
    s.rowStart = std::max(0, at(Item::RowStart)->integer);
    return s;
  }

  void changeSettings() {
    for (int i = 0; i < 2; ++i) EXPECT_TRUE(person::toggle(at(oneOf(kMarks).first)));
    EXPECT_TRUE(person::choose(at(Item::Target), below(4)));
    EXPECT_TRUE(person::choose(at(Item::Order), below(17)));
    EXPECT_TRUE(person::choose(at(Item::ColumnStart), below(26)));
    EXPECT_TRUE(person::enter(at(Item::RowDigits), below(10) - 1));
    EXPECT_TRUE(person::enter(at(Item::RowStart), below(30) - 2));
    const Item text = kTexts[placeBelow(4)].first;
    type(text, oneOf(kParts));
    type(Item::BaseName, oneOf(kBaseNames));
    const auto& [pattern, format] = oneOf(kPatterns);
    type(Item::RegexPattern, pattern);
    type(Item::RegexFormat, format);
  }

  void toggleBoneProperty() { EXPECT_TRUE(person::toggle(at(Item::BoneProperty))); }

  void addSelected() {
    EXPECT_TRUE(person::press(at(Item::Add)));
    for (const skg::PolygonId id : mesh.ids(mesh.selected())) {
      if (std::find(registered.begin(), registered.end(), id) == registered.end()) registered.push_back(id);
    }
  }

  void clearRegistered() {
    EXPECT_TRUE(person::press(at(Item::Clear)));
    registered.clear();
  }

  struct Plan {
    struct Text {
      std::size_t place;
      std::uint32_t type;
      std::string text;
    };
    std::string error = {};
    std::vector<Text> texts = {};
  };

  // What a rule makes of a skelegon's text. The patterns of the walk can do no more wrong than cut a letter.
  struct Cut {
    std::string skelegon;
  };
  template <class Work>
  static std::string textFor(const std::string& skelegon, Work work) {
    try {
      return work();
    } catch (const mst::CTextRefused&) {
      throw Cut{skelegon};
    }
  }

  Plan planSimple() const {
    mst::CSimpleRule rule(mode(), at(Item::FirstText)->text, at(Item::SecondText)->text);
    Plan plan;
    for (const std::size_t place : mesh.selected()) {
      for (const Slot slot : mst::kSimpleModeSlots) {
        if (slot != Slot::Name && at(Item::BoneProperty)->integer == 0) break;
        const std::uint32_t type = skg::SlotTagId(slot);
        const auto text = [&] { return rule.newText(mesh[place].text(type)); };
        plan.texts.push_back({place, type, textFor(mesh[place].text(lw::kTagBone), text)});
      }
    }
    if (plan.texts.empty()) plan.error = kNeedSelection;
    return plan;
  }

  Plan planAdvanced() const {
    const Settings s = settings();
    const skg::SkelegonList skelegons = mesh.list();
    const auto [targets, heads] = mst::chooseTargets(s.target, skelegons, mesh.ids(mesh.selected()), registered);
    if (heads.empty()) return {kNeedSelection};
    mst::setCounters(targets, skg::order(heads, s.order, s.invert));
    mst::CNameRule rule(s);
    const auto newText = [&](const skg::SkelegonNode& target, const std::string& old) {
      return textFor(target.name, [&] { return rule.newText(old, target.column, target.row); });
    };
    if (s.renameSkelegonName && s.overlapCheck) {
      Names names;
      for (const skg::SkelegonNode* const target : targets) names.push_back(newText(*target, target->name));
      if (mst::firstDuplicate(names)) return {kDuplicated};
    }

    std::vector<std::uint32_t> types;
    if (s.renameSkelegonName) types.push_back(lw::kTagBone);
    if (s.renameWeightMap) types.push_back(lw::kTagBoneWeight);
    for (const Slot slot : skg::kNameBearingSlots) {
      if (s.renameProperties) types.push_back(skg::SlotTagId(slot));
    }
    Plan plan;
    for (const skg::SkelegonNode* const target : targets) {
      const std::size_t place = mesh.placeOf(target->polygon);
      for (const std::uint32_t type : types) {
        const std::string old = mesh[place].text(type);
        const std::string text = newText(*target, old);
        if (text != old) plan.texts.push_back({place, type, text});
      }
    }
    return plan;
  }

  Plan plan() const {
    try {
      return mode() == mst::RenameMode::Advanced ? planAdvanced() : planSimple();
    } catch (const Cut& cut) {
      return {std::string(kCutsLetter) + " (" + cut.skelegon + ")"};
    }
  }

  void runRenamer() {
    const bool isAdvanced = mode() == mst::RenameMode::Advanced;
    const Plan plan = this->plan();
    if (std::any_of(plan.texts.begin(), plan.texts.end(), [](const auto& t) { return t.text.size() > kLongestText; }))
      return;
    EXPECT_TRUE(person::press(at(Item::Run)));
    if (!plan.error.empty()) errorsExpected = {plan.error};
    for (const auto& [place, type, text] : plan.texts) mesh.put(place, type, text);
    // A simple run that failed is told to nobody.
    if (isAdvanced || plan.error.empty()) bothHear();
  }

  static constexpr const char* kCutsLetter = "The regular expression cuts a letter in two!";
  static constexpr const char* kNeedSelection = "Need select the skelegon!";
  static constexpr const char* kDuplicated = "Skelegon names are duplicated!";

  std::mt19937 random;
  std::string drawn;  // the numbers of the present action
  walk::Tree::Press lastPress_;
};

}  // namespace varnel::test
