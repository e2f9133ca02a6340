#include "reader/object_store.h"

#include <cstring>

namespace lwp::st {

namespace {

// Bytes that a text takes in the file: with its zero, made even.
std::size_t storedLength(std::size_t length) { return length + 1 + (length + 1) % 2; }

}  // namespace

TagTexts::TagTexts(std::size_t count, std::size_t bytes) : texts_(bytes), groupStarts_((count + kGroup - 1) / kGroup) {}

void TagTexts::append(std::span<const std::byte> body) {
  if (body.empty()) return;
  std::memcpy(texts_.data() + length_, body.data(), body.size());
  const std::size_t end = length_ + body.size();
  while (length_ < end) {
    if (count_ % kGroup == 0) groupStarts_[count_ / kGroup] = static_cast<std::uint32_t>(length_);
    length_ += storedLength(std::strlen(texts_.data() + length_));
    ++count_;
  }
}

std::string_view TagTexts::operator[](std::size_t at) const {
  const char* text = texts_.data() + groupStarts_[at / kGroup];
  for (std::size_t before = at % kGroup; before > 0; --before) text += storedLength(std::strlen(text));
  return text;
}

}  // namespace lwp::st
