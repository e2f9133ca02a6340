// What a person does in the three panels at random, and what is expected to come of it.
#pragma once

#include <random>
#include <string>
#include <string_view>

#include "tests/tools/panels_walk_fixture.h"
#include "tests/tools/panels_walk_rename.h"

namespace varnel::test {

// Texts that grow and grow are another test's.
inline constexpr std::size_t kLongestText = 90;  // bytes

inline constexpr const char* kNames[] = {
    "",       "Hips",    "Chest",    "Head",  "Spine",
    "腰",     "腕_L_01", "Same",     "Bone2", "a b",
    "Bone10", "100%d",   "Arm_L_02", "尾",    "右腕の補助骨その一_L_Shoulder_Helper_01"};
inline constexpr const char* kParts[] = {"", "x_", "左", "_L", "_R", "_L_", "_R_", "1", "o"};
inline constexpr const char* kBaseNames[] = {"Bone01_[col]_[row]", "骨", "A[row]", "", "[col]"};
struct Pattern {
  const char* pattern;
  const char* format;
};
inline constexpr Pattern kPatterns[] = {{"(.*)_L(.*)", "$1_R$2"}, {"(.*)_R(.*)", "$1_L$2"}, {"[0-9]+$", "7"}, {"o*", "-"},
                                        {"^(.)(.)", "$2$1"},      {"腕|腰", "骨"}};

class ThreePanelsUsed : public ThreePanels {
 protected:
  // The same on every system: the engine's numbers are the standard's, and no distribution is used.
  int below(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }
  std::size_t placeBelow(std::size_t count) { return static_cast<std::size_t>(random()) % count; }
  bool oneIn(int count) { return below(count) == 0; }
  template <class Value, std::size_t size>
  const Value& oneOf(const Value (&values)[size]) {
    return values[placeBelow(size)];
  }
  walk::Places someOf(const walk::Places& places) {
    const int share = 1 + below(6);
    walk::Places some;
    for (const std::size_t place : places) {
      if (oneIn(share)) some.push_back(place);
    }
    return some;
  }

  bool always() const { return true; }
  bool selectorIsFresh() const { return selector.isOpen() && selector.isFresh; }
  bool propertiesAreFresh() const { return properties.isOpen() && properties.isFresh; }
  bool oneCanBeNamed() const { return propertiesAreFresh() && mesh.selected().size() == 1; }
  bool oneCanBeShown() const { return propertiesAreFresh() && mesh.selected().size() > 1; }
  bool selectorIsOpen() const { return selector.isOpen(); }
  bool propertiesAreOpen() const { return properties.isOpen(); }
  bool selectorIsStale() const { return selector.isOpen() && !selector.isFresh; }
  bool propertiesAreStale() const { return properties.isOpen() && !properties.isFresh; }
  bool renamerIsOpen() const { return renamer.isOpen(); }
  bool renamerIsAdvanced() const { return renamer.isOpen() && mode() == mst::RenameMode::Advanced; }
  bool renamerIsSimple() const { return renamer.isOpen() && mode() != mst::RenameMode::Advanced; }

  // --- the selector --------------------------------------------------------------------------------------------------------

  walk::Tree::Press somewhere() {
    walk::Tree::Press press;
    const auto row = placeBelow(tree.rows().size());
    const int indent = 12 * tree.rows()[row].depth - tree.scrollX();
    const int places[] = {indent,      indent - 16, indent + 15,       indent + 30,
                          indent + 60, indent - 30, tree.width() - 20, below(tree.width())};
    press.x = oneOf(places);
    press.y = oneIn(10) ? below(tree.height()) : 14 * static_cast<int>(row) + below(14) - tree.scrollY();
    press.x = std::clamp(press.x, 0, tree.width() - 1);
    if (press.y < 0 || press.y >= tree.height()) press.y = below(tree.height());
    return press;
  }

  std::string clickTree() {
    static constexpr int kQualifiers[] = {0,
                                          0,
                                          0,
                                          lw::kMouseCtrl,
                                          lw::kMouseCtrl,
                                          lw::kMouseShift,
                                          lw::kMouseShift,
                                          lw::kMouseAlt,
                                          lw::kMouseCtrl | lw::kMouseShift | lw::kMouseAlt};
    walk::Tree::Press press = somewhere();
    press.qualifiers = oneOf(kQualifiers);
    if (oneIn(8)) press.button = oneIn(2) ? standin::MouseButton::Right : standin::MouseButton::Middle;
    if (oneIn(6)) {
      if (oneIn(2)) press = lastPress_;  // twice at one place
      press.clicks = 2 + below(2);
    }
    press.x = std::min(press.x, tree.width() - 1);
    press.y = std::min(press.y, tree.height() - 1);
    lastPress_ = press;
    EXPECT_TRUE(person::click(treeControl(), press.x, press.y, press.button, press.qualifiers, press.clicks));
    if (tree.press(press)) {
      mesh.select(tree.selected());
      propertiesHear();
    }
    return "click at " + std::to_string(press.x) + ", " + std::to_string(press.y) + " with " +
           std::to_string(press.qualifiers) + ", clicks " + std::to_string(press.clicks);
  }

