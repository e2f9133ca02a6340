// The probe in Modelers that refuse a command always, lie about it, lack a function, or answer with any number: it comes
// through, leaves no edit open, and what is the user's stays as it is.
#include <climits>
#include <cstring>
#include <set>

#include "standin/core/witness.h"
#include "standin/panels/person.h"
#include "standin/variants/played_host.h"
#include "tests/probe/holed_tables.h"
#include "tests/probe/probe_fixture.h"

namespace standin {
namespace {

// What stands between the probe and the host: commands that are answered without being run, and edits that lack a function.
struct BetweenModeler {
  lw::EvaluateFunc evaluate = nullptr;
  lw::EditBeginFunc editBegin = nullptr;
  std::string command;  // the first word
  int answer = 0;
  std::set<std::string> sent;
  std::size_t missing = sizeof(lw::MeshEditOp);  // offset of the slot that is null
  lw::MeshEditOp holed{};
};
BetweenModeler inBetween;

int evaluated(void* data, const char* text) {
  const std::string word(text, std::strcspn(text, " "));
  inBetween.sent.insert(word);
  return word == inBetween.command ? inBetween.answer : inBetween.evaluate(data, text);
}

lw::MeshEditOp* beginHoled(int points, int edges, int polygons, int mode) {
  lw::MeshEditOp* const op = inBetween.editBegin(points, edges, polygons, mode);
  if (op == nullptr || inBetween.missing >= sizeof(lw::MeshEditOp)) return op;
  std::memcpy(&inBetween.holed, op, sizeof(lw::MeshEditOp));
  std::memset(reinterpret_cast<char*>(&inBetween.holed) + inBetween.missing, 0, sizeof(void*));
  return &inBetween.holed;
}

class HostileModeler : public Probing {
 protected:
  HostileModeler() {
    excuseTrials();
    EXPECT_EQ(probe_.load(probePath()), "");
    const ActivationRecord record("");
    lw::LWModCommand local = *record.get();
    inBetween = {};
    inBetween.evaluate = std::exchange(local.evaluate, &evaluated);
    inBetween.editBegin = std::exchange(local.editBegin2, &beginHoled);
    EXPECT_EQ(probe_.activate("Varnel:HostFacts", lw::kModCommandVersion, &local, "CommandSequence"), 0);
  }
  ~HostileModeler() override {
    panels().moduleUnloaded();
    probe_.unload();
    EXPECT_EQ(witness().report(), "");
  }

  static Panel* own() { return panels().find("Varnel:HostFacts"); }
  static std::string now() { return own()->find("Now")->shown(); }
  std::string measured() {
    std::error_code ignored;
    std::filesystem::remove(pathFromUtf8(folder_.file("facts.json")), ignored);
    EXPECT_TRUE(person::type(own()->find("File"), folder_.file("facts.json")));
    EXPECT_TRUE(person::press(own()->find("Start")));
    const Outcome<std::string> bytes = readFileBytes(folder_.file("facts.json"));
    return bytes ? *bytes : std::string();
  }
  bool hasOpenEdit() const {
    for (const EditRecord& edit : host_.edits()) {
      if (!edit.done) return true;
    }
    return false;
  }
  ModelerObject& addEmpty() {
    ObjectFile layerWithoutData;
    layerWithoutData.layers.emplace_back();
    return host_.add(std::move(layerWithoutData));
  }

  PlayedModeler host_{HostOptions{}};

