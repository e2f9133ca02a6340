// Writing files whole: what reads the file sees the old content or the new, never a part. Nothing is written over unless
// someone asked for it. Paths are UTF-8.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "objectfile/outcome.h"

namespace standin {

// What becomes of a file that is there already.
enum class Existing { Keep, Replace };

// The answer of --force.
inline Existing existingFiles(bool isForced) { return isForced ? Existing::Replace : Existing::Keep; }

// Which of the files is there and has to be kept, for those who write several: none of them is written then.
std::optional<Failure> refusedFiles(const std::vector<std::string>& paths, Existing existing);

// Which of the files is one of those that are read. It is not written over even when someone asked for that: who gives a rig's
// name for its picture, too, would lose the rig.
std::optional<Failure> refusedAsRead(const std::vector<std::string>& paths, const std::vector<std::string>& read);

// Why no file can be made in the folder, which shows only by making one; empty when it can. Nothing is left there.
std::optional<Failure> refusedFolder(const std::string& folder);

// Why a file that is there must not be written over, whoever asks for it; empty when it may.
std::optional<Failure> refusedReplacement(const std::string& path);

// Fails when there is something of that name that has to be kept. Empty when the file was written.
std::optional<Failure> writeWholeFile(const std::string& path, const std::string& bytes, Existing existing);

// Writes a file beside it and renames that; its permissions stay. A link is followed. What must not be written is refused,
// though a file could be put in its place. After a failure the file is as it was.
std::optional<Failure> replaceFile(const std::string& path, const std::string& bytes);

}  // namespace standin
