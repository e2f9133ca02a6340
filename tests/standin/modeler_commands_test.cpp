// The commands of the stand-in Modeler do what a person does, and answer with the host's codes.
#include "standin/modeler/commands.h"

#include "objectfile/object_file.h"
#include "objectfile/temporary_folder.h"
#include "tests/standin/modeler_fixture.h"

namespace standin {
namespace {

class ModelerCommands : public ModelerTest {
 protected:
  ~ModelerCommands() override { EXPECT_EQ(witness().report(), allowedFault_); }

  int send(const std::string& command) { return local().evaluate(local().data, command.c_str()); }
  // The only fault there may be.
  void expectFault(const std::string& what) {
    EXPECT_EQ(lastFault(), what);
    allowedFault_ = witness().report();
    EXPECT_EQ(faultCount(), 1U);
  }
  std::string rigFile(const std::string& name) const {
    std::string path = folder_.file(name);
    EXPECT_FALSE(writeObject(twoLayerRig(), path));
    return path;
  }

 private:
  TemporaryFolder folder_;
  std::string allowedFault_;
};

TEST_F(ModelerCommands, LoadOpensAFileAsTheCurrentObject) {
  const std::string path = rigFile("another rig.lwo");
  EXPECT_EQ(send("load \"" + path + '"'), kCommandDone);
  EXPECT_EQ(host->objects().size(), 2U);
  EXPECT_EQ(host->current()->name(), path);
}

TEST_F(ModelerCommands, LoadOfAFileThatIsNotThereIsRefused) {
  EXPECT_EQ(send("load nowhere.lwo"), kCommandFiles);
  EXPECT_EQ(host->current(), object);
}

TEST_F(ModelerCommands, NewMakesAnEmptyObjectThatWasNeverSaved) {
  EXPECT_EQ(send("new"), kCommandDone);
  EXPECT_NE(host->current(), object);
  EXPECT_FALSE(host->current()->wasSaved());
  EXPECT_TRUE(host->current()->polygons().empty());
  EXPECT_EQ(host->current()->layers().size(), 1U);
}

TEST_F(ModelerCommands, CloseClosesTheCurrentObject) {
  EXPECT_EQ(send("close"), kCommandDone);
  EXPECT_EQ(host->current(), nullptr);
  EXPECT_EQ(send("close"), kCommandFailed);
}

TEST_F(ModelerCommands, SaveWritesTheCurrentObjectUnderTheName) {
  const std::string path = rigFile("saved rig.lwo");
  host->deleteSkelegons({"Head"});
  EXPECT_EQ(send("save \"" + path + '"'), kCommandDone);
  EXPECT_EQ(object->name(), path);
  EXPECT_EQ(readObject(path)->layers[0].polygonCount(lw::kTypeBone), 2U);
}

TEST_F(ModelerCommands, SaveToWhereNothingCanBeWrittenIsRefused) {
  EXPECT_EQ(send("save \"nowhere/rig.lwo\""), kCommandFiles);
}

TEST_F(ModelerCommands, UndoTakesBackTheLastStep) {
  host->deleteSkelegons({"Head"});
  EXPECT_EQ(send("undo"), kCommandDone);
  EXPECT_NE(object->skelegon("Head"), nullptr);
  EXPECT_EQ(send("undo"), kCommandFailed);
}

TEST_F(ModelerCommands, SetlayerBringsLayersCountedFromOneToTheForeground) {
  EXPECT_EQ(send("setlayer 2"), kCommandDone);
  EXPECT_FALSE(object->layer(0)->foreground);
  EXPECT_TRUE(object->layer(1)->foreground);
  EXPECT_EQ(send("setlayer 1 2"), kCommandDone);
  EXPECT_TRUE(object->layer(0)->foreground && object->layer(1)->foreground);
}

TEST_F(ModelerCommands, SetlayerDeselectsAsAPersonsSwitchDoes) {
  host->select({"Head"});
  send("setlayer 2");
  EXPECT_EQ(host->selectedNames(), Names());
}

TEST_F(ModelerCommands, SetlayerOfALayerThatIsNotThereIsRefused) {
  EXPECT_EQ(send("setlayer 3"), kCommandArgumentValue);
  EXPECT_EQ(send("setlayer 0"), kCommandArgumentValue);
  EXPECT_EQ(send("setlayer Tail"), kCommandArgumentType);
  EXPECT_EQ(send("setlayer 1x"), kCommandArgumentType);
  EXPECT_TRUE(object->layer(0)->foreground);
}

TEST_F(ModelerCommands, DeleteRemovesWhatIsSelected) {
  host->select({"Head", "Chest"});
  EXPECT_EQ(send("delete"), kCommandDone);
  EXPECT_EQ(object->skelegon("Head"), nullptr);
  EXPECT_NE(object->skelegon("Hips"), nullptr);
}

TEST_F(ModelerCommands, DeleteWithNothingSelectedRemovesTheForeground) {
  EXPECT_EQ(send("delete"), kCommandDone);
  EXPECT_EQ(object->skelegons().size(), 2U) << "those of the other layer";
}

TEST_F(ModelerCommands, WithoutAnObjectThereIsNothingToChange) {
  host->closeAll();
  for (const char* command : {"close", "undo", "delete", "setlayer 1", "save rig.lwo"}) {
    EXPECT_EQ(send(command), kCommandFailed) << command;
  }
}

TEST_F(ModelerCommands, NamesAreNotCaseSensitive) { EXPECT_EQ(send("SetLayer 2"), kCommandDone); }

TEST_F(ModelerCommands, ArgumentsAreCounted) {
  EXPECT_EQ(send("load"), kCommandArgumentCount);
  EXPECT_EQ(send("load a b"), kCommandArgumentCount);
  EXPECT_EQ(send("close all"), kCommandArgumentCount);
}

TEST_F(ModelerCommands, AQuoteThatStaysOpenIsRefused) { EXPECT_EQ(send("load \"rig.lwo"), kCommandArgumentType); }

TEST_F(ModelerCommands, QuotesDelimitWhatHoldsSpaces) {
  EXPECT_EQ(commandWords(R"(load  "C:\my rigs\a.lwo" b ")"), std::nullopt);
  EXPECT_EQ(*commandWords(R"(load  "C:\my rigs\a.lwo" "" b )"), Names({"load", R"(C:\my rigs\a.lwo)", "", "b"}));
}

TEST_F(ModelerCommands, AllCommandsAreKept) {
  send("undo");
  send("setlayer 2");
  EXPECT_EQ(host->commands(), Names({"undo", "setlayer 2"}));
}

TEST_F(ModelerCommands, ACommandCanBeRefusedByWayOfTrial) {
  witness().refuseNext("LWModCommand::evaluate");
  EXPECT_EQ(send("close"), kCommandFailed);
  EXPECT_EQ(host->current(), object);
}

TEST_F(ModelerCommands, NoneIsTakenWhileAnEditIsOpen) {
  edit(lw::kEditAll, [&](lw::MeshEditOp&) { EXPECT_EQ(send("close"), kCommandFailed); });
  EXPECT_EQ(host->current(), object);
  expectFault("was called while an edit is open");
}

TEST_F(ModelerCommands, AnUnknownOneIsAFault) {
  EXPECT_EQ(send("Load2"), kCommandFailed);
  expectFault("was given the unknown command \"Load2\"");
}

TEST_F(ModelerCommands, AnEmptyOneIsAFault) {
  EXPECT_EQ(send(""), kCommandFailed);
  expectFault("was given the unknown command \"\"");
}

TEST_F(ModelerCommands, TheHostDataOfTheActivationComesAlong) {
  EXPECT_EQ(local().evaluate(nullptr, "undo"), kCommandFailed);
  expectFault("was not given the host data of the activation");
}

}  // namespace
}  // namespace standin
