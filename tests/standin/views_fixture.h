// Pictures as a reader of XML takes them: elements, attributes, the numbers in them.
#pragma once

#include <gmock/gmock.h>

#include <cstdint>
#include <cstdlib>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "objectfile/rig_builder.h"
#include "texts/utf8.h"
#include "views/picture.h"

namespace standin::views {

struct Element {
  std::string name;
  std::map<std::string, std::string> attributes;
  std::string text;  // its own
  std::vector<std::size_t> children;

  std::string attribute(const std::string& key) const {
    const auto found = attributes.find(key);
    return found == attributes.end() ? "" : found->second;
  }
};

// Reads all that pictures may be made of, and nothing more: a wrong end, a bare '<' or '&' or a character that XML does not
// have leaves a sentence in `trouble`.
class XmlReader {
 public:
  explicit XmlReader(std::string_view text) : rest_(text) {
    checkCharacters(text);
    if (rest_.starts_with("<?xml ")) rest_.remove_prefix(rest_.find("?>") + 2);
    while (!rest_.empty() && trouble.empty()) {
      if (rest_.front() == '<') {
        tag();
      } else {
        const std::string_view words = take(rest_.find('<'));
        if (!open_.empty()) {
          elements[open_.back()].text += unescaped(words);
        } else if (words.find_first_not_of(" \n") != std::string_view::npos) {
          trouble = "text outside";
        }
      }
    }
    if (trouble.empty() && (!open_.empty() || elements.empty())) trouble = "it does not end";
  }

  std::string trouble;
  std::vector<Element> elements;

 private:
  std::string_view take(std::size_t count) {
    const std::string_view part = rest_.substr(0, count);
    rest_.remove_prefix(part.size());
    return part;
  }

  void tag() {
    const std::size_t end = rest_.find('>');
    if (end == std::string_view::npos) {
      trouble = "a tag does not end";
      return;
    }
    std::string_view inside = take(end + 1);
    inside = inside.substr(1, inside.size() - 2);
    if (inside.starts_with('/')) {
      if (open_.empty() || elements[open_.back()].name != inside.substr(1)) trouble = "a wrong end: " + std::string(inside);
      if (!open_.empty()) open_.pop_back();
      return;
    }
    const bool isEmpty = inside.ends_with('/');
    if (isEmpty) inside.remove_suffix(1);
    Element element;
    element.name = inside.substr(0, inside.find(' '));
    if (!open_.empty()) elements[open_.back()].children.push_back(elements.size());
    inside.remove_prefix(element.name.size());
    while (!inside.empty() && trouble.empty()) attribute(element, inside);
    if (open_.empty() && !elements.empty()) trouble = "a second root";
    if (!isEmpty) open_.push_back(elements.size());
    elements.push_back(std::move(element));
  }

  void attribute(Element& element, std::string_view& inside) {
    const std::size_t equals = inside.find("=\"");
    const std::size_t end = equals == std::string_view::npos ? equals : inside.find('"', equals + 2);
    if (inside.front() != ' ' || end == std::string_view::npos) {
      trouble = "a wrong attribute: " + std::string(inside);
      return;
    }
    const std::string name(inside.substr(1, equals - 1));
    const bool isNew = element.attributes.emplace(name, unescaped(inside.substr(equals + 2, end - equals - 2))).second;
    if (!isNew) trouble = "twice: " + name;
    inside.remove_prefix(end + 1);
  }

