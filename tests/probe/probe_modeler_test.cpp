// What the probe does in Modeler: figures beside the facts, and hosts that refuse.
#include <algorithm>
#include <vector>

#include "standin/core/globals.h"
#include "standin/core/module_file.h"
#include "standin/core/witness.h"
#include "standin/panels/panel.h"
#include "standin/panels/person.h"
#include "standin/variants/played_host.h"
#include "tests/probe/probe_fixture.h"

namespace standin {
namespace {

using nlohmann::json;

TEST_F(Probing, SeesTheFiguresOfModeler) {
  const json file = json::parse(inModeler().facts);
  std::vector<std::string> seen;
  for (const auto& figure : file.at("figures")) seen.push_back(figure.at("seen"));
  const std::vector<std::string> wanted{
      "records call the first layer 0 and the second 1, the edit calls the first 0",
      "a scan of all layers delivers 6 polygons of one object, and 6 with a second object of as many",
      "one undo left 0 of the two tags of one edit",
      "a tag that read as null reads as null after an edit that set it to \"dropped\" was ended with an error",
      "a polygon of a background layer is not selected by an edit, which answered 0",
      "a tag set to the empty text is \"\" in the saved file"};
  for (const std::string& sentence : wanted) {
    EXPECT_NE(std::find(seen.begin(), seen.end(), sentence), seen.end()) << sentence << "\n" << file.at("figures");
  }
}

// A run that the test accompanies itself, in a host that withholds or refuses.
class RefusingModeler : public Probing {
 protected:
  RefusingModeler() {
    excuseTrials();
    EXPECT_EQ(module_.load(probePath()), "");
    host_.activate(module_, "Varnel:HostFacts");
    Panel* const panel = panels().find("Varnel:HostFacts");
    EXPECT_TRUE(person::type(panel->find("File"), path_));
  }
  ~RefusingModeler() override {
    panels().moduleUnloaded();
    module_.unload();
    EXPECT_EQ(witness().report(), "");
  }

  // The facts of a run from start to end; none where it did not come to its file.
  json run() {
    std::error_code ignored;
    std::filesystem::remove(pathFromUtf8(path_), ignored);
    EXPECT_TRUE(person::press(panels().find("Varnel:HostFacts")->find("Start")));
    const auto bytes = readFileBytes(path_);
    return bytes ? json::parse(*bytes).at("facts") : json();
  }
  static std::string seenOf(const json& facts, const std::string& name) {
    for (const auto& fact : facts) {
      if (fact.at("name") == name) return fact.at("seen");
    }
    return {};
  }

  PlayedModeler host_{HostOptions()};

 private:
  TemporaryFolder folder_;
  const std::string path_ = folder_.file("facts.json");
  ModuleFile module_;
};

TEST_F(RefusingModeler, ACommandThatIsRefusedIsNamed) {
  witness().refuseNext("LWModCommand::evaluate");
  EXPECT_EQ(seenOf(run(), "object-name"), "the host refused \"new\" with 2904");
}

TEST_F(RefusingModeler, AMissingServiceIsNamed) {
  globals().withhold("Scene Objects 9");
  const json facts = run();
  EXPECT_EQ(seenOf(facts, "unnamed-map"), "the host does not offer \"Scene Objects 9\"");
  EXPECT_NE(seenOf(facts, "scan-order"), seenOf(facts, "unnamed-map")) << "it is told without that service";
}

TEST_F(RefusingModeler, AnObjectThatHoldsDataIsLeftAlone) {
  host_.add(*parseObject(*readFileBytes(VARNEL_REPOSITORY "/tests/data/stored-colours.lwo")));
  EXPECT_TRUE(run().is_null());
  EXPECT_NE(host_.current(), nullptr);
  EXPECT_EQ(host_.commands().size(), 0U);
}

// As a program that is never without an object has it.
TEST_F(RefusingModeler, AnEmptyObjectOfTheUsersIsNeitherSavedNorInTheWay) {
  ObjectFile layerWithoutData;
  layerWithoutData.layers.emplace_back();
  const ModelerObject& empty = host_.add(std::move(layerWithoutData));
  const json facts = run();
  EXPECT_EQ(seenOf(facts, "edit-without-object"), "the program has an empty object even when nothing is loaded");
  EXPECT_EQ(seenOf(facts, "map-owner"), "a weight map was still listed when its object was closed");
  EXPECT_EQ(host_.objects().size(), 1U);
  EXPECT_FALSE(empty.wasSaved());
}

// Whichever call fails: all questions have an answer or a reason, no edit stays open, no rule is broken, nothing stays loaded.
TEST_F(RefusingModeler, AnyCallCanBeRefused) {
  const std::size_t count = run().size();
  for (std::uint64_t n = 1;; ++n) {
    SCOPED_TRACE(n);
    host_.closeAll();
    witness().refuseCall(n);
    const json facts = run();
    if (!witness().refusalHappened()) break;
    EXPECT_TRUE(facts.is_null() || facts.size() == count) << witness().refusedFunction();
    for (const EditRecord& edit : host_.edits()) ASSERT_TRUE(edit.done);
    ASSERT_EQ(witness().report(), "") << witness().refusedFunction();
    EXPECT_EQ(host_.current(), nullptr) << witness().refusedFunction();
  }
}

}  // namespace
}  // namespace standin