  // That a host which has nothing but the event tells of releases is known from the first one on.
  void touchScrollBar() {
    const walk::Tree::Press press{tree.width() - 5, 0};
    EXPECT_TRUE(person::click(treeControl(), press.x, press.y));
    tree.press(press);
  }

  std::string dragScrollBar() {
    const bool isVertical = oneIn(2);
    walk::Tree::Press press;
    press.x = isVertical ? tree.width() - 5 : below(tree.width() - 12);
    press.y = isVertical ? below(tree.height() - 12) : tree.height() - 5;
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
    return isVertical ? "drag the right bar" : "drag the bottom bar";
  }

  std::string turnWheel() {
    const int notches = below(7) - 3;
    EXPECT_TRUE(person::wheel(selector.panel, 50, 20, notches));
    if (standin::panels().options.mouse != standin::MouseDelivery::Control) tree.wheel(notches);
    return "wheel";
  }

  std::string resizeSelector() {
    const int width = 250 + (oneIn(2) ? 0 : below(250));
    const int height = 87 + below(oneIn(2) ? 100 : 480);
    if (width == selector.panel->width && height == selector.panel->height) return "nothing";
    EXPECT_TRUE(person::resize(selector.panel, width, height));
    EXPECT_EQ(treeControl()->hotWidth, width - 10);
    EXPECT_EQ(treeControl()->hotHeight, height - 55);
    tree.setView(width - 10, height - 55);
    return "resize";
  }

