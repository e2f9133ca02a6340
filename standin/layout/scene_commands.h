// What loads, makes, selects and removes items.
#pragma once

#include <string>
#include <vector>

#include "standin/layout/command_table.h"

namespace standin {

void addSceneRows(std::vector<CommandRow>& rows);

// Loads an object file (a UTF-8 path), one item for each layer, and leaves the selection alone. Empty, with a sentence in
// `why`, when it cannot be read.
std::vector<Item*> loadIntoScene(Scene& scene, const std::string& path, std::string* why);

}  // namespace standin
