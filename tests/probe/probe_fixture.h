// Runs of the built probe in the stand-in.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "objectfile/file_bytes.h"
#include "objectfile/temporary_folder.h"
#include "standin/core/program_folder.h"
#include "standin/measure/measure.h"

namespace standin {

// The test programs lie in a folder below the modules'.
inline std::string probePath() { return utf8Of(pathFromUtf8(programFolder()).parent_path() / VARNEL_PROBE); }

// The value that the file holds for a question; empty when that is not told, or not asked.
inline std::string valueIn(const std::string& facts, const std::string& name) {
  const auto file = nlohmann::json::parse(facts);
  for (const auto& fact : file.at("facts")) {
    if (fact.at("name") == name && fact.at("value").is_string()) return fact.at("value");
  }
  return {};
}

// The sentence that the file holds for a question; empty when that is not asked.
inline std::string seenIn(const std::string& facts, const std::string& name) {
  const auto file = nlohmann::json::parse(facts);
  for (const auto& fact : file.at("facts")) {
    if (fact.at("name") == name) return fact.at("seen");
  }
  return {};
}

// What the file holds for people under a name.
inline std::string figureIn(const std::string& facts, const std::string& name) {
  const auto file = nlohmann::json::parse(facts);
  for (const auto& figure : file.at("figures")) {
    if (figure.at("name") == name) return figure.at("seen");
  }
  return "no such figure";
}

// The host that the facts of these files describe.
inline HostChoice hostOf(const std::vector<std::string>& files) {
  HostChoice host;
  for (const std::string& facts : files) {
    const auto file = nlohmann::json::parse(facts);
    for (const auto& fact : file.at("facts")) {
      if (!fact.at("value").is_string()) continue;
      EXPECT_TRUE(host.choose(fact.at("name").get<std::string>(), fact.at("value").get<std::string>())) << fact;
    }
  }
  return host;
}

class Probing : public testing::Test {
 protected:
  MeasuredHost inModeler(const HostOptions& host = {}) { return measuredModeler(probePath(), host, folder_.path()); }
  MeasuredHost inLayout(const HostOptions& host = {}) { return measuredLayout(probePath(), host, folder_.path()); }

 private:
  TemporaryFolder folder_;
};

}  // namespace standin
