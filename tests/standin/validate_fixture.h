// Runs of the validator with the built program, against the real module and bad ones.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "objectfile/file_bytes.h"
#include "standin/core/program_folder.h"
#include "standin/validate/runner.h"
#include "tests/modules/bad_module.h"

namespace standin::validate {

inline std::string utf8Text(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

// The test programs lie in a folder below the program's.
inline std::filesystem::path testFolder() { return pathFromUtf8(programFolder()); }
inline std::string programPath() { return utf8Text(testFolder().parent_path() / VARNEL_PROGRAM); }
inline std::string sampleModule(const std::string& name) {
  return utf8Text(testFolder() / "modules" / (name + VARNEL_MODULE_SUFFIX));
}

class Validation : public testing::Test {
 protected:
  Validation()
      : folder_(std::filesystem::temp_directory_path() / ("varnel-test-" + std::to_string(std::random_device()()))) {
    std::filesystem::create_directories(folder_);
  }
  ~Validation() override {
    choose(varnel::test::BadFault::None);
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
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
    order.folder = utf8Text(folder_);
    order.only = checks;
    order.share = 0.02;
    order.mostDeaths = 1;
    return order;
  }

  CheckResult run(const std::string& module, const std::string& check) const {
    return runChecks(orderOf(module, {check})).at(0);
  }

  std::filesystem::path folder_;
};

}  // namespace standin::validate