  std::string syncSelector() {
    EXPECT_TRUE(person::press(selector.panel->find("Sync")));
    treeHears();
    return "Sync of the selector";
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

  // The panel looks again after what changes more than one control, and tells the others of every change.
  void changedOneValue() { treeHears(); }
  void putValue(int slot, const std::string& text) {
    mesh.putValue(slot, text);
    showOnNothing(slot, text);
  }
  // What is put into a control while nothing is selected is stored nowhere, and stays in sight until the panel looks again.
  void showOnNothing(int slot, const std::string& text) {
    if (mesh.selected().empty()) shownOfNone[static_cast<skg::Slot>(slot)] = text;
  }
  void changedMore() {
    propertiesHear();
    treeHears();
  }

  void useValueControl(const mst::ControlRow& row, Control* control) {
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

  std::string changeValue() {
    const mst::ControlRow& row = mst::controlTable()[9 + placeBelow(183)];
    if (!row.slot) return "nothing";
    show(row.number);
    Control* const control = field(row.number);
    const int before = control->eventsFired;
    useValueControl(row, control);
    const std::string text = valueOf(row, *control);
    const int slot = static_cast<int>(skg::indexOf(*row.slot));
    if (control->eventsFired == before) return "the same value again";
    if (*row.slot == skg::Slot::Colour) {
      mesh.putOnSelected(walk::kColourCopy, text);
      mesh.putOnSelected(lw::kTagColour, text == "DkCyn" || text == "Cyan" ? "" : text);
      showOnNothing(slot, text);
    } else {
      putValue(slot, text);
    }
    changedOneValue();
    return "slot " + std::to_string(slot) + " to \"" + text + "\"";
  }

  std::string typeName() {
    Control* const edit = field(mst::control::kNameEdit);
    const std::string name = oneOf(kNames);
    const int before = edit->eventsFired;
    EXPECT_TRUE(person::type(edit, name));
    if (edit->eventsFired == before) return "the same name again";
    mesh.putOnSelected(lw::kTagBone, name);
    mesh.putOnSelected(lw::kTagPart, name);
    changedOneValue();
    return "name to \"" + name + "\"";
  }

  std::string showAnother() {
    const int index = below(static_cast<int>(mesh.selected().size()));
    EXPECT_TRUE(person::choose(field(mst::control::kNamePopup), index));
    shownOfSelected = static_cast<std::size_t>(index);
    return "show the values of number " + std::to_string(index);
  }

  std::string fillLinked() {
    struct Fill {
      std::size_t field;
      int slot;
      const char* suffix;
    };
    static constexpr Fill kFills[] = {{42, 142, "_initpos"}, {49, 52, "_tar"},  {56, 53, "_pole"}, {65, 55, "_goal"},
                                      {92, 73, "_pos"},      {126, 92, "_rot"}, {159, 110, "_scl"}};
    const Fill& fill = oneOf(kFills);
    press(fill.field + 1);
    for (const std::size_t place : mesh.selected()) {
      mesh.put(place, walk::kFamily | static_cast<std::uint32_t>(fill.slot), mesh[place].name() + fill.suffix);
    }
    changedMore();
    return std::string("fill ") + fill.suffix;
  }

  std::string fillWeightMaps() {
    press(kMapChooser + 1);
    for (const std::size_t place : mesh.selected()) {
      const std::string name = mesh[place].name();
      const bool isMap = std::find(kWalkMaps.begin(), kWalkMaps.end(), name) != kWalkMaps.end();
      mesh.put(place, walk::kFamily | 27, isMap ? "1" : "0");
      mesh.put(place, lw::kTagBoneWeight, isMap ? name : "");
    }
    changedMore();
    return "weight maps by name";
  }

  std::string chooseWeightMap() {
    show(kMapChooser);
    const auto index = placeBelow(kWalkMaps.size() + 1);
    EXPECT_TRUE(person::choose(field(kMapChooser), static_cast<int>(index)));
    putValue(27, index == 0 ? "0" : "1");
    putValue(28, index == 0 ? "" : kWalkMaps[index - 1]);
    changedOneValue();
    return "weight map " + std::to_string(index);
  }

  std::string chooseItem() {
    struct Chooser {
      std::size_t number;
      int slot;
    };
    static constexpr Chooser kChoosers[] = {{kParentChooser, 51}, {55, 130}, {62, 131}, {71, 132}, {98, 133},
                                            {132, 134},           {165, 135}};
    const Chooser& chooser = oneOf(kChoosers);
    show(chooser.number);
    const Names items = field(chooser.number)->items();
    const int index = below(static_cast<int>(items.size()));
    EXPECT_TRUE(person::choose(field(chooser.number), index));
    const std::string item = index == 0 ? "" : items[static_cast<std::size_t>(index)];
    putValue(chooser.slot, item);
    changedOneValue();
    return "item \"" + item + "\" into slot " + std::to_string(chooser.slot);
  }

  std::string pressPreset() {
    static constexpr std::size_t kControllers[] = {91, 125, 159};
    static constexpr int kFirst[] = {76, 95, 113};
    static constexpr const char* kValues[] = {"0", "3", "6"};
    const auto group = placeBelow(3);
    const auto which = placeBelow(3);
    show(kControllers[group]);
    EXPECT_TRUE(person::press(field(88 + which)));
    for (int axis = 0; axis < 3; ++axis) {
      mesh.putOnSelected(walk::kFamily | static_cast<std::uint32_t>(kFirst[group] + 5 * axis), kValues[which]);
    }
    changedMore();
    return "preset";
  }

  std::string resetValues() {
    const bool isAll = oneIn(4);
    const bool yes = !oneIn(4);
    host.answer(yes ? standin::Answer::yes : standin::Answer::no);
    press(isAll ? mst::control::kResetAll : mst::control::kReset);
    if (!yes) return "reset: no";
    for (const std::size_t place : isAll ? mesh.living() : mesh.selected()) mesh.resetSettings(place);
    changedMore();
    return isAll ? "reset all" : "reset";
  }

  std::string turnPage() {
    show(9 + placeBelow(183));
    return "page";
  }

  std::string syncProperties() {
    press(mst::control::kSync);
    changedMore();
    return "Sync of the property panel";
  }

  // --- the renamer ---------------------------------------------------------------------------------------------------------

  mst::RenameMode mode() const { return static_cast<mst::RenameMode>(at(Item::Mode)->integer); }
  bool isOn(Item item) const { return at(item)->integer != 0; }
  void type(Item item, std::string_view text) { EXPECT_TRUE(person::type(at(item), text)); }

  std::string chooseMode() {
    static constexpr mst::RenameMode kModes[] = {mst::RenameMode::Change,
                                                 mst::RenameMode::Prefix,
                                                 mst::RenameMode::Suffix,
                                                 mst::RenameMode::Replace,
                                                 mst::RenameMode::RegularExpression,
                                                 mst::RenameMode::Advanced,
                                                 mst::RenameMode::Advanced};
    const mst::RenameMode next = oneOf(kModes);
    EXPECT_TRUE(person::choose(at(Item::Mode), static_cast<int>(next)));
    return "mode " + std::to_string(static_cast<int>(next));
  }

  std::string typeTexts() {
    const Pattern& pattern = oneOf(kPatterns);
    switch (mode()) {
      case mst::RenameMode::RegularExpression:
        type(Item::FirstText, pattern.pattern);
        type(Item::SecondText, pattern.format);
        break;
      case mst::RenameMode::Replace: type(Item::SecondText, oneOf(kParts)); [[fallthrough]];
      case mst::RenameMode::Prefix:
      case mst::RenameMode::Suffix: type(Item::FirstText, oneOf(kParts)); break;
      default: type(Item::FirstText, oneOf(kNames)); break;
    }
    return "texts";
  }

  std::string changeSettings() {
    static constexpr Item kMarks[] = {Item::BaseNameOn,   Item::PrefixOn,  Item::SuffixOn,     Item::ReplaceOn,
                                      Item::RegexOn,      Item::ColumnOn,  Item::Invert,       Item::RowOn,
                                      Item::SkelegonName, Item::WeightMap, Item::BoneProperty, Item::OverlapCheck};
    for (int i = 0; i < 2; ++i) EXPECT_TRUE(person::toggle(at(oneOf(kMarks))));
    EXPECT_TRUE(person::choose(at(Item::Target), below(4)));
    EXPECT_TRUE(person::choose(at(Item::Order), below(17)));
    EXPECT_TRUE(person::choose(at(Item::ColumnStart), below(26)));
    EXPECT_TRUE(person::enter(at(Item::RowDigits), below(10) - 1));
    EXPECT_TRUE(person::enter(at(Item::RowStart), below(30) - 2));
    static constexpr Item kTexts[] = {Item::Prefix, Item::Suffix, Item::ReplaceFrom, Item::ReplaceTo};
    const Item text = oneOf(kTexts);
    type(text, oneOf(kParts));
    type(Item::BaseName, oneOf(kBaseNames));
    const Pattern& pattern = oneOf(kPatterns);
    type(Item::RegexPattern, pattern.pattern);
    type(Item::RegexFormat, pattern.format);
    return "advanced settings";
  }

  std::string toggleBoneProperty() {
    EXPECT_TRUE(person::toggle(at(Item::BoneProperty)));
    return "Bone Property";
  }

  std::string addSelected() {
    EXPECT_TRUE(person::press(at(Item::Add)));
    for (const std::size_t place : mesh.selected()) {
      if (std::find(registered.begin(), registered.end(), place) == registered.end()) registered.push_back(place);
    }
    return "Add";
  }

  std::string clearRegistered() {
    EXPECT_TRUE(person::press(at(Item::Clear)));
    registered.clear();
    return "Clear";
  }

  mst::RenamerSettings settings() const {
    mst::RenamerSettings s;
    s.replaceOn = isOn(Item::ReplaceOn);
    s.replaceFrom = at(Item::ReplaceFrom)->text;
    s.replaceTo = at(Item::ReplaceTo)->text;
    s.baseNameOn = isOn(Item::BaseNameOn);
    s.baseName = at(Item::BaseName)->text;
    s.prefixOn = isOn(Item::PrefixOn);
    s.prefix = at(Item::Prefix)->text;
    s.suffixOn = isOn(Item::SuffixOn);
    s.suffix = at(Item::Suffix)->text;
    s.regexOn = isOn(Item::RegexOn);
    s.regexPattern = at(Item::RegexPattern)->text;
    s.regexFormat = at(Item::RegexFormat)->text;
    s.target = static_cast<mst::RenameTarget>(at(Item::Target)->integer);
    s.columnOn = isOn(Item::ColumnOn);
    s.order = at(Item::Order)->integer;
    s.columnStart = at(Item::ColumnStart)->integer;
    s.invert = isOn(Item::Invert);
    s.rowOn = isOn(Item::RowOn);
    s.rowDigits = std::clamp(at(Item::RowDigits)->integer, 1, 6);
    s.rowStart = std::max(0, at(Item::RowStart)->integer);
    s.overlapCheck = isOn(Item::OverlapCheck);
    s.renameSkelegonName = isOn(Item::SkelegonName);
    s.renameWeightMap = isOn(Item::WeightMap);
    s.renameProperties = isOn(Item::BoneProperty);
    return s;
  }

  std::string runRenamer() {
    using Answer = walk::RenamePlan::Answer;
    const bool isAdvanced = mode() == mst::RenameMode::Advanced;
    const walk::RenamePlan plan = isAdvanced ? planAdvanced(mesh, settings(), registered)
                                             : planSimple(mesh, mode(), at(Item::FirstText)->text,
                                                          at(Item::SecondText)->text, isOn(Item::BoneProperty));
    if (plan.isUndefined || plan.longest() > kLongestText) return "nothing";
    EXPECT_TRUE(person::press(at(Item::Run)));
    if (plan.answer == Answer::NeedSelection) errorsExpected = {"Need select the skelegon!"};
    if (plan.answer == Answer::Duplicated) errorsExpected = {"Skelegon names are duplicated!"};
    for (const auto& text : plan.texts) mesh.put(text.place, text.type, text.text);
    // A simple run that failed is told to nobody.
    if (isAdvanced || plan.answer == Answer::Renamed) changedMore();
    return "run in mode " + std::to_string(at(Item::Mode)->integer) + ", " + std::to_string(plan.texts.size()) + " texts";
  }

  std::mt19937 random;
  walk::Tree::Press lastPress_;
};

}  // namespace varnel::test
