// A seeded random walk of a person over the open property panel. After each action the whole mesh is compared with a model
// that knows the storing rules from its own few lines.
#include <cstdio>
#include <map>
#include <random>

#include "tests/tools/property_panel_fixture.h"

namespace varnel::test {
namespace {

using Tags = std::map<std::uint32_t, std::string>;

constexpr std::uint32_t kFamily = 0x73673100;
constexpr unsigned kSeed = 20;
constexpr int kActions = 10000;

std::string realText(double value) {
  char text[64];
  std::snprintf(text, sizeof text, "%.6f", value);
  return text;
}

class PropertyWalk : public PropertyPanel {
 protected:
  struct Skelegon {
    const standin::MeshPolygon* polygon;
    Tags tags;
    bool isSelected;
  };

  void SetUp() override {
    for (const standin::MeshPolygon* polygon : object->skelegons()) {
      Skelegon skelegon{polygon, {}, false};
      for (const auto& tag : polygon->content.tags) skelegon.tags[tag.type] = tag.text;
      model.push_back(skelegon);
    }
    openWith({});
  }

  int below(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }

  std::string name() {
    static const char* const kNames[] = {"", "Hips", "Chest", "Head", "Spine", "腰", "a b", "100%d", "Bone_L_01"};
    return kNames[below(9)];
  }

  // --- the model -----------------------------------------------------------------------------------------------------------

  std::size_t selectedCount() const {
    std::size_t count = 0;
    for (const Skelegon& skelegon : model) count += skelegon.isSelected ? 1 : 0;
    return count;
  }

  bool layerIsSelected(int layer) const {
    for (const Skelegon& skelegon : model) {
      if (skelegon.isSelected && skelegon.polygon->layer == layer) return true;
    }
    return false;
  }

  static void put(Skelegon& skelegon, std::uint32_t type, const std::string& text) {
    const bool keepsBlank = type >> 8 != kFamily >> 8;
    if (text.empty() && !keepsBlank) {
      skelegon.tags.erase(type);
    } else {
      skelegon.tags[type] = text;
    }
  }

  template <class Text>
  void putTextOf(std::uint32_t type, Text textOf) {
    for (Skelegon& skelegon : model) {
      if (skelegon.isSelected) put(skelegon, type, textOf(skelegon));
    }
  }
  void putOnSelected(std::uint32_t type, const std::string& text) {
    putTextOf(type, [&](const Skelegon&) { return text; });
  }

  void putValue(int slot, std::string text) {
    if (text == skg::SlotDefaults(static_cast<Slot>(slot))) text.clear();
    const std::uint32_t type = slot == 28 ? lw::kTagBoneWeight : kFamily | static_cast<std::uint32_t>(slot);
    const bool ofLayer = slot >= 12 && slot <= 17;
    for (Skelegon& skelegon : model) {
      if (ofLayer ? layerIsSelected(skelegon.polygon->layer) : skelegon.isSelected) put(skelegon, type, text);
    }
  }

  void expectMeshAsModel(int action, const std::string& what) {
    for (const Skelegon& skelegon : model) {
      Tags tags;
      for (const auto& tag : skelegon.polygon->content.tags) tags[tag.type] = tag.text;
      ASSERT_EQ(tags, skelegon.tags) << "action " << action << ": " << what << ", seed " << kSeed;
    }
  }

  // --- the person ----------------------------------------------------------------------------------------------------------

  std::string selectSome() {
    std::vector<const standin::MeshPolygon*> chosen;
    for (Skelegon& skelegon : model) {
      skelegon.isSelected = below(3) == 0;
      if (skelegon.isSelected) chosen.push_back(skelegon.polygon);
    }
    host.selectPolygons(chosen);
    sync();
    return "select";
  }

  std::string changeValue() {
    const mst::ControlRow& row = mst::controlTable()[static_cast<std::size_t>(below(192))];
    if (row.role != mst::Role::Value || mst::ControlSlotMap(row.number).value == mst::ValueKind::Colour) return "nothing";
    const int slot = static_cast<int>(skg::indexOf(*row.slot));
    show(row.number);
    Control* const control = this->control(row.number);
    const int before = control->eventsFired;
    std::string text;
    switch (row.kind) {
      case mst::HostControl::Bool:
      case mst::HostControl::BoolButton:
        EXPECT_TRUE(person::toggle(control));
        text = std::to_string(control->integer);
        break;
      case mst::HostControl::Popup: {
        const int index = below(static_cast<int>(control->items().size()));
        EXPECT_TRUE(person::choose(control, index));
        text = std::to_string(index);
        break;
      }
      case mst::HostControl::Edit:
        text = name();
        EXPECT_TRUE(person::type(control, text));
        break;
      case mst::HostControl::MiniSlider:
        EXPECT_TRUE(person::enter(control, below(50)));
        text = std::to_string(control->integer);
        break;
      default:
        EXPECT_TRUE(person::enter(control, below(8) * 25));
        text = realText(control->real);
        break;
    }
    if (control->eventsFired > before) putValue(slot, text);
    return "slot " + std::to_string(slot) + " to \"" + text + "\"";
  }

