#include <algorithm>
#include <iostream>
#include <memory>

#include "objectfile/whole_file.h"
#include "program/conversion.h"
#include "program/drawn_rigs.h"
#include "program/rig_tool_support.h"
#include "program/subcommands.h"
#include "rigs/text.h"
#include "views/picture.h"

namespace standin {
namespace {

struct PictureWords {
  std::string file;
  std::string out;
  std::vector<std::string> layers;
  std::vector<std::string> views;
  int width = 960;
  bool noLabels = false;
  bool before = false;
  bool after = false;
  bool force = false;
  ConversionOptions conversion;
};

// In the order of views::View.
const std::vector<std::string>& viewNames() {
  static const std::vector<std::string> names = {"front", "side", "top", "turned"};
  return names;
}

// Also where not all went well: the verdict tells that.
views::PosedRig after(const InspectedObject& file, const PictureWords& words, bool& isSound) {
  Progress progress;
  Conversion conversion(words.file, words.conversion, progress);
  conversion.open();
  const ConversionVerdict verdict = conversion.run(progress);
  isSound = verdict.isSound();
  if (!isSound) std::cerr << verdictText(verdict);
  views::PosedRig posed = drawnAfter(conversion.host().scene(), file, languageOf(words.conversion.language));
  conversion.end();
  return posed;
}

std::vector<std::size_t> layersNamed(const views::PosedRig& posed, const PictureWords& words) {
  std::vector<std::size_t> places;
  for (const std::string& word : words.layers) {
    const std::size_t before = places.size();
    for (std::size_t i = 0; i < posed.layers.size(); ++i) {
      const views::PosedLayer& layer = posed.layers[i];
      if (layer.name == word || std::to_string(layer.number) == word) places.push_back(i);
    }
    if (places.size() == before) throw Trouble{words.file + ": no layer has the name or number " + word};
  }
  return places;
}

std::string titleOf(const PictureWords& words, rigs::Language language) {
  const bool isJapanese = language == rigs::Language::Japanese;
  const char* const state = words.after  ? isJapanese ? "変換後" : "after the conversion"
                            : isJapanese ? "変換前"
                                         : "before the conversion";
  return rigs::printable(fileNameOf(words.file)) + " · " + state;
}

int run(const PictureWords& words) {
  return exitCodeOf([&] {
    // Before the long work.
    if (!words.out.empty()) {
      mustBeWritten(refusedFiles({words.out}, existingFiles(words.force)));
      mustBeWritten(refusedAsRead({words.out}, {words.file}));
    }
    const rigs::Language language = languageOf(words.conversion.language);
    const InspectedObject file = inspectObject(words.file, codePageOf({}));
    if (!file.inspected.trouble.empty()) throw Trouble{file.inspected.trouble};
    bool isSound = true;
    const views::PosedRig posed = words.after ? after(file, words, isSound) : drawnBefore(file, language);

    views::PictureOptions options;
    for (const std::string& view : words.views) {
      const auto place = std::find(viewNames().begin(), viewNames().end(), view) - viewNames().begin();
      options.views.push_back(static_cast<views::View>(place));
    }
    options.width = words.width;
    options.labels = !words.noLabels;
    options.layers = layersNamed(posed, words);
    options.language = language;
    options.title = titleOf(words, language);
    const std::string svg = pictureSvg(posed, options);
    if (words.out.empty()) {
      std::cout << svg;
    } else {
      mustBeWritten(writeWholeFile(words.out, svg, existingFiles(words.force)));
    }
    return isSound ? 0 : kNotAllWell;
  });
}

}  // namespace

Command pictureCommand() {
  const auto words = std::make_shared<PictureWords>();
  return {
      .name = "picture",
      .text = "Draw the bones of a rig as SVG, before or after the conversion",
      .options =
          {
              {"file", &words->file, "Object file", {.isRequired = true}},
              {"picture", &words->out, "SVG file to write (the standard output by default)"},
              {"-o,--output", &words->out, "The same, as an option", {.excludes = "picture"}},
              forceOption(words->force),
              {"--before", &words->before, "Draw the skelegons as they are stored (the default)"},
              {"--after", &words->after, "Convert them first, and draw bones and helper items", {.excludes = "--before"}},
              {"--layer", &words->layers, "Layers to draw, by name or number as inspect shows them (all by default)"},
              {"--view", &words->views, "Views to draw (all by default)", {.choices = viewNames(), .separator = ','}},
              {"--width", &words->width, "Width in dots", {.showsDefault = true, .range = {{240, 10000}}}},
              {"--no-labels", &words->noLabels, "Leave the names out"},
              languageOption(&words->conversion.language, "Language of what stands in the picture"),
              moduleOption(words->conversion.module),
              hostOption(words->conversion.host),
          },
      .footer =
          "Each bone is shown from head to tail in its stored colour, those with a problem (see inspect) in red; after the\n"
          "conversion, the helper items with lines from the bones that refer to them. Front is seen along +Z, side from "
          "+X,\n"
          "top from +Y. Exit codes: 0; 1 the conversion did not go all well, as its verdict says; 2 trouble.\n"
          "Examples:\n"
          "  varnel picture rigs/lizard.lwo lizard.svg\n"
          "  varnel picture --after rigs/lizard.lwo lizard-after.svg\n"
          "  varnel picture --view side,top --layer Tail --no-labels rigs/lizard.lwo tail.svg",
      .run = [words] { return run(*words); },
  };
}

}  // namespace standin
