#include "layout/conversion.h"

#include <exception>
#include <optional>
#include <string>
#include <vector>

#include "host/lwtool2_errors.h"
#include "host/lwtool2_eval.h"
#include "host/lwtool2_globals.h"
#include "layout/ST_bone_set_params.h"
#include "reader/stored_properties.h"
#include "skelegon/item_names.h"

namespace lwp {
namespace {

using lw::EvalF;
using skg::SkelegonProperties;
using skg::Slot;

constexpr const char* kPanelSource = "ST_CSkgConvPanel";

// IK, motion controllers and deformations slow every command down: off for the life of this object, then on.
class CSwitchedOff {
 public:
  // Delegating completes the object before the first command is sent: if one throws, the destructor still switches
  // everything on.
  CSwitchedOff() : CSwitchedOff(kWhole) {
    for (const char* command : {"EnableIK 0", "EnableMC 0", "EnableDeformations 0"}) lw::Eval(command);
  }
  // Each command is guarded by itself and takes no memory, so that one failure leaves no other switch off.
  ~CSwitchedOff() {
    for (const char* command : {"EnableIK 1", "EnableMC 1", "EnableDeformations 1"}) {
      lw::guarded([&] { lw::EvalPlain(command); });
    }
  }
  CSwitchedOff(const CSwitchedOff&) = delete;
  CSwitchedOff& operator=(const CSwitchedOff&) = delete;

 private:
  enum Whole { kWhole };
  explicit CSwitchedOff(Whole /*unused*/) {}
};

// Switches the host's auto-confirm off again when a throw leaves the scope.
class CAutoConfirmOffOnThrow {
 public:
  CAutoConfirmOffOnThrow() = default;
  ~CAutoConfirmOffOnThrow() {
    if (std::uncaught_exceptions() > throwsBefore_) lw::guarded([] { lw::EvalPlain("AutoConfirm 0"); });
  }
  CAutoConfirmOffOnThrow(const CAutoConfirmOffOnThrow&) = delete;
  CAutoConfirmOffOnThrow& operator=(const CAutoConfirmOffOnThrow&) = delete;