 private:
  ModuleFile probe_;
  TemporaryFolder folder_;
};

TEST_F(HostileModeler, AnyCommandCanBeRefusedAlways) {
  measured();
  const std::set<std::string> commands = inBetween.sent;
  inBetween.answer = 2904;
  for (const std::string& command : commands) {
    SCOPED_TRACE(command);
    inBetween.command = command;
    EXPECT_NE(measured(), "");
    EXPECT_FALSE(hasOpenEdit());
    const bool staysOpen = command == "close";
    EXPECT_EQ(host_.current() != nullptr, staysOpen);
    EXPECT_EQ(now() == "Something of the probe's is still there. Please clear all.", staysOpen);
    host_.closeAll();
  }
}

TEST_F(HostileModeler, AnyCommandCanBeAcceptedAndNotDone) {
  measured();
  const std::set<std::string> commands = inBetween.sent;
  for (const std::string& command : commands) {
    SCOPED_TRACE(command);
    const ModelerObject& users = addEmpty();
    inBetween.command = command;
    EXPECT_NE(measured(), "");
    EXPECT_FALSE(hasOpenEdit());
    if (command != "close") {
      ASSERT_EQ(host_.objects().size(), 1U);
      EXPECT_EQ(host_.current(), &users);
      EXPECT_FALSE(users.wasSaved());
    }
    host_.closeAll();
  }
}

TEST_F(HostileModeler, AnObjectBehindAnEmptyOneIsLeftAlone) {
  const ModelerObject& users = host_.add(*parseObject(*readFileBytes(VARNEL_REPOSITORY "/tests/data/stored-colours.lwo")));
  addEmpty();
  EXPECT_EQ(measured(), "");
  EXPECT_EQ(now(), "There are other objects. Close all objects, then start.");
  EXPECT_EQ(host_.objects().size(), 2U);
  EXPECT_FALSE(users.wasSaved());
  EXPECT_TRUE(inBetween.sent.empty());
}

TEST_F(HostileModeler, AnyServiceCanBeMissing) {
  for (const char* const name :
       {"LWM: State Query 5", "Scene Objects 9", "LWPanelServices 3", "Product Info", "Locale Info"}) {
    SCOPED_TRACE(name);
    globals().withhold(name);
    measured();
    EXPECT_EQ(host_.current(), nullptr);
    EXPECT_FALSE(hasOpenEdit());
    globals().giveBack(name);
  }
}

TEST_F(HostileModeler, AnyFunctionCanBeMissing) {
  const auto run = [&] {
    measured();
    EXPECT_EQ(host_.current(), nullptr);
    EXPECT_FALSE(hasOpenEdit());
  };
  withEachSlotNull<lw::LWStateQueryFuncs>("LWM: State Query 5", run);
  withEachSlotNull<lw::LWObjectFuncs>("Scene Objects 9", run);
  withEachSlotNull<lw::LWPanelFuncs>("LWPanelServices 3", run);
}

// But for the state, which is the host's own, and the function that ends it.
TEST_F(HostileModeler, AnyFunctionOfAnEditCanBeMissing) {
  constexpr std::size_t kFirst = offsetof(lw::MeshEditOp, done) + sizeof(void*);
  for (inBetween.missing = kFirst; inBetween.missing < sizeof(lw::MeshEditOp); inBetween.missing += sizeof(void*)) {
    SCOPED_TRACE(inBetween.missing);
    EXPECT_NE(measured(), "");
    EXPECT_EQ(host_.current(), nullptr);
    EXPECT_FALSE(hasOpenEdit());
  }
}

class CountingModeler : public HostileModeler, public testing::WithParamInterface<int> {};
int anyCount = 0;

TEST_P(CountingModeler, AnyCountIsBorne) {
  anyCount = GetParam();
  static lw::LWObjectFuncs objects;
  auto* const table = static_cast<lw::LWObjectFuncs*>(Globals::lookup()("Scene Objects 9", lw::kUseTransient));
  static lw::LWObjectFuncs host;
  host = objects = *table;
  // Names are given for what is there: those of a host that counts wrong are null.
  static const auto isThere = [](int object) { return object >= 0 && object < host.numObjects(); };
  objects.filename = [](int object) { return isThere(object) ? host.filename(object) : nullptr; };
  objects.refName = [](int object) { return isThere(object) ? host.refName(object) : nullptr; };
  objects.layerExists = [](int object, int layer) { return isThere(object) ? host.layerExists(object, layer) : 0; };
  objects.layerName = [](int object, int layer) { return isThere(object) ? host.layerName(object, layer) : nullptr; };
  objects.vmapName = [](std::uint32_t, int) -> const char* { return nullptr; };
  static int asked = 0;
  asked = 0;
  // The first question, before the start, is answered well.
  objects.numObjects = [] { return asked++ == 0 ? 0 : anyCount; };
  objects.numVMaps = [](std::uint32_t) { return anyCount; };
  globals().offer("Scene Objects 9", &objects);
  EXPECT_NE(measured(), "");
  EXPECT_EQ(host_.current(), nullptr);
  globals().offer("Scene Objects 9", table);
}

INSTANTIATE_TEST_SUITE_P(Counts, CountingModeler, testing::Values(-1, INT_MIN, INT_MAX));

// Gives the last polygon again and again, or none.
lw::MeshEditOp repeating;
lw::MeshEditOp ofTheHost;
bool givesNone = false;

int endlessScan(lw::EditId edit, lw::FastPolygonScan callback, void* user, int layers, int onlySelected) {
  lw::PolygonId last = nullptr;
  const auto keep = [](void* kept, lw::PolygonId polygon) {
    *static_cast<lw::PolygonId*>(kept) = polygon;
    return 0;
  };
  ofTheHost.fastPolyScan(edit, keep, &last, layers, onlySelected);
  while (true) {
    if (const int stopped = callback(user, givesNone ? nullptr : last); stopped != 0) return stopped;
  }
}

class EndlessModeler : public HostileModeler, public testing::WithParamInterface<bool> {};

TEST_P(EndlessModeler, AScanNeedNotEnd) {
  givesNone = GetParam();
  static lw::EditBeginFunc begin;
  begin = std::exchange(inBetween.editBegin, [](int points, int edges, int polygons, int mode) -> lw::MeshEditOp* {
    const lw::MeshEditOp* const made = begin(points, edges, polygons, mode);
    if (made == nullptr) return nullptr;
    ofTheHost = repeating = *made;
    repeating.fastPolyScan = endlessScan;
    return &repeating;
  });
  EXPECT_NE(measured(), "");
  EXPECT_EQ(host_.current(), nullptr);
  EXPECT_FALSE(hasOpenEdit());
}

INSTANTIATE_TEST_SUITE_P(WithAndWithoutPolygons, EndlessModeler, testing::Bool());

}  // namespace
}  // namespace standin
