// The probe in Layouts that refuse a command always, lie about it, lack a function, or never end a list: it comes through,
// and what is the user's stays as it is.
#include <array>
#include <cstring>
#include <functional>
#include <set>
#include <vector>

#include "standin/core/witness.h"
#include "standin/layout/scene_report.h"
#include "standin/panels/person.h"
#include "standin/variants/played_host.h"
#include "tests/probe/holed_tables.h"
#include "tests/probe/probe_fixture.h"

namespace standin {
namespace {

// What stands between the probe and the host's commands: one of them is answered without being run.
struct Between {
  lw::CommandFunc host = nullptr;
  std::string command;  // the first word
  int answer = 0;
  std::set<std::string> sent;
};
Between between;

int answered(const char* text) {
  const std::string word(text, std::strcspn(text, " "));
  between.sent.insert(word);
  return word == between.command ? between.answer : between.host(text);
}

class HostileLayout : public Probing {
 protected:
  explicit HostileLayout(const HostOptions& options = {})
      : host_(options), light_(host_.scene().addLight("Light")), camera_(host_.scene().addCamera("Camera")) {
    host_.select({&camera_});
    between = {};
    between.host = reinterpret_cast<lw::CommandFunc>(service("LW Command Interface"));
    globals().offer("LW Command Interface", reinterpret_cast<void*>(&answered));
    EXPECT_EQ(probe_.load(probePath()), "");
    host_.activate(probe_, "Varnel:HostFacts");
  }
  ~HostileLayout() override {
    panels().moduleUnloaded();
    probe_.unload();
    EXPECT_EQ(witness().report(), "");
  }

  static void* service(const char* name) { return Globals::lookup()(name, lw::kUseTransient); }
  static Panel* own() { return panels().find("Varnel:HostFacts"); }

  std::string measured() {
    std::error_code ignored;
    std::filesystem::remove(pathFromUtf8(folder_.file("facts.json")), ignored);
    EXPECT_TRUE(person::type(own()->find("File"), folder_.file("facts.json")));
    EXPECT_TRUE(person::press(own()->find("Start")));
    const Outcome<std::string> bytes = readFileBytes(folder_.file("facts.json"));
    return bytes ? *bytes : std::string();
  }
  static std::string now() { return own()->find("Now")->shown(); }
  testing::AssertionResult isUsersSafe() const {
    if (!light_.alive || !camera_.alive) return testing::AssertionFailure() << "an item of the user's is gone";
    if (host_.scene().selection() != std::vector<Item*>{&camera_})
      return testing::AssertionFailure() << "what the user had selected is not selected";
    return keepsSettings();
  }
  testing::AssertionResult keepsSettings() const {
    for (const Item* const item : {&light_, &camera_}) {
      if (!changedSettings(host_.scene(), *item).empty() || item->parent != nullptr)
        return testing::AssertionFailure() << "an item of the user's has other settings";
    }
    return testing::AssertionSuccess();
  }
  void removeAll() {
    while (!host_.scene().objects().empty()) host_.scene().remove(*host_.scene().objects().front());
  }

  PlayedLayout host_;
  Item& light_;
  Item& camera_;

