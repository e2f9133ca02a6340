#include <iostream>
#include <memory>

#include "program/subcommands.h"
#include "standin/variants/variants.h"

namespace standin {

Command hostsCommand() {
  const auto markdown = std::make_shared<bool>(false);
  return {
      .name = "hosts",
      .text = "List what hosts may differ in, for the option --host",
      .options = {{"--markdown", markdown.get(), "Print the tables of docs/stand-in.md"}},
      .footer =
          "The first value of each is the default.\n\nExamples:\n  varnel hosts\n  varnel trip --host new-bones=selected",
      .run =
          [markdown] {
            std::cout << (*markdown ? variantsPage() : variantsText());
            return 0;
          },
  };
}

}  // namespace standin
