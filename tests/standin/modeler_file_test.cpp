// Objects opened, changed by a person or through edits, saved and opened again.
#include <gtest/gtest.h>

#include <filesystem>

#include "objectfile/chunk_records.h"
#include "objectfile/file_bytes.h"
#include "objectfile/sample_rigs.h"
#include "objectfile/temporary_folder.h"
#include "tests/standin/modeler_fixture.h"

namespace standin {
namespace {

class ModelerFiles : public testing::Test {
 protected:
  std::string path(const std::string& name) const { return folder_.file(name); }

  ModelerObject& opened(const std::string& file) {
    const auto object = host.open(file);
    EXPECT_TRUE(object) << object.why();
    return **object;
  }

  ModelerHost host;

 private:
  TemporaryFolder folder_;
};

TEST_F(ModelerFiles, AnObjectSavedUnchangedIsTheSameByteForByte) {
  writeDemoRig(path("rig.lwo"));
  const std::string before = *readFileBytes(path("rig.lwo"));
  opened(path("rig.lwo"));
  EXPECT_FALSE(host.saveAs(path("copy.lwo")));
  EXPECT_TRUE(*readFileBytes(path("copy.lwo")) == before);
}

TEST_F(ModelerFiles, ATagThatAnEditSetIsInTheSavedFile) {
  writeJapaneseRig(path("リグ.lwo"));
  ModelerObject& object = opened(path("リグ.lwo"));
  ActivationRecord record("");
  lw::MeshEditOp* op = record.get()->editBegin2(0, 0, 0, lw::kEditAll);
  op->polTag(op->state, object.skelegon("背骨")->id, settingTag(13), "2");
  op->done(op->state, 0, 0);
  EXPECT_FALSE(host.save());
  ModelerObject& again = opened(path("リグ.lwo"));
  EXPECT_EQ(again.skelegon("背骨")->tag(settingTag(13)), "2");
}

TEST_F(ModelerFiles, AnObjectThatMustNotBeWrittenStaysAsItIs) {
  writeDemoRig(path("rig.lwo"));
  const std::string before = *readFileBytes(path("rig.lwo"));
  opened(path("rig.lwo"));
  using Permissions = std::filesystem::perms;
  std::filesystem::permissions(pathFromUtf8(path("rig.lwo")), Permissions::owner_read);
  const auto failure = host.save();
  ASSERT_TRUE(failure);
  EXPECT_NE(failure->text.find("it is read-only"), std::string::npos) << failure->text;
  EXPECT_TRUE(*readFileBytes(path("rig.lwo")) == before);
  std::filesystem::permissions(pathFromUtf8(path("rig.lwo")), Permissions::owner_all);  // so that the folder can go
}

// The second tag of a type stands in a chunk behind the first.
void writeRepeatedTag(const std::string& path) {
  ObjectFile object = *parseObject(*serializeObject(twoLayerRig()));
  object.layers.clear();
  const auto last = std::find_if(object.chunks.rbegin(), object.chunks.rend(),
                                 [](const Chunk& chunk) { return chunk.id == records::kTags; });
  const auto number = static_cast<std::uint16_t>(records::readTexts(last->bytes)->size());
  last->bytes += records::writeTexts({"once", "again"});
  for (const std::uint16_t text : {number, static_cast<std::uint16_t>(number + 1)}) {
    object.chunks.push_back({records::kPolygonTags, records::writeTags({settingTag(31), {{1, text}}})});
  }
  ASSERT_FALSE(writeFileBytes(path, *joinForm({object.form, std::move(object.chunks)})));
}

TEST_F(ModelerFiles, OfATagThatAFileHasTwiceTheLastIsHeld) {
  writeRepeatedTag(path("rig.lwo"));
  EXPECT_EQ(opened(path("rig.lwo")).skelegon("Tail_02")->tag(settingTag(31)), "again");
}

TEST_F(ModelerFiles, OfATagThatAFileHasTwiceTheFirstIsHeldWhereHostsDiffer) {
  writeRepeatedTag(path("rig.lwo"));
  host.options().firstTagCounts = true;
  EXPECT_EQ(opened(path("rig.lwo")).skelegon("Tail_02")->tag(settingTag(31)), "once");
}

// Else the one that nobody saw would come back with the next program that counts otherwise.
TEST_F(ModelerFiles, OnlyTheTagThatIsHeldIsSaved) {
  for (const bool first : {true, false}) {
    writeRepeatedTag(path("rig.lwo"));
    host.options().firstTagCounts = first;
    const std::string held = opened(path("rig.lwo")).skelegon("Tail_02")->tag(settingTag(31));
    EXPECT_FALSE(host.save());
    host.options().firstTagCounts = !first;
    EXPECT_EQ(opened(path("rig.lwo")).skelegon("Tail_02")->tag(settingTag(31)), held);
  }
}

TEST_F(ModelerFiles, DeletedSkelegonsAndRemovedMapsAreNotSaved) {
  writeDemoRig(path("rig.lwo"));
  ModelerObject& object = opened(path("rig.lwo"));
  const std::size_t maps = object.maps(*object.layer(0)).size();
  host.deleteSkelegons({"Jaw"});
  host.removeWeightMap("Head");
  EXPECT_FALSE(host.save());
  ModelerObject& again = opened(path("rig.lwo"));
  EXPECT_EQ(again.skelegon("Jaw"), nullptr);
  EXPECT_EQ(again.skelegons().size(), 23U);
  EXPECT_EQ(again.maps(*again.layer(0)).size(), maps - 1);
}

TEST_F(ModelerFiles, WhatWasTakenBackIsSavedAsItWas) {
  writeDemoRig(path("rig.lwo"));
  const std::string before = *readFileBytes(path("rig.lwo"));
  opened(path("rig.lwo"));
  host.deleteSkelegons({"Jaw", "Head"});
  host.removeWeightMap("Head");
  while (host.undo()) {
  }
  EXPECT_FALSE(host.save());
  EXPECT_TRUE(*readFileBytes(path("rig.lwo")) == before);
}

TEST_F(ModelerFiles, AnObjectDrawnInModelerCanBeSaved) {
  ModelerObject& object = host.add({});
  const int layer = object.addLayer("New");
  const lw::PointId head = object.addPoint(layer, {0, 0, 0});
  const lw::PointId tail = object.addPoint(layer, {0, 1, 0});
  object.addSkelegon(layer, head, tail, "Drawn");
  EXPECT_FALSE(host.saveAs(path("new.lwo")));
  EXPECT_EQ(object.name(), path("new.lwo"));
  EXPECT_NE(opened(path("new.lwo")).skelegon("Drawn"), nullptr);
}

TEST_F(ModelerFiles, AFileThatIsNoneIsNotOpened) {
  writeFileBytes(path("bad.lwo"), "FORM");
  const auto object = host.open(path("bad.lwo"));
  ASSERT_FALSE(object);
  EXPECT_NE(object.why().find("shorter than"), std::string::npos);
  EXPECT_EQ(host.current(), nullptr);
}

TEST_F(ModelerFiles, SwitchingLayersDeselectsWhatLeavesTheForeground) {
  ModelerObject& object = host.add(twoLayerRig());
  host.select({"Hips"});
  host.showLayers({1});
  EXPECT_EQ(host.selectedNames(), Names{});
  host.options().layerSwitchDeselects = false;
  host.select({"Tail_01", "Hips"});
  EXPECT_EQ(host.selectedNames(), Names{"Tail_01"}) << "only the foreground can be selected";
  host.showLayers({0});
  EXPECT_EQ(host.selectedNames(), Names{"Tail_01"});
  EXPECT_EQ(object.primaryLayer(), 0);
}

}  // namespace
}  // namespace standin