  std::string changeColour() {
    static constexpr int kColourSlots[] = {129, 152, 153, 154, 155, 156, 157, 158};
    const int slot = kColourSlots[below(8)];
    const int index = below(16);
    const std::string word(skg::BoneColourNames[static_cast<std::size_t>(index)]);
    choose(static_cast<Slot>(slot), index);
    if (slot != 129) {
      putValue(slot, word);
    } else {
      putOnSelected(kFamily | 129, word);
      putOnSelected(lw::kTagColour, index == 3 || index == 10 ? "" : word);
    }
    return "colour " + std::to_string(slot) + " to " + word;
  }

  std::string rename() {
    if (selectedCount() != 1) return "nothing";
    Control* const edit = control(mst::control::kNameEdit);
    const int before = edit->eventsFired;
    const std::string text = name();
    EXPECT_TRUE(person::type(edit, text));
    if (edit->eventsFired > before) {
      putOnSelected(lw::kTagBone, text);
      putOnSelected(lw::kTagPart, text);
    }
    return "name to \"" + text + "\"";
  }

  std::string fillLinked() {
    struct Fill {
      int slot;
      const char* suffix;
    };
    static constexpr Fill kFills[] = {{52, "_tar"}, {53, "_pole"}, {55, "_goal"},    {73, "_pos"},
                                      {92, "_rot"}, {110, "_scl"}, {142, "_initpos"}};
    const Fill& fill = kFills[below(7)];
    pressBehind(static_cast<Slot>(fill.slot));
    putTextOf(kFamily | static_cast<std::uint32_t>(fill.slot), [&](const Skelegon& skelegon) {
      const auto bone = skelegon.tags.find(lw::kTagBone);
      return (bone == skelegon.tags.end() ? std::string() : bone->second) + fill.suffix;
    });
    return std::string("fill ") + fill.suffix;
  }

  std::string preset() {
    static constexpr int kFirst[] = {76, 95, 113};
    static constexpr int kStep = 5;
    static const char* const kValues[] = {"0", "3", "6"};
    const int group = below(3);
    const int which = below(3);
    showGroup(static_cast<Group>(group));
    press(static_cast<std::size_t>(88 + which));
    for (int axis = 0; axis < 3; ++axis) {
      putOnSelected(kFamily | static_cast<std::uint32_t>(kFirst[group] + kStep * axis), kValues[which]);
    }
    return "preset " + std::to_string(which) + " of group " + std::to_string(group);
  }

  std::string weightMapsByName() {
    pressBehind(Slot::WeightMap, 2);
    for (Skelegon& skelegon : model) {
      if (!skelegon.isSelected) continue;
      const auto bone = skelegon.tags.find(lw::kTagBone);
      const std::string own = bone == skelegon.tags.end() ? "" : bone->second;
      const bool isThere = own == "Head" || own == "Spine";
      put(skelegon, kFamily | 27, isThere ? "1" : "0");
      put(skelegon, lw::kTagBoneWeight, isThere ? own : "");
    }
    return "weight maps by name";
  }

  std::string reset() {
    const bool all = below(2) == 0;
    const bool yes = below(2) == 0;
    host.answer(yes ? standin::Answer::yes : standin::Answer::no);
    press(all ? mst::control::kResetAll : mst::control::kReset);
    if (yes) {
      for (Skelegon& skelegon : model) {
        if (!all && !skelegon.isSelected) continue;
        std::erase_if(skelegon.tags, [](const auto& tag) { return tag.first >> 8 == kFamily >> 8; });
      }
    }
    return std::string(all ? "reset all: " : "reset: ") + (yes ? "yes" : "no");
  }

  std::string turnPage() {
    if (below(2) == 0) {
      showPage(static_cast<Page>(below(4)));
    } else {
      showGroup(static_cast<Group>(below(3)));
    }
    return "page";
  }

  std::string act() {
    switch (below(20)) {
      case 0:
      case 1: return selectSome();
      case 2: return rename();
      case 3:
      case 4: return changeColour();
      case 5: return fillLinked();
      case 6: return preset();
      case 7: return weightMapsByName();
      case 8: return turnPage();
      case 9: return below(8) == 0 ? reset() : turnPage();
      default: return changeValue();
    }
  }

  std::vector<Skelegon> model;
  std::mt19937 random{kSeed};
};

TEST_F(PropertyWalk, KeepsTheMeshAsTheRulesSayForTenThousandActions) {
  for (int action = 0; action < kActions; ++action) {
    const std::string what = act();
    expectMeshAsModel(action, what);
    if (HasFailure()) return;
  }
}

}  // namespace
}  // namespace varnel::test
