// Which files a run of the conversion reads: each item is a layer of a file, and several of one file may be selected.
#include <cstdio>

#include "tests/tools/conversion_fixture.h"

namespace standin {
namespace {

constexpr std::uint8_t kFalloff = 13;
constexpr const char* kFalloffCommand = "BoneFalloffType";

class ConversionFiles : public ConversionTest {
 protected:
  explicit ConversionFiles(const LayoutOptions& options = {}) : ConversionTest(options) {}

  // One layer for each name, with a skelegon of that name in it whose falloff is the place of the name, from `falloff` on.
  static ObjectFile layersOf(const std::vector<std::string>& names, int falloff) {
    RigBuilder rig;
    std::uint16_t number = 0;
    for (const std::string& name : names) {
      rig.layer(number++, name);
      store(rig, rig.root(name, {0, 0, 0}, {0, 1, 0}), {{kFalloff, std::to_string(falloff++)}});
    }
    return rig.take();
  }
  int falloffOf(const std::string& bone) { return item(bone).bone.falloff; }
};

// Something else at work in the host removes the file as soon as the first setting out of it was sent.
class FileThatIsReadOnce : public ConversionFiles {
 protected:
  FileThatIsReadOnce() : ConversionFiles(removing()) {}
  void SetUp() override {
    ConversionFiles::SetUp();
    path() = folder.file("rig.lwo");
  }

 private:
  static std::string& path() {
    static std::string path;
    return path;
  }
  static LayoutOptions removing() {
    LayoutOptions options;
    options.otherPlugin = [](Scene&, std::string_view command) {
      if (command.rfind(kFalloffCommand, 0) == 0) std::remove(path().c_str());
    };
    return options;
  }
};

TEST_F(FileThatIsReadOnce, ServesAllItsLayers) {
  convert(load(layersOf({"Body", "Tail", "Hat"}, 1)));
  EXPECT_EQ(falloffOf("Body"), 1);
  EXPECT_EQ(falloffOf("Tail"), 2);
  EXPECT_EQ(falloffOf("Hat"), 3);
}

// Nothing of a file outlives the run.
TEST_F(FileThatIsReadOnce, IsReadAnewByTheNextRun) {
  const std::vector<Item*> items = load(layersOf({"Body", "Tail"}, 1));
  convert(items);
  host.select(items);
  run(/*makeBones=*/false);
  EXPECT_TRUE(statusSays("*** ERROR:  ***")) << host.transcript().text();
}

TEST_F(ConversionFiles, GiveWhatWasSavedSinceTheRunBefore) {
  const std::vector<Item*> items = load(layersOf({"Body", "Tail"}, 1));
  convert(items);
  ASSERT_FALSE(writeObject(layersOf({"Body", "Tail"}, 3), folder.file("rig.lwo")).has_value());
  host.select(items);
  run(/*makeBones=*/false);
  EXPECT_EQ(falloffOf("Body"), 3);
  EXPECT_EQ(falloffOf("Tail"), 4);
}

TEST_F(ConversionFiles, AreAllRead) {
  const std::vector<Item*> first = load(layersOf({"Body"}, 1), "first.lwo");
  const std::vector<Item*> second = load(layersOf({"Tail"}, 2), "second.lwo");
  convert({first[0], second[0]});
  EXPECT_EQ(falloffOf("Body"), 1);
  EXPECT_EQ(falloffOf("Tail"), 2);
}

TEST_F(ConversionFiles, MayBeSelectedInTurn) {
  const std::vector<Item*> first = load(layersOf({"Body", "Tail"}, 1), "first.lwo");
  const std::vector<Item*> second = load(layersOf({"Coat", "Hat"}, 3), "second.lwo");
  convert({first[0], second[0], first[1], second[1]});
  EXPECT_EQ(falloffOf("Tail"), 2);
  EXPECT_EQ(falloffOf("Hat"), 4);
}

}  // namespace
}  // namespace standin
