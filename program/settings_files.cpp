// The subcommands export and import.
#include <iostream>
#include <memory>

#include "gltf/rig_gltf.h"
#include "gltf/write_glb.h"
#include "objectfile/file_bytes.h"
#include "objectfile/whole_file.h"
#include "program/rig_tool_support.h"
#include "program/subcommands.h"
#include "rigs/difference.h"
#include "rigs/report.h"
#include "rigs/settings_json.h"

namespace standin {
namespace {

struct ExportOptions {
  std::string file;
  std::string out;
  bool schema = false;
  bool force = false;
  bool textconv = false;
  bool gltf = false;
};

struct ImportOptions {
  std::string file;
  std::string json;
  std::string out;
  bool inPlace = false;
  bool dryRun = false;
  bool merge = false;
  std::string language;
  bool force = false;
};

// For version control, which calls for every state of a file in turn and ends its own listing when one of them fails. The
// line is the same wherever the file lies: version control hands over copies with names of their own.
int runTextconv(const std::string& path) {
  const Outcome<std::string> bytes = readFileBytes(path);
  const Outcome<ObjectFile> object = bytes ? parseObject(*bytes) : Outcome<ObjectFile>(Failure{bytes.why()});
  if (object) {
    std::cout << rigs::exportSettings(rigs::rigOf(*object, fileNameOf(path)));
  } else {
    std::cout << "(not readable: " << object.why() << ")\n";
  }
  return 0;
}

bool isNamedGlb(const std::string& path) {
  std::string extension = utf8Of(pathFromUtf8(path).extension());
  for (char& c : extension) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return extension == ".glb";
}

std::string counted(std::size_t count, const char* one, const char* several) {
  return std::to_string(count) + ' ' + (count == 1 ? one : several);
}

int runGltf(const ExportOptions& options) {
  if (!isNamedGlb(options.out)) throw Trouble{"with --gltf, name the file to write with -o; its name has to end in .glb"};
  mustBeWritten(refusedFiles({options.out}, existingFiles(options.force)));
  const Outcome<gltf::Translated> rig = gltf::translated(readRigFile(options.file), options.file);
  if (!rig) throw Trouble{options.file + ": " + rig.why()};
  const Outcome<std::string> bytes = gltf::glbOf(rig->model);
  if (!bytes) throw Trouble{options.file + ": " + bytes.why()};
  mustBeWritten(writeWholeFile(options.out, *bytes, existingFiles(options.force)));
  std::size_t triangles = 0;
  for (const gltf::Mesh& mesh : rig->model.meshes) triangles += mesh.triangles.size();
  std::cout << options.out << ": " << counted(rig->bones, "bone", "bones") << ", "
            << counted(rig->model.meshes.size(), "mesh", "meshes") << ", " << counted(triangles, "triangle", "triangles")
            << "\n";
  for (const std::string& line : gltf::linesOf(rig->leftOut)) std::cout << "  " << line << "\n";
  return 0;
}

int runExport(const ExportOptions& options) {
  return exitCodeOf([&] {
    if (options.file.empty() && !options.schema) throw Trouble{"name the object file"};
    mustBeWritten(refusedAsRead({options.out}, {options.file}));
    if (options.gltf) return runGltf(options);
    if (options.textconv) return runTextconv(options.file);
    const std::string json = options.schema
                                 ? rigs::settingsSchema()
                                 : rigs::exportSettings(rigs::rigOf(readRigFile(options.file), fileNameOf(options.file)));
    if (options.out.empty()) {
      std::cout << json;
    } else {
      mustBeWritten(writeWholeFile(options.out, json, existingFiles(options.force)));
    }
    return 0;
  });
}

std::string tagsChanged(std::size_t count) { return std::to_string(count) + (count == 1 ? " tag" : " tags"); }

int runImport(const ImportOptions& options) {
  return exitCodeOf([&] {
    if (options.out.empty() && !options.inPlace && !options.dryRun) {
      throw Trouble{"name the file to write with -o, or give --in-place or --dry-run"};
    }
    ObjectFile object = readRigFile(options.file);
    const Outcome<std::string> json = readFileBytes(options.json);
    if (!json) throw Trouble{json.why()};
    const rigs::Rig before = rigs::rigOf(object, fileNameOf(options.file));
    const auto unlisted = options.merge ? rigs::Unlisted::Kept : rigs::Unlisted::Removed;
    const Outcome<std::size_t> changes = rigs::importSettings(object, *json, unlisted);
    if (!changes) throw Trouble{options.json + ": " + changes.why()};
    if (options.dryRun) {
      const rigs::Language language = languageOf(options.language);
      std::cout << rigs::differencesText(differencesOf(before, rigs::rigOf(object, before.fileName), language), language)
                << tagsChanged(*changes) << " would be changed\n";
      return 0;
    }
    const Outcome<std::string> bytes = serializeObject(object);
    if (!bytes) throw Trouble{options.file + ": " + bytes.why()};
    if (!options.inPlace) {
      mustBeWritten(writeWholeFile(options.out, *bytes, existingFiles(options.force)));
    } else if (*changes > 0) {
      mustBeWritten(replaceFile(options.file, *bytes));
    }
    std::cout << (options.inPlace ? options.file : options.out) << ": " << tagsChanged(*changes) << " changed\n";
    return 0;
  });
}

}  // namespace

Command exportCommand() {
  const auto options = std::make_shared<ExportOptions>();
  return {
      .name = "export",
      .text = "Write the stored settings of a rig as JSON, or its skeleton and mesh as glTF",
      .options =
          {
              {"file", &options->file, "Object file"},
              {"-o,--output", &options->out, "File to write (the standard output by default)"},
              forceOption(options->force),
              {"--textconv",
               &options->textconv,
               "Say \"(not readable: why)\" of a file that is no object, and end with 0",
               {.excludes = "--output"}},
              {"--schema",
               &options->schema,
               "Write the JSON Schema of the settings in place of a rig's",
               {.excludes = "--textconv"}},
              {"--gltf",
               &options->gltf,
               "Write the skeleton and the mesh for 3D viewers instead, as glTF 2.0; -o names a file that ends in .glb",
               {.excludes = "--schema"}},
          },
      .footer =
          "Listed is what each skelegon stores, by layer and name. The same rig always gives the same text, whatever its\n"
          "file is called. With --textconv it serves version control, which stops at a command that fails. With --gltf it "
          "says\n"
          "what glTF has no place for. Exit codes: 0; 2 trouble.\n"
          "Examples:\n"
          "  varnel export rigs/lizard.lwo\n"
          "  varnel export rigs/lizard.lwo -o lizard.json\n"
          "  varnel export --gltf rigs/lizard.lwo -o lizard.glb\n"
          "With git, in git diff and git log, with a line \"*.lwo diff=varnel\" in .gitattributes:\n"
          "  git config diff.varnel.textconv 'varnel export --textconv'",
      .run = [options] { return runExport(*options); },
  };
}

Command importCommand() {
  const auto options = std::make_shared<ImportOptions>();
  return {
      .name = "import",
      .text = "Put settings from JSON into a rig",
      .options =
          {
              {"file", &options->file, "Object file", {.isRequired = true}},
              {"json", &options->json, "Settings, as export writes them", {.isRequired = true}},
              {"-o,--output", &options->out, "Object file to write"},
              forceOption(options->force),
              {"--in-place", &options->inPlace, "Write over the object file", {.excludes = "--output"}},
              {"--dry-run", &options->dryRun, "Write nothing, show what would change"},
              {"--merge", &options->merge, "Leave settings that the JSON does not list as they are"},
              languageOption(&options->language, "Language of what --dry-run shows"),
          },
      .footer =
          "Every skelegon that the JSON names gets exactly the settings that stand there, or with --merge these too; the\n"
          "others stay as they are. Only tags are written. JSON that is not understood whole is refused, and nothing is\n"
          "written. Exit codes: 0; 2 trouble.\n"
          "Examples:\n"
          "  varnel export rigs/lizard.lwo -o lizard.json\n"
          "  varnel import rigs/lizard.lwo lizard.json --dry-run\n"
          "  varnel import rigs/lizard.lwo lizard.json -o lizard-2.lwo\n"
          "  varnel import rigs/lizard.lwo lizard.json --in-place",
      .run = [options] { return runImport(*options); },
  };
}

}  // namespace standin
