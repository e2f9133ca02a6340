#include "objectfile/file_bytes.h"
#include "objectfile/temporary_folder.h"
#include "standin/core/module_file.h"
#include "tests/standin/layout_fixture.h"

namespace standin {
namespace {

// The sample modules stand beside the test program's build folder.
std::string sample(const std::string& name) {
  return std::string(VARNEL_SAMPLE_MODULES) + "/" + name + VARNEL_SAMPLE_SUFFIX;
}

std::string loadError(const std::string& name) {
  ModuleFile module;
  std::string why = module.load(sample(name));
  EXPECT_FALSE(module.loaded());
  return why;
}

TEST(ModuleFile, ListsItsServers) {
  LayoutHost host;
  ModuleFile module;
  ASSERT_EQ(module.load(sample("sample_good")), "");
  ASSERT_EQ(module.servers().size(), 2U);
  EXPECT_STREQ(module.servers()[0].name, "Sample:One");
  EXPECT_NE(module.server("LayoutGeneric", "Sample:One"), nullptr);
  EXPECT_EQ(module.server("CommandSequence", "Sample:One"), nullptr);
}

TEST(ModuleFile, IsActivatedWithLookupLocalDataAndStartupResult) {
  LayoutHost host;
  ModuleFile module;
  ASSERT_EQ(module.load(sample("sample_good")), "");
  EXPECT_EQ(host.activate(module, "Sample:One"), lw::kActivationOk);
  EXPECT_EQ(host.activate(module, "Sample:One", 3), lw::kActivationBadVersion);
  globals().withhold("LW Item Info 9");
  EXPECT_EQ(host.activate(module, "Sample:One"), lw::kActivationBadGlobal);
  EXPECT_TRUE(noFaults());
}

TEST(ModuleFile, CanBeLoadedAgainAfterUnloading) {
  LayoutHost host;
  ModuleFile module;
  ASSERT_EQ(module.load(sample("sample_good")), "");
  module.unload();
  EXPECT_TRUE(module.servers().empty());
  ASSERT_EQ(module.load(sample("sample_good")), "");
  EXPECT_EQ(host.activate(module, "Sample:One"), lw::kActivationOk);
}

TEST(ModuleFile, WithoutSuchAServerIsAFault) {
  LayoutHost host;
  ModuleFile module;
  ASSERT_EQ(module.load(sample("sample_good")), "");
  EXPECT_EQ(host.activate(module, "Sample:Three"), std::nullopt);
  EXPECT_TRUE(oneFaultSaying("no server \"Sample:Three\""));
}

TEST(ModuleFile, ThatLetsAnExceptionOutOfItsActivationIsAFault) {
  LayoutHost host;
  ModuleFile module;
  ASSERT_EQ(module.load(sample("sample_throwing")), "");
  EXPECT_EQ(host.activate(module, "Sample:One"), std::nullopt);
  EXPECT_TRUE(oneFaultSaying("let an exception out"));
}

TEST(ModuleFile, ThatIsMissingIsSaidSo) {
  EXPECT_NE(loadError("no_such_module").find("there is no file"), std::string::npos);
}

TEST(ModuleFile, ThatIsNoLibraryCannotBeLoaded) {
  const TemporaryFolder folder;
  ASSERT_FALSE(writeFileBytes(folder.file("no_library.p"), "not a library"));
  ModuleFile module;
  EXPECT_NE(module.load(folder.file("no_library.p")).find("cannot be loaded"), std::string::npos);
}

TEST(ModuleFile, WithoutADescriptorIsSaidSo) {
  EXPECT_EQ(loadError("sample_no_symbol"), "the file does not export the symbol _mod_descrip");
}

TEST(ModuleFile, WithAWrongSyncWordIsSaidSo) {
  EXPECT_EQ(loadError("sample_wrong_sync"), "the descriptor's sync word is 0x12345678, not 0x04121994");
}

TEST(ModuleFile, WithAWrongVersionIsSaidSo) {
  EXPECT_EQ(loadError("sample_wrong_version"), "the descriptor's version is 0x00000002, not 0x00000003");
}

TEST(ModuleFile, OfAnotherMachineIsSaidSo) {
  EXPECT_EQ(loadError("sample_wrong_machine"), "the descriptor's machine is 0x00000400, not 0x00000300");
}

TEST(ModuleFile, WhoseStartupGivesNullIsNotLoaded) { EXPECT_EQ(loadError("sample_startup_null"), "startup returned null"); }

TEST(ModuleFile, WhoseStartupThrowsIsNotLoaded) {
  witness().reset();
  EXPECT_EQ(loadError("sample_startup_throws"), "startup let an exception out");
  EXPECT_TRUE(oneFaultSaying("let an exception out"));
}

}  // namespace
}  // namespace standin
