// The level that plays hosts which differ: the real module does its job on each, and a bad one fails only where its fault
// shows.
#include "tests/standin/validate_fixture.h"

namespace standin::validate {
namespace {

void expectPassed(const CheckResult& result) {
  EXPECT_STREQ(nameOf(result.verdict), "pass") << result.check->name;
  for (const CheckFinding& finding : result.findings) ADD_FAILURE() << finding.where << ": " << finding.what;
}

std::vector<std::string> hostChecks() {
  std::vector<std::string> names;
  for (const Check& check : allChecks()) {
    if (check.level == 11) names.emplace_back(check.name);
  }
  return names;
}

class EveryHost : public Validation, public testing::WithParamInterface<std::string> {};

// The short form leaves out no single host.
TEST_P(EveryHost, LetsTheRealModuleDoItsJob) { expectPassed(run(modulePath(), GetParam())); }

INSTANTIATE_TEST_SUITE_P(Hosts, EveryHost, testing::ValuesIn(hostChecks()), [](const auto& info) {
  std::string name = info.param;
  std::erase(name, '-');
  return name;
});

class OneHost : public Validation {
 protected:
  OneHost() { choose(BadFault::GivesUpAtNestedEvents); }
};

// The default host never fires an event while another one runs. That "hosts-panels" finds it is seen where each level finds
// its fault.
TEST_F(OneHost, IsNeededToShowAFaultThatNoOtherShows) {
  for (const CheckResult& result :
       runChecks(orderOf(sampleModule("bad_module"), {"trip-property", "trip-renamer", "hosts-both"}))) {
    expectPassed(result);
  }
}

// The bad module shows it: what it fails on this host only, it fails in every level that is played there.
TEST_F(OneHost, IsWhereEveryLevelIsPlayedWhenItIsChosen) {
  RunOrder order = orderOf(sampleModule("bad_module"), {"trip-renamer"});
  EXPECT_STREQ(nameOf(runChecks(order).at(0).verdict), "pass");
  ASSERT_EQ(order.host.take("sets=fire"), "");
  EXPECT_STREQ(nameOf(runChecks(order).at(0).verdict), "fail");
}

}  // namespace
}  // namespace standin::validate
