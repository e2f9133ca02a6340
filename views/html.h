// A small writer of HTML: each text that goes through it is escaped, each element that is begun is closed.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace standin::views {

// A text as it stands between tags and in attributes: as in pictures, but line ends and tabs stay.
std::string escaped(std::string_view text);

// A path as it stands in a link: bytes that mean something there, or must not stand there, as %NN. Slashes stay.
std::string linkTo(std::string_view path);

class Html {
 public:
  struct Attribute {
    std::string_view name;
    std::string_view value;
  };
  using Attributes = std::initializer_list<Attribute>;

  // Closes its element at the end of the scope.
  class Open {
   public:
    Open(Html& html, std::string name) : html_(html), name_(std::move(name)) {}
    ~Open() { html_.text_ += "</" + name_ + ">\n"; }
    Open(const Open&) = delete;
    Open& operator=(const Open&) = delete;

   private:
    Html& html_;
    std::string name_;
  };

  // Begins an element.
  [[nodiscard]] Open in(const std::string& name, Attributes attributes = {});
  // A whole element with a text in it.
  void element(const std::string& name, std::string_view text, Attributes attributes = {});
  // One that has no end, such as <meta>.
  void lone(const std::string& name, Attributes attributes);
  void text(std::string_view text) { text_ += escaped(text); }
  // What is HTML already.
  void whole(std::string_view html) { text_ += html; }

  std::string take() { return std::move(text_); }

 private:
  void begin(const std::string& name, Attributes attributes);

  std::string text_;
};

}  // namespace standin::views
