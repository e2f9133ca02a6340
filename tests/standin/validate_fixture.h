// Runs of the validator with the built program, against the real module and bad ones.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "objectfile/file_bytes.h"
#include "objectfile/temporary_folder.h"
#include "standin/core/program_folder.h"
#include "standin/validate/runner.h"
#include "tests/modules/bad_module.h"

namespace standin::validate {

// The test programs lie in a folder below the program's.
inline std::filesystem::path testFolder() { return pathFromUtf8(programFolder()); }
inline std::string programPath() { return utf8Of(testFolder().parent_path() / VARNEL_PROGRAM); }
inline std::string sampleModule(const std::string& name) {
  return utf8Of(testFolder() / "modules" / (name + VARNEL_MODULE_SUFFIX));
}

class Validation : public testing::Test {
 protected:
  Validation() = default;
  ~Validation() override { choose(varnel::test::BadFault::None); }
  Validation(const Validation&) = delete;
  Validation& operator=(const Validation&) = delete;

  using BadFault = varnel::test::BadFault;

  // The processes of checks inherit the choice.
  static void choose(varnel::test::BadFault fault) {
    const char* const word = varnel::test::wordOf(fault);
#if defined(_WIN32)
    _putenv_s(varnel::test::kFaultVariable, word);
#else
    setenv(varnel::test::kFaultVariable, word, 1);
#endif
  }

  RunOrder orderOf(const std::string& module, const std::vector<std::string>& checks) const {
    RunOrder order;
    order.program = programPath();
    order.module = module;
    order.folder = folder_.path();
    order.only = checks;
    order.share = 0.02;
    order.mostDeaths = 1;
    return order;
  }

  CheckResult run(const std::string& module, const std::string& check) const {
    return runChecks(orderOf(module, {check})).at(0);
  }

  TemporaryFolder folder_;
};

}  // namespace standin::validate
