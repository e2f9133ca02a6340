// A value, or a sentence that says why there is none.
#pragma once

#include <string>
#include <system_error>
#include <utility>
#include <variant>

namespace standin {

struct Failure {
  std::string text;
};

// What the system says of an error.
inline std::string wordsOf(std::errc error) { return std::make_error_code(error).message(); }

template <class T>
class [[nodiscard]] Outcome {
 public:
  Outcome(T value) : content_(std::in_place_index<0>, std::move(value)) {}    // NOLINT(google-explicit-constructor)
  Outcome(Failure why) : content_(std::in_place_index<1>, std::move(why)) {}  // NOLINT(google-explicit-constructor)

  explicit operator bool() const { return content_.index() == 0; }

  // Only when there is a value.
  T& operator*() { return std::get<0>(content_); }
  const T& operator*() const { return std::get<0>(content_); }
  T* operator->() { return &std::get<0>(content_); }
  const T* operator->() const { return &std::get<0>(content_); }

  // The sentence; empty when there is a value.
  std::string why() const { return content_.index() == 1 ? std::get<1>(content_).text : std::string(); }

 private:
  std::variant<T, Failure> content_;
};

}  // namespace standin
