// What is open about Modeler: edits, scans, tags, layers, maps, objects.
#include <array>

#include "interface/lightwave.h"
#include "standin/variants/variants.h"

namespace standin {
namespace {

constexpr VariantValue kRefusalCode[]{
    {"memory"},
    {"layer", [](HostOptions& host) { host.modeler.refusalCode = lw::kEditBadLayer; }},
    {"abort", [](HostOptions& host) { host.modeler.refusalCode = lw::kEditUserAbort; }},
    {"arguments", [](HostOptions& host) { host.modeler.refusalCode = lw::kEditBadArguments; }},
    {"unknown", [](HostOptions& host) { host.modeler.refusalCode = 99; }},
    {"negative", [](HostOptions& host) { host.modeler.refusalCode = -1; }},
};
constexpr VariantValue kEditWithoutObject[]{
    {"null"},
    {"empty", [](HostOptions& host) { host.modeler.editWithoutObject = true; }},
};
constexpr VariantValue kOwnChanges[]{
    {"hidden"},
    {"seen", [](HostOptions& host) { host.modeler.editsShowOwnChanges = true; }},
};
constexpr VariantValue kSelectionUndo[]{
    {"step"},
    {"none", [](HostOptions& host) { host.modeler.selectionIsStep = false; }},
};
constexpr VariantValue kScanOrder[]{
    {"layers"},
    {"newest", [](HostOptions& host) { host.modeler.newestFirst = true; }},
};
constexpr VariantValue kDeletedPolygons[]{
    {"left-out"},
    {"flagged", [](HostOptions& host) { host.modeler.scansDeliverDeleted = true; }},
};
constexpr VariantValue kScanQuestions[]{
    {"answered"},
    {"refused", [](HostOptions& host) { host.modeler.scansRefuseQuestions = true; }},
};
constexpr VariantValue kRecordLife[]{
    {"next-record"},
    {"any-call", [](HostOptions& host) { host.modeler.recordsEndAtAnyCall = true; }},
};
constexpr VariantValue kIdentifiers[]{
    {"once"},
    {"again", [](HostOptions& host) { host.modeler.identifiersAreUsedAgain = true; }},
};
constexpr VariantValue kEmptyTag[]{
    {"kept"},
    {"removed", [](HostOptions& host) { host.modeler.emptyTagRemoves = true; }},
};
constexpr VariantValue kMissingTag[]{
    {"null"},
    {"empty", [](HostOptions& host) { host.modeler.missingTagIsEmpty = true; }},
};
constexpr VariantValue kUnnamedLayer[]{
    {"null"},
    {"empty", [](HostOptions& host) { host.modeler.unnamedLayerIsEmpty = true; }},
};
constexpr VariantValue kLayerSwitch[]{
    {"deselects"},
    {"keeps", [](HostOptions& host) { host.modeler.layerSwitchDeselects = false; }},
};
constexpr VariantValue kUnnamedMap[]{
    {"null"},
    {"empty", [](HostOptions& host) { host.modeler.unnamedMapIsEmpty = true; }},
};
constexpr VariantValue kMapOwner[]{
    {"program"},
    {"object", [](HostOptions& host) { host.modeler.mapsAreTheObjects = true; }},
};
constexpr VariantValue kOtherMaps[]{
    {"none"},
    {"named-alike", [](HostOptions& host) { host.modeler.otherMapsBearNames = true; }},
};

void neverSaved(HostOptions& host, UnsavedFileName answer) {
  host.modeler.objectsAreUnsaved = true;
  host.modeler.unsavedFileName = answer;
}
constexpr VariantValue kObjectName[]{
    {"file"},
    {"reference", [](HostOptions& host) { neverSaved(host, UnsavedFileName::Reference); }},
    {"unsaved-null", [](HostOptions& host) { neverSaved(host, UnsavedFileName::Null); }},
    {"unsaved-empty", [](HostOptions& host) { neverSaved(host, UnsavedFileName::Empty); }},
};

constexpr std::array kModelerVariants{
    HostVariant{"refusal-code", "With which code a refused scan, tag or selection answers",
                "the codes are documented, not which stands for what",
                "takes everything but 0 for a refusal and hands the code on when it ends the edit", kRefusalCode},
    HostVariant{"edit-without-object", "What an edit is while no object is loaded",
                "reasons for a null edit are not documented",
                "asks for the object's name first and begins no edit without one", kEditWithoutObject},
    HostVariant{"own-changes", "Whether an edit shows its own changes before it is done",
                "changes are documented as buffered; whether reads see the buffer is not",
                "never reads back within the edit that writes", kOwnChanges},
    HostVariant{"selection-undo", "Whether a selection made by an edit is a step to undo",
                "what a step to undo consists of is not documented", "counts on neither", kSelectionUndo},
    HostVariant{"scan-order", "In which order a scan delivers polygons", "no order is documented",
                "keeps the host's order for what it shows and renames, and relies on none", kScanOrder},
    HostVariant{"deleted-polygons", "Whether a scan delivers polygons that the user has deleted",
                "documented for those deleted in the same edit only", "passes over whatever is flagged as deleted",
                kDeletedPolygons},
    HostVariant{"scan-questions", "Whether questions are answered within a scan's callback",
                "what a callback may call is not documented", "only notes identifiers there and asks after the scan",
                kScanQuestions},
    HostVariant{"record-life", "How long a polygon's record is good",
                "the next record overwrites it; whether other questions do is not documented",
                "reads a record before the next call", kRecordLife},
    HostVariant{"identifiers", "Whether a new polygon can get the identifier of one that is gone",
                "nothing is documented; what is used only once is the easier one to judge by",
                "looks before each change from a panel whether the identifier is there, and a skelegon's", kIdentifiers},
    HostVariant{"empty-tag", "What setting a tag to the empty text does",
                "only a null text is documented, which removes the tag",
                "shows an empty and a missing name, weight map or colour alike", kEmptyTag},
    HostVariant{"missing-tag", "How a tag that is not there is read", "null is documented for a related question only",
                "takes the default for both", kMissingTag},
    HostVariant{"unnamed-layer", "The name of a layer that has none", "null is documented, an empty text seems as likely",
                "makes up the name for both", kUnnamedLayer},
    HostVariant{"layer-switch", "Whether what leaves the foreground is deselected",
                "not documented; the default is what Modeler shows", "counts the selection of the foreground only",
                kLayerSwitch},
    HostVariant{"unnamed-map", "The name of a vertex map that has none", "not documented", "makes up the name for both",
                kUnnamedMap},
    HostVariant{"map-owner", "Whether the list of vertex maps is the program's or the object's",
                "the program's is documented; that maps of closed objects stay surprises",
                "asks for the list anew at each refresh", kMapOwner},
    HostVariant{"other-maps", "Whether maps of other types bear the names of skelegons",
                "a matter of the object, where it differs from most", "asks for maps of the weight type only", kOtherMaps},
    HostVariant{"object-name", "The file name of an object that was never saved",
                "the state query gives its reference name; what the scene's objects give is not documented",
                "numbers the layers where no object fits", kObjectName},
};

}  // namespace

std::span<const HostVariant> modelerVariants() { return kModelerVariants; }

}  // namespace standin
