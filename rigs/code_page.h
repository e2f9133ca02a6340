// The narrow encoding in which Layout takes commands and in which the module opens files. One source file per system.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace standin::rigs {

// Of Windows, by number: 932 is the Japanese one, 1252 the Western one, 65001 UTF-8.
inline constexpr int kUtf8CodePage = 65001;

class CodePage {
 public:
  // The system's own where it has one, else the Japanese one: that is where this kind of rig comes from.
  static int usual();

  // isKnown() tells whether this system has tables of it.
  explicit CodePage(int number);
  ~CodePage();
  CodePage(CodePage&&) noexcept;
  CodePage& operator=(CodePage&&) noexcept;

  int number() const { return number_; }
  bool isKnown() const;
  // Whether the code page has every character of the UTF-8 text. False for a text that is no UTF-8.
  bool holds(std::string_view utf8) const;
  // The text of that code page as UTF-8; nothing when it is none.
  std::optional<std::string> decoded(std::string_view text) const;

 private:
  struct Tables;
  int number_;
  std::unique_ptr<Tables> tables_;
};

}  // namespace standin::rigs
