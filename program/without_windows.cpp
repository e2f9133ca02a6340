// The subcommands that show windows, where the system has none that the stand-in knows to use.

#include "program/subcommands.h"
#include "program/support.h"

namespace standin {
namespace {

Command refusal(const std::string& name, const std::string& what) {
  return {
      .name = name,
      .text = what + " (needs Windows)",
      .run =
          [name] {
            printTrouble({name + " needs the Windows build of this program; it runs under Wine too"});
            return kTrouble;
          },
      .takesAnything = true,
  };
}

}  // namespace

Command deskCommand() { return refusal("desk", "Open an object and use the tools in real windows"); }

Command picturesCommand() { return refusal("pictures", "Write pictures of the tools' panels as real windows"); }

}  // namespace standin