 private:
  ModuleFile probe_;
  TemporaryFolder folder_;
};

std::set<std::string> commandsOf(const std::set<std::string>& sent) {
  std::set<std::string> all = sent;
  all.erase("StatusMsg");
  return all;
}

TEST_F(HostileLayout, AnyCommandCanBeRefusedAlways) {
  measured();
  for (const std::string& command : commandsOf(between.sent)) {
    SCOPED_TRACE(command);
    between.command = command;
    EXPECT_NE(measured(), "");
    EXPECT_TRUE(light_.alive && camera_.alive && keepsSettings());
    between.command.clear();
    if (command == "ClearSelected" || command == "AutoConfirm" || command == "SelectItem") {
      EXPECT_FALSE(host_.scene().objects().empty());
      EXPECT_EQ(now(), "Something of the probe's is still there. Please clear all.");
    } else {
      EXPECT_TRUE(host_.scene().objects().empty());
    }
    removeAll();
    host_.select({&camera_});
  }
}

TEST_F(HostileLayout, AHostWithoutCommandsIsLeftAsItIs) {
  globals().withhold("LW Command Interface");
  EXPECT_NE(measured(), "");
  EXPECT_TRUE(isUsersSafe());
  EXPECT_TRUE(host_.scene().objects().empty());
}

// What is sent behind such a command would reach something of the user's.
TEST_F(HostileLayout, AnyCommandCanBeAcceptedAndNotDone) {
  measured();
  between.answer = 1;
  for (const std::string& command : commandsOf(between.sent)) {
    SCOPED_TRACE(command);
    between.command = command;
    EXPECT_NE(measured(), "");
    EXPECT_TRUE(light_.alive && camera_.alive);
    EXPECT_TRUE(keepsSettings());
    between.command.clear();
    removeAll();
    host_.select({&camera_});
  }
}

HostOptions whereNullsAreNotSelected() {
  HostChoice choice;
  EXPECT_TRUE(choice.choose("new-null", "left"));
  return choice.options();
}

class HostileLayoutThatKeepsTheSelection : public HostileLayout {
 protected:
  HostileLayoutThatKeepsTheSelection() : HostileLayout(whereNullsAreNotSelected()) {}
};

// What is selected is the user's camera, then.
TEST_F(HostileLayoutThatKeepsTheSelection, SelectingCanBeAcceptedAndNotDone) {
  between.command = "SelectItem";
  between.answer = 1;
  EXPECT_NE(measured(), "");
  EXPECT_TRUE(light_.alive && camera_.alive && keepsSettings());
}

TEST_F(HostileLayout, AnyServiceCanBeMissing) {
  for (const char* const name :
       {"LW Item Info 9", "LW Object Info 14", "LW Bone Info 7", "LW Interface Info 8", "LW Time Info", "Channel Info 3",
        "Animation Envelopes 4", "LW Command Interface", "LWPanelServices 3", "Product Info", "Locale Info"}) {
    SCOPED_TRACE(name);
    globals().withhold(name);
    measured();
    EXPECT_TRUE(isUsersSafe());
    EXPECT_TRUE(host_.scene().objects().empty());
    globals().giveBack(name);
  }
}

TEST_F(HostileLayout, AnyFunctionCanBeMissing) {
  const auto run = [&] {
    measured();
    ASSERT_TRUE(light_.alive && camera_.alive && keepsSettings());
  };
  withEachSlotNull<lw::LWItemInfo>("LW Item Info 9", run);
  withEachSlotNull<lw::LWObjectInfo>("LW Object Info 14", run);
  withEachSlotNull<lw::LWBoneInfo>("LW Bone Info 7", run);
  withEachSlotNull<lw::LWChannelInfo>("Channel Info 3", run);
  withEachSlotNull<lw::LWEnvelopeFuncs>("Animation Envelopes 4", run);
}

TEST_F(HostileLayout, TheInterfacesRecordCanLackItsFunctions) {
  for (const bool isColour : {false, true}) {
    lw::LWInterfaceInfo holed = *static_cast<lw::LWInterfaceInfo*>(service("LW Interface Info 8"));
    (isColour ? holed.itemColor : holed.itemVis) = nullptr;
    globals().offer("LW Interface Info 8", &holed);
    measured();
    EXPECT_TRUE(isUsersSafe());
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Lists without end

template <class Table>
Table& changed(const char* name) {
  static Table table;
  table = *static_cast<Table*>(Globals::lookup()(name, lw::kUseTransient));
  globals().offer(name, &table);
  return table;
}

class EndlessLayout : public HostileLayout {
 protected:
  void isMeasuredAndLeftEmpty() {
    EXPECT_NE(measured(), "");
    EXPECT_TRUE(isUsersSafe());
    EXPECT_TRUE(host_.scene().objects().empty());
  }
};

TEST_F(EndlessLayout, BonesNeedNotEnd) {
  static lw::LWItemInfo host;
  lw::LWItemInfo& info = changed<lw::LWItemInfo>("LW Item Info 9");
  host = info;
  info.next = [](lw::ItemId item) { return host.type(item) == lw::kItemBone ? item : host.next(item); };
  isMeasuredAndLeftEmpty();
}

TEST_F(EndlessLayout, GroupsNeedNotEndToTheSidesAndDown) {
  static lw::LWChannelInfo host;
  lw::LWChannelInfo& info = changed<lw::LWChannelInfo>("Channel Info 3");
  host = info;
  static int depth = 0;
  info.nextGroup = [](lw::GroupId parent, lw::GroupId previous) -> lw::GroupId {
    // Twenty beside each other, and below each of them twenty, six deep.
    if (previous == nullptr) return ++depth <= 6 ? parent : (--depth, nullptr);
    static std::array<int, 8> beside{};
    const auto level = static_cast<std::size_t>(depth);
    if (++beside.at(level) % 20 != 0) return parent;
    --depth;
    return nullptr;
  };
  info.groupName = [](lw::GroupId) { return "group"; };
  info.nextChannel = [](lw::GroupId, lw::ChannelId) -> lw::ChannelId { return nullptr; };
  isMeasuredAndLeftEmpty();
}

TEST_F(EndlessLayout, ChannelsNeedNotEnd) {
  static lw::LWChannelInfo host;
  lw::LWChannelInfo& info = changed<lw::LWChannelInfo>("Channel Info 3");
  host = info;
  info.nextChannel = [](lw::GroupId group, lw::ChannelId last) {
    return last == nullptr ? host.nextChannel(group, last) : last;
  };
  isMeasuredAndLeftEmpty();
}

TEST_F(EndlessLayout, KeysNeedNotEnd) {
  static lw::LWEnvelopeFuncs host;
  lw::LWEnvelopeFuncs& functions = changed<lw::LWEnvelopeFuncs>("Animation Envelopes 4");
  host = functions;
  functions.nextKey = [](lw::EnvelopeId envelope, lw::KeyId last) {
    return last == nullptr ? host.nextKey(envelope, last) : last;
  };
  isMeasuredAndLeftEmpty();
}

// ---------------------------------------------------------------------------------------------------------------------
// Pressed and activated in the middle

std::function<void()> inTheMiddle;

class InterruptedLayout : public HostileLayout {
 protected:
  ~InterruptedLayout() override { inTheMiddle = nullptr; }

  // A host that lets its user act while it runs a command.
  static void interrupt(std::function<void()> action) {
    inTheMiddle = std::move(action);
    globals().offer("LW Command Interface", reinterpret_cast<void*>(static_cast<lw::CommandFunc>([](const char* text) {
                      if (std::strncmp(text, "LoadObject", 10) == 0 || std::strncmp(text, "AutoConfirm", 11) == 0)
                        if (const auto action = std::exchange(inTheMiddle, nullptr)) action();
                      return answered(text);
                    })));
  }
};

TEST_F(InterruptedLayout, StartPressedInTheMiddleOfARunDoesNothing) {
  interrupt([&] {
    removeAll();  // as if the scene were empty
    const std::size_t sent = host_.transcript().events().size();
    const Control* const button = own()->find("Start");
    button->event(button->face, button->user);
    EXPECT_EQ(host_.transcript().events().size(), sent);
  });
  EXPECT_NE(measured(), "");
  EXPECT_EQ(inTheMiddle, nullptr);
  EXPECT_TRUE(isUsersSafe());
}

}  // namespace
}  // namespace standin