  std::string unescaped(std::string_view text) {
    static const std::map<std::string, char> entities = {
        {"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"#39", '\''}};
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (text[i] == '<') trouble = "a bare <";
      if (text[i] != '&') {
        out += text[i];
        continue;
      }
      const std::size_t end = std::min(text.find(';', i), text.size());
      const auto entity = entities.find(std::string(text.substr(i + 1, end - i - 1)));
      if (entity == entities.end()) {
        trouble = "a bare &";
        return out;
      }
      out += entity->second;
      i = end;
    }
    return out;
  }

  void checkCharacters(std::string_view text) {
    while (!text.empty()) {
      const char32_t c = texts::takeCharacter(text);
      const bool isXml = c == '\n' || (c >= 0x20 && c != 0xFFFE && c != 0xFFFF && c != texts::kNoCharacter);
      if (!isXml) trouble = "no character of XML: " + std::to_string(static_cast<std::uint32_t>(c));
    }
  }

  std::string_view rest_;
  std::vector<std::size_t> open_;
};

inline std::vector<double> numbersOf(const std::string& text) {
  std::istringstream stream(text);
  stream.imbue(std::locale::classic());
  std::vector<double> numbers;
  for (std::string word; stream >> word;) numbers.push_back(std::strtod(word.c_str(), nullptr));
  return numbers;
}

// The points of a path of lines, as it is drawn.
inline std::vector<OnPage> pointsOf(const std::string& data) {
  std::vector<OnPage> points;
  OnPage at;
  OnPage start;
  bool isStart = false;
  std::string numbers;
  const auto flush = [&] {
    const std::vector<double> steps = numbersOf(numbers);
    for (std::size_t i = 0; i + 1 < steps.size(); i += 2) {
      at = {at.x + steps[i], at.y + steps[i + 1]};
      points.push_back(at);
      if (isStart) start = at;
      isStart = false;
    }
    numbers.clear();
  };
  for (const char c : data) {
    if (std::string_view("Mmlz").find(c) != std::string_view::npos) {
      flush();
      isStart = isStart || c == 'M' || c == 'm';
      if (c == 'z') at = start;
    } else {
      numbers += c == '-' ? std::string(" -") : std::string(1, c);
    }
  }
  flush();
  return points;
}

struct DrawnBone {
  std::string title;
  std::vector<double> head;
  std::vector<double> tail;
  std::string fill;
  std::vector<OnPage> outline;
};

// What a picture shows.
class Shown {
 public:
  explicit Shown(const std::string& svg) : xml(svg) { EXPECT_EQ(xml.trouble, ""); }
  Shown(const PosedRig& rig, const PictureOptions& options) : Shown(pictureSvg(rig, options)) {}

  // Of the first view.
  std::vector<DrawnBone> bones() const {
    std::vector<DrawnBone> bones;
    for (std::size_t i = 0; i < xml.elements.size(); ++i) {
      const Element& element = xml.elements[i];
      if (element.attributes.count("data-head") == 0) continue;
      DrawnBone bone;
      bone.head = numbersOf(element.attribute("data-head"));
      bone.tail = numbersOf(element.attribute("data-tail"));
      bone.title = childrenOf(i, "title").at(0).text;
      bone.fill = childrenOf(i, "path").at(0).attribute("fill");
      bone.outline = pointsOf(childrenOf(i, "path").at(0).attribute("d"));
      bones.push_back(bone);
    }
    return bones;
  }

  DrawnBone bone(const std::string& title) const {
    for (const DrawnBone& bone : bones()) {
      if (bone.title == title) return bone;
    }
    ADD_FAILURE() << "no bone is titled " << title;
    return {};
  }

  std::vector<Element> childrenOf(std::size_t parent, const std::string& name) const {
    std::vector<Element> children;
    for (const std::size_t child : xml.elements[parent].children) {
      if (xml.elements[child].name == name) children.push_back(xml.elements[child]);
    }
    return children;
  }

  std::vector<std::string> textsOf(const std::string& name) const {
    std::vector<std::string> texts;
    for (const Element& element : xml.elements) {
      if (element.name == name) texts.push_back(element.text);
    }
    return texts;
  }

  std::vector<Element> with(const std::string& attribute) const {
    std::vector<Element> found;
    for (const Element& element : xml.elements) {
      if (element.attributes.count(attribute) != 0) found.push_back(element);
    }
    return found;
  }

  XmlReader xml;
};

inline PosedRig before(const ObjectFile& object) { return posedBefore(object, rigs::rigOf(object, "rig.lwo")); }

}  // namespace standin::views
