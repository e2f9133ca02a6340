#include "views/html.h"

#include <algorithm>

#include "rigs/text.h"
#include "views/svg.h"

namespace standin::views {
namespace {

bool isPlainInLinks(char c) {
  const bool isWord = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
  return isWord || std::string_view("-._~/").find(c) != std::string_view::npos;
}

}  // namespace

std::string escaped(std::string_view text) {
  std::string result;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of("\n\t"), text.size());
    result += xmlText(text.substr(0, end));
    if (end < text.size()) result += text[end];
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return result;
}

std::string linkTo(std::string_view path) {
  std::string link;
  for (const char c : path) {
    if (isPlainInLinks(c)) {
      link += c;
    } else {
      link += '%' + rigs::hexOf({&c, 1});
    }
  }
  return link;
}

void Html::begin(const std::string& name, Attributes attributes) {
  text_ += '<' + name;
  for (const Attribute& attribute : attributes) {
    text_.append(1, ' ').append(attribute.name).append("=\"").append(escaped(attribute.value)).append(1, '"');
  }
  text_ += '>';
}

Html::Open Html::in(const std::string& name, Attributes attributes) {
  begin(name, attributes);
  return {*this, name};
}

void Html::element(const std::string& name, std::string_view text, Attributes attributes) {
  begin(name, attributes);
  text_ += escaped(text) + "</" + name + '>';
}

void Html::lone(const std::string& name, Attributes attributes) { begin(name, attributes); }

}  // namespace standin::views