 private:
  int throwsBefore_ = std::uncaught_exceptions();
};

// The names by which an object item's skelegons are found in its file, and by which "[file]:" is replaced.
struct ObjectNames {
  std::string layer;
  std::string object;
};

// Whether the file's only layer goes by the name of the file, as Layout names its item.
bool isNamedByFile(const st::ObjectFileData& data) { return data.layerCount() == 1 && data.layer(0).number() == 0; }

// Whether the item holds the first layer of its file, or the only one. The host's number of that layer is 0, or 1 where it
// counts from 1: a file that has no other layer tells which.
bool holdsFirstLayer(lw::ItemId object, const st::ObjectFileData& data) {
  const int loaded = lw::objectInfo().layerLoaded(object);
  return loaded == 0 || (loaded == 1 && isNamedByFile(data));
}

ObjectNames namesOf(lw::ItemId object, const st::ObjectFileData& data) {
  ObjectNames names;
  names.layer = lw::SplitItemName(object, 2);
  names.object = lw::SplitItemName(object, 1);
  // Without a colon the item may be the only layer of its file, which Layout names after the file alone.
  if (names.layer.empty() && holdsFirstLayer(object, data)) {
    names.layer = lw::itemName(object);
    names.object = names.layer;
  }
  return names;
}

// The first layer of that name. `readPath` (UTF-8) is the path that was really read; it may be another file's, whose only
// layer then bears that file's name.
std::optional<st::ObjectLayer> layerNamed(const st::ObjectFileData& data, const std::string& name,
                                          const std::string& readPath) {
  const std::string fileName = skg::fileBaseName(readPath);
  for (std::size_t i = 0; i < data.layerCount(); ++i) {
    if ((isNamedByFile(data) ? fileName : data.layer(i).name()) == name) return data.layer(i);
  }
  return std::nullopt;
}

bool recordPivotRotation(lw::ItemId bone) {
  EvalF("SelectItem 0x%x", lw::commandId(bone));
  lw::RefreshInterfaceInfo();
  if (!EvalF("RecordPivotRotation")) return false;
  lw::ResetRotation(bone);  // throws when the host refuses
  return true;
}

// Gives one bone its settings. The message format of what failed, or null.
const char* applyAll(lw::CSceneItems& scene, lw::ItemId bone, const SkelegonProperties& properties, bool recordPivot) {
  if (!ApplyBoneParameters(scene, bone, properties)) return "bone_set_params(): !(%s)";
  if (!ApplyItemParents(scene, properties)) return "set_item_parent(): !(%s)";
  if (!ApplyItemShapes(scene, properties)) return "set_item_shape(): !(%s)";
  if (recordPivot && !recordPivotRotation(bone)) return "RecordPivotRotation(): !(%s)";
  return nullptr;
}

void applyToLayer(lw::CSceneItems& scene, const st::ObjectFileData& data, const st::ObjectLayer& layer,
                  const std::string& objectName, bool recordPivot) {
  const std::vector<st::SkelegonRecord> skelegons = layer.skelegons();
  for (std::size_t k = 0; k < skelegons.size(); ++k) {
    lw::StatusProgress(static_cast<float>(k) / static_cast<float>(skelegons.size()), "%s", "Now setting bone properties...");
    SkelegonProperties properties = storedProperties(data, skelegons[k]);
    putObjectName(properties, objectName);
    const std::string& name = properties[Slot::Name];
    if (name.empty()) continue;
    const lw::ItemId bone = scene.FindItemByName(name);
    if (bone == nullptr) {
      lw::StatusText("item not found ! (%s)", name.c_str());
      continue;
    }
    if (const char* const failure = applyAll(scene, bone, properties, recordPivot)) {
      // The rest of this layer is left alone, but the run goes on with the next object.
      lw::StatusText(failure, name.c_str());
      return;
    }
  }
}

// One selected object. The report line of what failed, or 0.
int convertObject(lw::CSceneItems& scene, CLastObjectFile& file, lw::ItemId object, bool executeSkelegonToBone,
                  bool recordPivot) {
  scene.forget();
  if (executeSkelegonToBone && !ConvertSkelegons(object)) return 454;
  return ConvertObjectSkelegons(scene, file, object, recordPivot) ? 0 : 457;
}

}  // namespace

bool ConvertSkelegons(lw::ItemId object) {
  EvalF("SelectItem 0x%x", lw::commandId(object));
  lw::RefreshInterfaceInfo();
  const CAutoConfirmOffOnThrow guard;
  // Stops at the first failure, which with this evaluator never comes: so nothing switches auto-confirm back there.
  return EvalF("AutoConfirm 1") && EvalF("RefreshNow") && EvalF("SkelegonsToBones") && EvalF("AutoConfirm 0") &&
         EvalF("RefreshNow");
}

bool ConvertObjectSkelegons(lw::CSceneItems& scene, CLastObjectFile& file, lw::ItemId object, bool recordPivot) {
  const char* const hostPath = lw::objectInfo().filename(object);
  const std::string ownPath = hostPath == nullptr ? "" : hostPath;
  const st::ObjectFileData* const data = file.read(hostPath == nullptr ? nullptr : ownPath.c_str());
  if (data == nullptr) return false;

  const ObjectNames names = namesOf(object, *data);
  const std::optional<st::ObjectLayer> layer = layerNamed(*data, names.layer, file.utf8());
  if (!layer) return true;
  applyToLayer(scene, *data, *layer, names.object, recordPivot);
  lw::StatusProgress(1.0F, "%s", "Now setting bone properties...done.");
  return true;
}

void convertSelection(bool executeSkelegonToBone, bool recordPivotRotation) {
  lw::StatusText("%s start...", kOptimizeName);
  {
    const CSwitchedOff switches;
    const lw::CSavedSelection selection;
    lw::CSceneItems scene;
    static CNarrowPath path;
    CLastObjectFile file(path);
    for (const lw::ItemId item : selection.items()) {
      if (lw::ClassifyItem(item) != lw::ItemKind::FileObject) continue;
      if (const int line = convertObject(scene, file, item, executeSkelegonToBone, recordPivotRotation)) {
        lw::ReportError(kPanelSource, line, "");
        break;
      }
    }
  }
  lw::StatusText("%s done.", kOptimizeName);
}

}  // namespace lwp
