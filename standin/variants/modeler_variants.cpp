// What is open about Modeler: edits, scans, tags, layers, maps, objects.
#include <array>

#include "interface/lightwave.h"
#include "standin/variants/set.h"

namespace standin {
namespace {

constexpr VariantValue kRefusalCode[]{{"memory"},
                                      {"layer", set<&M::refusalCode, lw::kEditBadLayer>},
                                      {"abort", set<&M::refusalCode, lw::kEditUserAbort>},
                                      {"arguments", set<&M::refusalCode, lw::kEditBadArguments>},
                                      {"unknown", set<&M::refusalCode, 99>},
                                      {"negative", set<&M::refusalCode, -1>}};
constexpr VariantValue kEditWithoutObject[]{{"null"}, {"empty", set<&M::editWithoutObject, true>}};
constexpr VariantValue kOwnChanges[]{{"hidden"}, {"seen", set<&M::editsShowOwnChanges, true>}};
constexpr VariantValue kSelectionUndo[]{{"step"}, {"none", set<&M::selectionIsStep, false>}};
constexpr VariantValue kScanOrder[]{{"layers"}, {"newest", set<&M::newestFirst, true>}};
constexpr VariantValue kDeletedPolygons[]{{"left-out"}, {"flagged", set<&M::scansDeliverDeleted, true>}};
constexpr VariantValue kScanQuestions[]{{"answered"}, {"refused", set<&M::scansRefuseQuestions, true>}};
constexpr VariantValue kRecordLife[]{{"next-record"}, {"any-call", set<&M::recordsEndAtAnyCall, true>}};
constexpr VariantValue kIdentifiers[]{{"once"}, {"again", set<&M::identifiersAreUsedAgain, true>}};
constexpr VariantValue kEmptyTag[]{{"kept"}, {"removed", set<&M::emptyTagRemoves, true>}};
constexpr VariantValue kMissingTag[]{{"null"}, {"empty", set<&M::missingTagIsEmpty, true>}};
constexpr VariantValue kRepeatedTag[]{{"last"}, {"first", set<&M::firstTagCounts, true>}};
constexpr VariantValue kUnnamedLayer[]{{"null"}, {"empty", set<&M::unnamedLayerIsEmpty, true>}};
constexpr VariantValue kLayerSwitch[]{{"deselects"}, {"keeps", set<&M::layerSwitchDeselects, false>}};
constexpr VariantValue kUnnamedMap[]{{"null"}, {"empty", set<&M::unnamedMapIsEmpty, true>}};
constexpr VariantValue kMapOwner[]{{"program"}, {"object", set<&M::mapsAreTheObjects, true>}};
constexpr VariantValue kOtherMaps[]{{"none"}, {"named-alike", set<&M::otherMapsBearNames, true>}};

template <UnsavedFileName Answer>
constexpr auto neverSaved = set<&M::objectsAreUnsaved, true, &M::unsavedFileName, Answer>;
constexpr VariantValue kObjectName[]{{"file"},
                                     {"reference", neverSaved<UnsavedFileName::Reference>},
                                     {"unsaved-null", neverSaved<UnsavedFileName::Null>},
                                     {"unsaved-empty", neverSaved<UnsavedFileName::Empty>}};

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
    HostVariant{"repeated-tag", "Which of several tags of one type that a file stores on one polygon is shown and saved",
                "not documented; a file that is loaded tag by tag ends with the last, and the conversion takes the first",
                "shows and changes what the host holds; the file that is saved has no other", kRepeatedTag},
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
