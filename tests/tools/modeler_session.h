// A stand-in Modeler with the built module in it: what the tests of the Modeler tools share.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "objectfile/rig_builder.h"
#include "skelegon/slots.h"
#include "standin/core/program_folder.h"
#include "standin/core/tool_names.h"
#include "standin/core/witness.h"
#include "standin/modeler/modeler_host.h"
#include "standin/panels/person.h"

namespace varnel::test {

namespace person = standin::person;

using skg::Slot;
using standin::kPropertyTool;
using standin::kRenamerTool;
using standin::kSelectorTool;
using Names = std::vector<std::string>;
using Text = std::optional<std::string>;  // of a tag; none where there is no such tag

inline constexpr std::uint32_t kEnglish = 0x409;
inline constexpr std::uint32_t kJapanese = 0x411;

// Layer 0 "Body": a face, Hips, Chest, Head, weight maps "Head" and "Spine". Layer 1 "Tail": Tail_01 and Tail_02.
inline standin::ObjectFile panelRig() {
  standin::RigBuilder rig;
  rig.layer(0, "Body");
  rig.face({rig.point({0, 0, 0}), rig.point({1, 0, 0}), rig.point({0, 1, 0})}, "Skin");
  rig.weightMap("Head", {{0, 1.0F}});
  rig.weightMap("Spine", {{1, 1.0F}});
  rig.chain({"Hips", "Chest", "Head"}, {{0, 0, 0}, {0, 1, 0}, {0, 2, 0}, {0, 3, 0}});
  rig.layer(1, "Tail");
  rig.chain({"Tail_01", "Tail_02"}, {{0, 0, 5}, {0, 0, 6}, {0, 0, 7}});
  return rig.take();
}

// Modeler with an object, all its layers in the foreground, and the module loaded.
class ModelerSession {
 public:
  using Panel = standin::Panel;
  using Control = standin::Control;

  explicit ModelerSession(standin::ObjectFile file) : object(&host.add(std::move(file), "rig.lwo")) {
    host.showAllLayers();
    EXPECT_NE(standin::modulePath(), "") << "the module is not beside the tests";
    EXPECT_EQ(module.load(standin::modulePath()), "");
  }

  // Whatever a test looks at, the module must have kept to the host's rules.
  ~ModelerSession() {
    standin::panels().moduleUnloaded();
    module.unload();
    EXPECT_EQ(standin::witness().report(), "");
    for (const standin::EditRecord& edit : host.edits()) EXPECT_TRUE(edit.done) << "mode " << edit.mode;
  }
  ModelerSession(const ModelerSession&) = delete;
  ModelerSession& operator=(const ModelerSession&) = delete;

  // Runs a tool. The panel is then that of this run.
  Panel* runTool(const char* tool) {
    EXPECT_EQ(host.activate(module, tool), 0);
    panel = standin::panels().find(tool);
    EXPECT_TRUE(panel != nullptr && panel->isOpen()) << tool;
    return panel;
  }

  // Runs a tool while the host refuses a call that its panel needs; nothing may be open then.
  void runRefused(const char* tool, const char* refusedCall) {
    standin::witness().refuseNext(refusedCall);
    EXPECT_EQ(host.activate(module, tool), 0);
    EXPECT_TRUE(standin::witness().refusalHappened());
    EXPECT_TRUE(standin::panels().open().empty());
  }
  // The module goes while a tool's panel was never made.
  void unloadAfterRefusedPanel(const char* tool) {
    runRefused(tool, "panel create");
    EXPECT_TRUE(standin::panels().all().empty());
    module.unload();
    EXPECT_EQ(standin::witness().report(), "");
  }

  Text stored(std::string_view name, std::uint32_t type) const {
    const standin::MeshPolygon* const polygon = object->skelegon(name);
    if (polygon == nullptr) return "no such skelegon";
    const std::string* const text = polygon->content.tag(type);
    return text == nullptr ? std::nullopt : Text(*text);
  }
  Text stored(std::string_view name, Slot slot) const { return stored(name, skg::SlotTagId(slot)); }
  void store(std::string_view name, std::uint32_t type, const Text& text) {
    object->setTag(*object->skelegon(name), type, text);
  }
  void store(std::string_view name, Slot slot, const Text& text) { store(name, skg::SlotTagId(slot), text); }

  // Everything that is stored on the object's skelegons, to compare it.
  std::string everythingStored() const {
    std::string all;
    for (const standin::MeshPolygon* polygon : object->skelegons()) {
      all += "skelegon\n";
      for (const auto& tag : polygon->content.tags) all += std::to_string(tag.type) + "=" + tag.text + "\n";
    }
    return all;
  }

  // Edits of the session that changed something.
  std::size_t changingEdits() const {
    std::size_t count = 0;
    for (const standin::EditRecord& edit : host.edits()) count += edit.changes > 0 ? 1 : 0;
    return count;
  }

  standin::ModelerHost host;
  standin::ModelerObject* object;
  standin::ModuleFile module;
  Panel* panel = nullptr;
};

// Acts in a session of its own while its n-th host call fails, first for n = 1, then for one that is `strideOf` greater,
// until that is 0; nothing fails in `prepare` before it and in `look` behind it. Both learn of the refused function's name,
// empty once the action makes no so many calls. Whatever fails, no rule of the host's may be broken. Gives the last n.
template <class Session, class Act, class Look>
std::uint64_t refuseEach(
    void (*prepare)(Session&), Act act, Look look,
    std::uint64_t (*strideOf)(const std::string&) = [](const std::string& refused) -> std::uint64_t {
      return refused.empty() ? 0 : 1;
    }) {
  for (std::uint64_t call = 1;;) {
    Session session;
    prepare(session);
    standin::witness().refuseCall(call);
    act(session);
    const std::string refused = standin::witness().refusalHappened() ? standin::witness().refusedFunction() : "";
    SCOPED_TRACE("call " + std::to_string(call) + ", " + refused);
    standin::witness().refuseCall(0);
    look(session, refused);
    const std::uint64_t stride = strideOf(refused);
    if (stride == 0) return call;
    call += stride;
  }
}

inline void closeIfOpen(const char* tool) {
  standin::Panel* const panel = standin::panels().find(tool);
  if (panel == nullptr || !panel->isOpen()) return;
  EXPECT_TRUE(person::close(panel));
}

// Calls that give nothing back: a module cannot know that they did not do what they should.
inline bool cannotBeNoticed(const std::string& function) {
  return function == "control set" || function == "control draw" || function == "panel set";
}

}  // namespace varnel::test
