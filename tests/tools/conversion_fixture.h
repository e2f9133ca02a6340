// A stand-in Layout with the built module in it, and what a user of the conversion tool does.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "objectfile/rig_builder.h"
#include "objectfile/temporary_folder.h"
#include "standin/core/program_folder.h"
#include "standin/core/tool_names.h"
#include "standin/core/witness.h"
#include "standin/layout/layout_host.h"
#include "standin/panels/person.h"

namespace standin {

using StoredSetting = std::pair<std::uint8_t, std::string>;
using StoredSettings = std::vector<StoredSetting>;

class ConversionTest : public testing::Test {
 protected:
  explicit ConversionTest(const LayoutOptions& options = {}) : host(options) {}

  void SetUp() override {
    ASSERT_NE(modulePath(), "") << "the module is not beside the tests";
    ASSERT_EQ(module.load(modulePath()), "");
  }

  // Whatever a test looks at, the module must have kept to the host's rules.
  void TearDown() override {
    panels().moduleUnloaded();
    module.unload();
    EXPECT_EQ(witness().report(), "");
  }

  // Saves the object and loads it into the scene.
  std::vector<Item*> load(const ObjectFile& object, const std::string& fileName = "rig.lwo") {
    const std::string path = folder.file(fileName);
    const auto failure = writeObject(object, path);
    EXPECT_FALSE(failure.has_value()) << (failure ? failure->text : "");
    std::string why;
    std::vector<Item*> items = host.loadObject(path, &why);
    EXPECT_FALSE(items.empty()) << why;
    return items;
  }

  Panel* openTool() {
    EXPECT_EQ(host.activate(module, kConversionTool), 0);
    return panels().find(kConversionTool);
  }

  // Opens the tool on the selected items and presses "Run".
  void run(bool makeBones = true, bool recordPivot = true) {
    Panel* const panel = openTool();
    ASSERT_NE(panel, nullptr);
    ASSERT_TRUE(person::switchTo(panel->find(ControlKind::Bool, 0), makeBones));
    ASSERT_TRUE(person::switchTo(panel->find(ControlKind::Bool, 1), recordPivot));
    ASSERT_TRUE(person::press(panel->find(ControlKind::Button, 0)));
  }

  void convert(const std::vector<Item*>& items) {
    host.select(items);
    run();
  }

  std::vector<std::string> commands() const { return host.transcript().commands(); }

  // The commands that were sent for the n-th skelegon that the run came to.
  std::vector<std::string> commandsOfSkelegon(std::size_t n) const {
    std::vector<std::string> result;
    std::size_t seen = 0;
    for (const std::string& command : commands()) {
      if (command.rfind("StatusMsg {", 0) == 0) {
        ++seen;
      } else if (seen == n + 1) {
        result.push_back(command);
      }
    }
    return result;
  }

  std::size_t countOf(const std::string& beginning) const {
    std::size_t count = 0;
    for (const std::string& command : commands()) count += command.rfind(beginning, 0) == 0 ? 1 : 0;
    return count;
  }

  std::vector<std::string> statusTexts() const { return host.transcript().texts(EventKind::Status); }

  bool statusSays(const std::string& text) const {
    for (const std::string& status : statusTexts()) {
      if (status == text) return true;
    }
    return false;
  }

  Item& item(const std::string& name) {
    Item* const found = host.scene().find(name);
    if (found == nullptr) throw std::out_of_range("no item " + name);
    return *found;
  }

  bool has(const std::string& name) const { return host.scene().find(name) != nullptr; }

  TemporaryFolder folder;
  LayoutHost host;
  ModuleFile module;
};

// A layer 0 without a name: its item is named after the file.
inline RigBuilder oneLayer() {
  RigBuilder rig;
  rig.layer(0, "");
  return rig;
}

inline void store(RigBuilder& rig, const RigBuilder::Skelegon& skelegon, const StoredSettings& settings) {
  for (const auto& [slot, text] : settings) {
    const std::uint32_t type = slot == 28 ? lw::kTagBoneWeight : slot == 129 ? lw::kTagColour : settingTag(slot);
    rig.tag(skelegon, type, text);
  }
}

// "Root" with "Bone" behind it, the latter with these settings.
inline ObjectFile twoBones(const StoredSettings& ofBone, const StoredSettings& ofRoot = {}) {
  RigBuilder rig = oneLayer();
  const auto root = rig.root("Root", {0, 0, 0}, {0, 1, 0});
  const auto bone = rig.child(root, "Bone", {0, 2, 0});
  store(rig, root, ofRoot);
  store(rig, bone, ofBone);
  return rig.take();
}

}  // namespace standin
