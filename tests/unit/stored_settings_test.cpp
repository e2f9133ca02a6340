// The document of the stored settings says what the tables say, and the objects made for other readers read as it says.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <span>

#include "modeler/property/property_controls.h"
#include "reader/object_reader.h"
#include "reader/stored_properties.h"
#include "skelegon/slot_table.h"
#include "skelegon/slots.h"
#include "tests/unit/documents.h"
#include "texts/texts.h"

namespace varnel::test {
namespace {

using nlohmann::json;

const std::string& document() {
  static const std::string text = textOf(repository() / "docs" / "stored-settings.md");
  return text;
}

struct KindName {
  skg::SlotKind kind;
  const char* name;
};
constexpr KindName kKinds[] = {
    {skg::SlotKind::Reserved, "reserved"},
    {skg::SlotKind::Flag, "flag"},
    {skg::SlotKind::Choice, "choice"},
    {skg::SlotKind::Integer, "integer"},
    {skg::SlotKind::Percent, "percent"},
    {skg::SlotKind::Distance, "distance"},
    {skg::SlotKind::Number, "number"},
    {skg::SlotKind::Angle, "angle"},
    {skg::SlotKind::ItemName, "item name"},
    {skg::SlotKind::ObjectName, "object name"},
    {skg::SlotKind::WeightMapName, "weight map name"},
    {skg::SlotKind::Text, "text"},
    {skg::SlotKind::Colour, "colour"},
};

std::string nameOf(skg::SlotKind kind) {
  const auto* found =
      std::find_if(std::begin(kKinds), std::end(kKinds), [kind](const KindName& k) { return k.kind == kind; });
  return found == std::end(kKinds) ? "?" : found->name;
}

std::string rowOf(const skg::SlotRow& row) {
  std::array<char, 16> type;
  std::snprintf(type.data(), type.size(), "%08X", skg::SlotTagId(row.slot));
  const std::string defaultText = *row.defaultText == '\0' ? "(empty)" : "`" + std::string(row.defaultText) + "`";
  return "| " + std::to_string(skg::indexOf(row.slot)) + " | `" + type.data() + "` | " + row.setting + " | " +
         nameOf(row.kind) + " | " + defaultText + " | ";
}

TEST(StoredSettings, AreDocumentedAsTheTableHasThem) {
  for (const skg::SlotRow& row : skg::kSlotTable) {
    EXPECT_TRUE(contains(document(), "\n" + rowOf(row))) << "the document lacks: " << rowOf(row);
  }
}

TEST(StoredSettings, LinkEachChoiceToItsList) {
  for (const mst::PropertyRow& control : mst::controlTable()) {
    if (!control.slot || !control.choices) continue;
    const std::string row = rowOf(skg::kSlotTable[skg::indexOf(*control.slot)]);
    const std::size_t link = document().find("](#", document().find(row) + row.size());
    const std::size_t end = document().find('\n', document().find(row));
    EXPECT_LT(link, end) << row;
  }
}

TEST(StoredSettings, ListEveryChoiceUnderItsNumber) {
  for (const texts::ChoiceListRow& list : texts::propertyChoices()) {
    const bool isStored = list.list != texts::ChoiceList::Pages && list.list != texts::ChoiceList::MotionGroups &&
                          list.list != texts::ChoiceList::Colour;
    if (!isStored) continue;
    std::string rows;
    for (int i = 0; list.english[i] != nullptr; ++i) rows += "| `" + std::to_string(i) + "` | " + list.english[i] + " |\n";
    EXPECT_TRUE(contains(document(), rows)) << "the document lacks:\n" << rows;
  }
}

TEST(StoredSettings, ListEveryColourWordUnderItsNumber) {
  for (std::size_t i = 0; i < skg::BoneColourNames.size(); ++i) {
    const std::string row = "\n| " + std::to_string(i) + " | `" + std::string(skg::BoneColourNames[i]) + "` | ";
    EXPECT_TRUE(contains(document(), row)) << "the document lacks:" << row;
  }
}

TEST(StoredSettings, NameTheSettingsThatHoldNames) {
  std::string numbers;
  for (const skg::Slot slot : skg::kNameBearingSlots) {
    const bool isLast = slot == skg::kNameBearingSlots.back();
    numbers += (numbers.empty() ? "" : isLast ? " and " : ", ") + std::to_string(skg::indexOf(slot));
  }
  EXPECT_TRUE(contains(document(), "Settings " + numbers + " hold")) << numbers;
}

// ---------------------------------------------------------------------------------------------------------------------
// The objects

class StoredObject : public testing::TestWithParam<std::string> {
 protected:
  fs::path file(const char* extension) const { return repository() / "tests" / "data" / (GetParam() + extension); }
};

json readingOf(const skg::SkelegonProperties& properties, const json& expected) {
  json reading{{"texts", json::object()}};
  for (const skg::SlotRow& row : skg::kSlotTable) {
    const std::string& text = properties[row.slot];
    if (text != row.defaultText) reading["texts"][std::to_string(skg::indexOf(row.slot))] = text;
  }
  const auto slotOf = [](const std::string& number) { return static_cast<skg::Slot>(std::stoul(number)); };
  if (expected.contains("colour")) reading["colour"] = skg::colourIndex(properties[skg::Slot::Colour]);
  const json integers = expected.value("integers", json::object());
  for (const auto& [number, value] : integers.items()) reading["integers"][number] = properties.integer(slotOf(number));
  const json reals = expected.value("reals", json::object());
  for (const auto& [number, value] : reals.items()) reading["reals"][number] = properties.real(slotOf(number));
  return reading;
}

// A default may be written down in full; it is left out of what is compared. The colour's default never is: nothing puts it
// in.
json withoutDefaults(json expected) {
  json texts = json::object();
  for (const auto& [number, text] : expected["texts"].items()) {
    if (text != skg::kSlotTable[std::stoul(number)].defaultText) texts[number] = text;
  }
  expected["texts"] = texts;
  return expected;
}

TEST_P(StoredObject, ReadsAsItsDescriptionSays) {
  const json expected = json::parse(textOf(file(".json")));
  const std::string bytes = textOf(file(".lwo"));
  lwp::st::ObjectFileData data;
  const bool isSound = lwp::st::ParseObjectFile(data, std::as_bytes(std::span(bytes)), GetParam());

  ASSERT_EQ(isSound, !expected.value("refused", false));
  if (!isSound) return;
  ASSERT_EQ(data.layerCount(), expected["layers"].size());
  for (std::size_t l = 0; l < data.layerCount(); ++l) {
    const json& layer = expected["layers"][l];
    EXPECT_EQ(data.layer(l).number(), layer["number"].get<unsigned>());
    EXPECT_EQ(data.layer(l).name(), layer["name"].get<std::string>());
    ASSERT_EQ(data.layer(l).skelegonCount(), layer["skelegons"].size());
    for (std::size_t k = 0; k < data.layer(l).skelegonCount(); ++k) {
      const json& skelegon = layer["skelegons"][k];
      EXPECT_EQ(readingOf(lwp::storedProperties(data, data.layer(l).skelegons()[k]), skelegon), withoutDefaults(skelegon))
          << "skelegon " << k;
    }
  }
}

std::vector<std::string> objects() {
  std::vector<std::string> names;
  for (const std::string& file : filesIn(repository() / "tests" / "data", ".lwo")) {
    if (file.starts_with("stored-")) names.push_back(file.substr(0, file.size() - 4));
  }
  return names;
}
INSTANTIATE_TEST_SUITE_P(All, StoredObject, testing::ValuesIn(objects()), [](const auto& instance) {
  std::string name = instance.param;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
});

TEST(StoredObjects, AreAllDescribed) {
  EXPECT_EQ(objects().size(), 9u);
  for (const std::string& name : objects()) EXPECT_TRUE(contains(document(), "`" + name + ".lwo`")) << name;
}

}  // namespace
}  // namespace varnel::test
