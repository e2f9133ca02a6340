// What is open about Layout: items, commands, channels, names.
#include <algorithm>
#include <array>
#include <map>
#include <string>

#include "standin/layout/scene.h"
#include "standin/variants/variants.h"

namespace standin {
namespace {

// Sets one of Layout's options.
template <auto Member, auto Value>
void with(HostOptions& host) {
  host.layout.*Member = Value;
}

using O = LayoutOptions;

// --- the selection ---

constexpr VariantValue kNewNull[]{
    {"selected"}, {"left", &with<&O::newNull, NewItems::Left>}, {"added", &with<&O::newNull, NewItems::Added>}};
constexpr VariantValue kNewNullParent[]{{"none"}, {"selected-item", &with<&O::newNullBelowSelection, true>}};
constexpr VariantValue kNewBones[]{{"left"},
                                   {"selected", &with<&O::newBones, NewItems::Selected>},
                                   {"added", &with<&O::newBones, NewItems::Added>},
                                   {"none", &with<&O::newBones, NewItems::Cleared>}};
constexpr VariantValue kEmptySelection[]{{"list"}, {"null", &with<&O::selectedItemsNullWhenEmpty, true>}};
constexpr VariantValue kSelectionArray[]{{"snapshot"}, {"follows", &with<&O::selectionFollows, true>}};
constexpr VariantValue kSelectionOrder[]{{"as-selected"},
                                         {"newest-first", &with<&O::selectionOrder, SelectionOrder::NewestFirst>},
                                         {"scene", &with<&O::selectionOrder, SelectionOrder::AsInScene>}};

// --- items ---

constexpr VariantValue kTopParent[]{{"object"}, {"null", &with<&O::topBoneHasParent, false>}};
constexpr VariantValue kFileOfNull[]{{"null"},
                                     {"empty", &with<&O::nullFileName, NoFileName::Empty>},
                                     {"blank", &with<&O::nullFileName, NoFileName::Blank>},
                                     {"own-name", &with<&O::nullFileName, NoFileName::OwnName>}};
constexpr VariantValue kNoWeightMap[]{{"null"}, {"empty", &with<&O::noWeightMapIsEmpty, true>}};
constexpr VariantValue kLayerBase[]{{"0"}, {"1", &with<&O::layerBase, 1>}};
constexpr VariantValue kCounters[]{{"all"},
                                   {"from-2", &with<&O::counters, Counters::FromTwo>},
                                   {"from-1", &with<&O::counters, Counters::FromOne>},
                                   {"none", &with<&O::counters, Counters::None>}};
constexpr VariantValue kItemNumbers[]{
    {"apart"}, {"small", &with<&O::itemNumbers, ItemNumbers::Small>}, {"high", &with<&O::itemNumbers, ItemNumbers::High>}};
constexpr VariantValue kHighBits[]{{"pattern"},
                                   {"zero", &with<&O::highIdBits, std::uint64_t{0}>},
                                   {"ones", &with<&O::highIdBits, std::uint64_t{0xFFFFFFFF00000000}>}};
constexpr VariantValue kOrderOfItems[]{{"kept"}, {"behind-parent", &with<&O::parentingReorders, true>}};
constexpr VariantValue kParentInPlace[]{{"off"}, {"on", &with<&O::parentInPlace, true>}};
constexpr VariantValue kChildOrigin[]{{"pivot"}, {"origin", &with<&O::childFromOrigin, true>}};
constexpr VariantValue kPivotRotation[]{{"orientation-kept"}, {"angles-added", &with<&O::pivotRotationsAdd, true>}};

// --- SkelegonsToBones ---

constexpr VariantValue kBoneOrder[]{
    {"file"}, {"tree", &with<&O::boneOrder, BoneOrder::AsInTree>}, {"reversed", &with<&O::boneOrder, BoneOrder::Reversed>}};
// The second command for the file then finds no skelegons left.
constexpr VariantValue kBonesOf[]{{"layer"}, {"file", [](HostOptions& host) {
                                                host.layout.bonesOfWholeFile = true;
                                                host.layout.noSkelegonsIsRefused = false;
                                              }}};
constexpr VariantValue kBoneColour[]{{"skelegon"}, {"fresh", &with<&O::bonesTakeColour, false>}};
constexpr VariantValue kSkelegonsAfter[]{{"gone"}, {"stay", &with<&O::skelegonsStay, true>}};
constexpr VariantValue kNoSkelegons[]{{"refused"}, {"accepted", &with<&O::noSkelegonsIsRefused, false>}};

// --- channels and keys ---

constexpr VariantValue kKeys[]{{"1"}, {"0", &with<&O::keysOnNewItems, 0>}, {"2", &with<&O::keysOnNewItems, 2>}};

// Only items with more keys than one get a new key.
template <KeyAtSameTime Answer>
void twoKeys(HostOptions& host) {
  host.layout.keysOnNewItems = 2;
  host.layout.keyAtSameTime = Answer;
}
constexpr VariantValue kKeyAtKey[]{{"changed"},
                                   {"changed-null", &twoKeys<KeyAtSameTime::ChangedSilently>},
                                   {"refused-null", &twoKeys<KeyAtSameTime::Refused>},
                                   {"second", &twoKeys<KeyAtSameTime::Second>}};
constexpr VariantValue kKeyTolerance[]{
    {"microsecond"},
    {"none", [](HostOptions& host) { host.layout.keyTolerance = 0; }},
    {"half-frame", [](HostOptions& host) { host.layout.keyTolerance = 0.5 / host.layout.framesPerSecond; }},
};
constexpr VariantValue kChannels[]{{"direct"}, {"nested", &with<&O::nestedChannels, true>}};
constexpr VariantValue kDecoy[]{{"none"}, {"below", &with<&O::decoyChannel, true>}};
constexpr VariantValue kEnvelopes[]{{"all"},
                                    {"not-of-scale", [](HostOptions& host) { host.layout.channelWithoutKeys = "Scale"; }}};

// --- commands and services ---

constexpr VariantValue kSwitches[]{{"set"},
                                   {"toggle", &with<&O::switchArgument, SwitchArgument::Ignored>},
                                   {"refuse", &with<&O::switchArgument, SwitchArgument::Refused>}};
constexpr VariantValue kAccepted[]{{"1"}, {"2", &with<&O::acceptedResult, 2>}, {"minus-1", &with<&O::acceptedResult, -1>}};
constexpr VariantValue kStatus[]{{"1"}, {"0", &with<&O::statusResult, 0>}};
constexpr VariantValue kInterfaceRecord[]{{"new"}, {"one", &with<&O::oneInterfaceRecord, true>}};
constexpr VariantValue kTimeRecord[]{{"new"}, {"one", &with<&O::oneTimeRecord, true>}};
constexpr VariantValue kTextLife[]{{"until-next"},
                                   {"one-place", &with<&O::textLife, TextLife::OnePlace>},
                                   {"session", &with<&O::textLife, TextLife::Session>}};

// --- another plug-in ---

constexpr const char* kOther = "Other";
constexpr std::size_t kMostOthers = 16;  // of all names

bool changesItems(std::string_view command) { return command.starts_with("AddNull") || command.starts_with("ParentItem"); }

void addsItems(Scene& scene, std::string_view command) {
  if (changesItems(command) && scene.objects().size() < kMostOthers) scene.addNull(kOther);
}

// Its own item, which is selected instead of the new null.
void selectsItems(Scene& scene, std::string_view command) {
  if (!command.starts_with("AddNull") || scene.objects().size() >= kMostOthers) return;
  Item& own = scene.addNull(kOther);
  scene.deselectAll();
  scene.addToSelection(own);
}

// Its own item, which goes by another name each time.
void renamesItems(Scene& scene, std::string_view command) {
  if (!changesItems(command)) return;
  for (Item* item : scene.objects()) {
    if (item->givenName.rfind(kOther, 0) != 0) continue;
    return scene.rename(*item, item->givenName == kOther ? "Other again" : kOther);
  }
  scene.addNull(kOther);
}

// Items of equal name stay as they are to each other: which of them a name means after such a change, nobody could say.
void sortsItems(Scene& scene, std::string_view command) {
  if (!changesItems(command) || scene.objects().empty()) return;
  std::map<std::string, int> bearers;
  for (const Item* object : scene.objects()) {
    ++bearers[scene.nameOf(*object)];
    for (const Item* bone : object->bones) ++bearers[scene.nameOf(*bone)];
  }
  const auto isAlone = [&](const Item* item) { return bearers[scene.nameOf(*item)] == 1; };
  Item* const last = scene.objects().back();
  if (isAlone(last) && std::all_of(last->bones.begin(), last->bones.end(), isAlone)) scene.moveInList(*last, 0);
  for (Item* object : scene.objects()) {
    if (!object->bones.empty() && isAlone(object->bones.back())) scene.moveInList(*object->bones.back(), 0);
  }
}

constexpr VariantValue kOtherPlugin[]{{"none"},
                                      {"adds", [](HostOptions& host) { host.layout.otherPlugin = addsItems; }},
                                      {"selects", [](HostOptions& host) { host.layout.otherPlugin = selectsItems; }},
                                      {"renames", [](HostOptions& host) { host.layout.otherPlugin = renamesItems; }},
                                      {"sorts", [](HostOptions& host) { host.layout.otherPlugin = sortsItems; }}};

constexpr std::array kLayoutVariants{
    HostVariant{
        "new-null", "What AddNull does to the selection", "not documented; a new item is usually selected",
        "of the items that were not selected before, takes the one of the name; with none, the item of the name, which was "
        "missing before",
        kNewNull},
    HostVariant{"new-null-parent", "Whether AddNull parents the new null",
                "not documented; the command page tells of a name alone",
                "asks the null for its parent and places it relative to that", kNewNullParent},
    HostVariant{"new-bones", "Whether SkelegonsToBones selects the new bones",
                "the selection after the command is not documented", "selects each bone itself and restores the selection",
                kNewBones},
    HostVariant{"empty-selection", "What the list of selected items is with nothing selected",
                "documented to end with null; whether it may be null itself is not", "takes both for empty",
                kEmptySelection},
    HostVariant{"selection-array", "Whether a list of selected items follows later selections", "not documented",
                "copies the list at once, and asks anew after each selecting command", kSelectionArray},
    HostVariant{"selection-order", "The order of the list of selected items", "not documented",
                "converts in that order, and selects again from the last to the first", kSelectionOrder},
    HostVariant{"top-parent", "The parent of a topmost bone", "not documented: its object, or nothing",
                "tests the type of the parent", kTopParent},
    HostVariant{"null-file", "The file name of an object without a file", "not documented",
                "converts only what ends in .lwo", kFileOfNull},
    HostVariant{"no-weight-map", "The weight map name of a bone without one", "not documented", "treats both alike",
                kNoWeightMap},
    HostVariant{"layer-base", "What the query for the loaded layer calls the first layer",
                "neither meaning nor base of the query are documented; files count from 0",
                "takes 1 for the first layer too where the file has no other", kLayerBase},
    HostVariant{"counters", "How items of equal name are told apart", "seen in scenes, not documented",
                "drops a counter behind the layer's name, and asks a new null how it is called", kCounters},
    HostVariant{"item-numbers", "The low 32 bits of item identifiers", "only that they count in commands is documented",
                "sends them as they are, without a sign", kItemNumbers},
    HostVariant{"item-high-bits", "The high 32 bits of item identifiers", "pointers may lie anywhere",
                "sends none of them, and gives identifiers back whole", kHighBits},
    HostVariant{"item-order", "Whether parenting moves an item among the others", "not documented",
                "finds names wherever they stand", kOrderOfItems},
    HostVariant{"parent-in-place", "Whether ParentItem keeps the place in space",
                "a switch of the user, whose effect on the command is not documented",
                "places a null before it parents it: on, it stays there; off, it moves with its new parent", kParentInPlace},
    HostVariant{"child-origin", "What the position of a child counts from", "a pivot moves it or not; not documented",
                "takes the offset from where the item is", kChildOrigin},
    HostVariant{"pivot-rotation", "What RecordPivotRotation makes of two rotations",
                "documented as \"adds\": the orientation is kept, or the three angles are added",
                "only sends it, and sets the rotation to 0", kPivotRotation},
    HostVariant{"bone-order", "The order of the bones that SkelegonsToBones makes", "not documented",
                "goes by the file, and finds bones by name", kBoneOrder},
    HostVariant{"bones-of", "Whose skelegons become bones of the selected object",
                "layer handling is not documented; each layer is an item", "finds bones by name, whatever object has them",
                kBonesOf},
    HostVariant{"bone-colour", "Whether a bone takes the colour of its skelegon",
                "not documented; the tag is the host's own, so it is the host that reads it",
                "sends the stored colour, and nothing for the colour of Modeler", kBoneColour},
    HostVariant{"skelegons-after", "Whether skelegons stay after SkelegonsToBones", "not documented",
                "sends the command once for each object of a run", kSkelegonsAfter},
    HostVariant{"no-skelegons", "What SkelegonsToBones answers for an object without any", "not documented",
                "goes on either way", kNoSkelegons},
    HostVariant{"keys", "How many keys the channels of a new item have", "not documented",
                "changes a single key, else makes one at the current time", kKeys},
    HostVariant{"key-at-key", "What createKey does and answers where a key stands", "not documented",
                "takes null for no failure, and sets the value of the key that is there", kKeyAtKey},
    HostVariant{"key-tolerance", "How far apart two times are the same to findKey and createKey", "not documented",
                "asks for the very time that it set, and changes no key that stands at another", kKeyTolerance},
    HostVariant{"channels", "Where the motion channels of an item stand",
                "samples find Position.X in the item's group; paths of nested groups are not documented",
                "puts the path together from the groups on the way", kChannels},
    HostVariant{"decoy-channel", "Whether a group below holds a channel of a motion channel's name", "nothing forbids it",
                "compares whole paths", kDecoy},
    HostVariant{"envelopes", "Whether each motion channel has an envelope",
                "whether a channel may be without one is not documented", "reports it, leaves the channel and goes on",
                kEnvelopes},
    HostVariant{"switches", "What EnableIK, EnableMC and EnableDeformations make of 0 and 1",
                "documented as toggles without an argument; the module sends one",
                "sends 0 before and 1 behind a run, so that a toggle comes back to where it was", kSwitches},
    HostVariant{"accepted", "What the command interface answers when a command is accepted",
                "0 is documented for refused ones of a like function", "takes all but 0 for accepted", kAccepted},
    HostVariant{"status-answer", "What StatusMsg answers", "not documented", "reports it and goes on", kStatus},
    HostVariant{"interface-record", "Whether the interface service is a new record each time", "not documented",
                "asks anew and keeps nothing of the one before", kInterfaceRecord},
    HostVariant{"time-record", "Whether the time service is a new record each time",
                "documented to be asked for again; whether the old one changes is not", "asks anew for each time",
                kTimeRecord},
    HostVariant{"layout-texts", "How long returned texts live", "documented nowhere; the first is the strictest",
                "copies or compares each before its next call", kTextLife},
    HostVariant{"other-plugin", "What another plug-in does to the scene in answer to commands",
                "plug-ins of the host are told of changes and may make their own",
                "asks a kept item its name, looks a missing name up in the scene, and knows a new null by its name",
                kOtherPlugin},
};

}  // namespace

std::span<const HostVariant> layoutVariants() { return kLayoutVariants; }

}  // namespace standin
