// Whole files as byte strings. Paths are UTF-8 on every system.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "objectfile/outcome.h"

namespace standin {

std::filesystem::path pathFromUtf8(const std::string& utf8);
std::string utf8Of(const std::filesystem::path& path);

Outcome<std::string> readFileBytes(const std::string& path);

// Empty when the file was written, else the failure, which calls the file by the other name where one is given.
std::optional<Failure> writeFileBytes(const std::string& path, const std::string& bytes, const std::string& shownAs = {});

}  // namespace standin
