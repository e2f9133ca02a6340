#include "standin/validate/hostile.h"

#include <array>
#include <vector>

#include "objectfile/rig_builder.h"

namespace standin::validate {
namespace {

constexpr std::size_t kLong = 65536;
constexpr int kSettings = 187;

std::string repeated(std::string_view part, std::size_t length) {
  std::string text;
  text.reserve(length + part.size());
  while (text.size() < length) text += part;
  return text;
}

std::string controlCharacters() {
  std::string text;
  for (char c = 1; c < 32; ++c) text += c;
  return text + '\x7F';
}

std::vector<HostileText> makeTexts() {
  return {
      {"64 KB", repeated("x", kLong - 1)},
      {"64 KB of kana", repeated("あ", kLong - 3)},
      {"64 KB of percent signs", repeated("%s", kLong - 2)},
      {"64 KB of brackets", repeated("(", kLong - 1)},
      {"64 KB of stars", repeated("(.*)*", kLong - 5)},
      {"64 KB of counters", repeated("[col][row]", kLong - 10)},
      {"511 bytes", repeated("y", 511)},
      {"512 bytes", repeated("y", 512)},
      {"percent signs", "%s%n%d%f%%%100000d%*.*s"},
      {"control characters", controlCharacters()},
      {"bytes that are no UTF-8", "\xFF\xFE\x80\xBF"},
      {"cut UTF-8", "a\xE3\x81"},
      {"overlong UTF-8", "\xC0\x80\xE0\x80\x80"},
      {"a surrogate in UTF-8", "\xED\xA0\x80"},
      {"beyond Unicode", "\xF7\xBF\xBF\xBF"},
      {"second bytes that are a backslash", "ソ表能"},
      {"blanks", "   "},
      {"an icon's escape", "\x03(1"},
      {"quotes and braces", "\"{0.5}\"'`$(x)"},
      {"slashes and colons", "../..\\..:a:b (2)"},
  };
}

std::vector<HostileText> makeNumbers() {
  return {
      {"no number", "abc"},
      {"not a number", "nan"},
      {"infinite", "inf"},
      {"too great", "1e400"},
      {"too small", "1e-400"},
      {"beyond 32 bits", "4294967296"},
      {"beyond 64 bits", "99999999999999999999999"},
      {"negative", "-1"},
      {"greatest", "2147483647"},
      {"least", "-2147483648"},
      {"hexadecimal", "0x10"},
      {"a comma", "1,5"},
      {"signs", "+-+1"},
      {"trailing", "1abc"},
      {"leading blanks", "   42"},
      {"a point", "."},
      {"an exponent", "1e"},
      {"many digits", repeated("9", 400)},
      {"empty", ""},
      {"[file] without a layer", "[file]:"},
  };
}

using Skelegon = RigBuilder::Skelegon;

std::string numbered(const std::string& text, int number) {
  return number == 0 ? text : text + '_' + std::to_string(number);
}

// --- trees ----------------------------------------------------------------------------------------------------------------

// Skelegons between numbered points on a circle, in one layer.
ObjectFile between(std::size_t points, const std::vector<std::array<std::uint32_t, 2>>& pairs) {
  RigBuilder rig;
  rig.layer(0, "Loop");
  for (std::size_t i = 0; i < points; ++i) rig.point({static_cast<float>(i), static_cast<float>(i * i % 7), 0});
  int number = 0;
  for (const auto& pair : pairs) rig.between(pair[0], pair[1], "Bone_" + std::to_string(number++));
  return rig.take();
}

ObjectFile longChain() {
  RigBuilder rig;
  rig.layer(0, "Chain");
  constexpr std::uint32_t kLength = 3000;
  for (std::uint32_t i = 0; i <= kLength; ++i) rig.point({0, static_cast<float>(i), 0});
  for (std::uint32_t i = 0; i < kLength; ++i) rig.between(i, i + 1, "Link_" + std::to_string(i));
  return rig.take();
}

ObjectFile star() {
  std::vector<std::array<std::uint32_t, 2>> pairs{{0, 1}};
  for (std::uint32_t i = 2; i < 400; ++i) pairs.push_back({1, i});
  return between(400, pairs);
}

ObjectFile nameless() {
  RigBuilder rig;
  rig.layer(0, "");
  for (std::uint32_t i = 0; i < 4; ++i) rig.point({static_cast<float>(i), 0, 0});
  rig.between(0, 1, std::nullopt);
  rig.between(1, 2, "");
  rig.between(2, 3, std::nullopt);
  return rig.take();
}

ObjectFile oneName() {
  RigBuilder rig;
  rig.layer(0, "Same");
  for (std::uint32_t i = 0; i < 50; ++i) rig.point({static_cast<float>(i), 0, 0});
  for (std::uint32_t i = 0; i + 1 < 50; ++i) rig.between(i, i + 1, "Same");
  return rig.take();
}

// 65,535 different texts, the most that a file can number.
ObjectFile manyTags() {
  RigBuilder rig;
  rig.layer(0, "Tags");
  constexpr int kTexts = 65535;
  std::uint32_t end = rig.point({0, 0, 0});
  for (int texts = 0; texts < kTexts;) {
    const std::uint32_t head = end;
    end = rig.point({0, static_cast<float>(head) + 1, 0});
    const Skelegon skelegon = rig.between(head, end, "Bone_" + std::to_string(texts++));
    for (int setting = 0; setting < kSettings && texts < kTexts; ++setting, ++texts) {
      rig.tag(skelegon, settingTag(static_cast<std::uint8_t>(setting)), std::to_string(texts) + ".000001");
    }
  }
  return rig.take();
}

ObjectFile manyLayers() {
  RigBuilder rig;
  constexpr std::uint16_t kLayers = 10000;
  for (std::uint16_t i = 0; i < kLayers; ++i) {
    rig.layer(i, "Layer_" + std::to_string(i));
    if (i % 100 == 0) rig.root("Bone_" + std::to_string(i), {0, 0, 0}, {0, 1, 0});
  }
  return rig.take();
}

constexpr std::array kTrees{
    HostileTree{"a loop of three",
                [] {
                  return between(3, {{0, 1}, {1, 2}, {2, 0}});
                }},
    HostileTree{"a loop of two",
                [] {
                  return between(2, {{0, 1}, {1, 0}});
                }},
    HostileTree{"a skelegon on one point",
                [] {
                  return between(2, {{0, 0}, {0, 1}});
                }},
    HostileTree{"a loop with a way in and out",
                [] {
                  return between(5, {{3, 0}, {0, 1}, {1, 2}, {2, 0}, {2, 4}});
                }},
    HostileTree{"shared tails",
                [] {
                  return between(4, {{0, 2}, {1, 2}, {2, 3}});
                }},
    HostileTree{"a diamond",
                [] {
                  return between(4, {{0, 1}, {0, 2}, {1, 3}, {2, 3}, {3, 0}});
                }},
    HostileTree{"the same twice",
                [] {
                  return between(3, {{0, 1}, {0, 1}, {1, 2}, {1, 2}});
                }},
    HostileTree{"a star", star},
    HostileTree{"a chain of 3,000", longChain},
    HostileTree{"skelegons without names", nameless},
    HostileTree{"skelegons of one name", oneName},
    HostileTree{"65,535 tags", manyTags},
    HostileTree{"10,000 layers", manyLayers},
    HostileTree{"an empty object", [] { return ObjectFile{}; }},
};

}  // namespace

std::span<const HostileText> hostileTexts() {
  static const std::vector<HostileText> texts = makeTexts();
  return texts;
}

std::span<const HostileText> hostileNumbers() {
  static const std::vector<HostileText> numbers = makeNumbers();
  return numbers;
}

std::span<const HostileTree> hostileTrees() { return kTrees; }

ObjectFile rigWithNames(const std::string& text) {
  constexpr std::array<std::uint8_t, 8> kLinked{51, 52, 53, 55, 73, 92, 110, 142};
  RigBuilder rig;
  rig.layer(0, text);
  rig.face({rig.point({0, 0, 0}), rig.point({1, 0, 0}), rig.point({0, 1, 0})}, numbered(text, 9));
  rig.weightMap(text, {{0, 1.0F}});
  rig.weightMap(numbered(text, 1), {{1, 1.0F}});
  const Skelegon root = rig.root(text, {0, 0, 0}, {0, 1, 0});
  const Skelegon child = rig.child(root, numbered(text, 1), {0, 2, 0});
  rig.child(child, text, {0, 3, 0});
  rig.tag(child, lw::kTagBoneWeight, text);
  for (const std::uint8_t setting : kLinked) rig.tag(child, settingTag(setting), numbered(text, setting));
  rig.layer(1, numbered(text, 2));
  rig.root(numbered(text, 3), {0, 0, 1}, {0, 1, 1});
  return rig.take();
}

ObjectFile rigWithSettings(const std::string& text) {
  RigBuilder rig;
  rig.layer(0, "Set");
  const Skelegon root = rig.root("Root", {0, 0, 0}, {0, 1, 0});
  const Skelegon child = rig.child(root, "Child", {0, 2, 0});
  for (int setting = 0; setting < 256; ++setting) rig.tag(child, settingTag(static_cast<std::uint8_t>(setting)), text);
  rig.tag(child, lw::kTagBoneWeight, text);
  rig.tag(child, lw::kTagColour, text);
  return rig.take();
}

}  // namespace standin::validate
