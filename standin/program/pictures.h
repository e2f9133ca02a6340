// varnel pictures: pictures of the tools' panels as real windows, into a folder.
#pragma once

namespace CLI {
class App;
}

namespace standin {

// Adds the subcommand; where panels cannot be shown as windows it only says so. Its run leaves the exit code in `result`.
void addPicturesCommand(CLI::App& app, int& result);

}  // namespace standin
