#include "layout/object_store.h"

#include <cstring>

namespace lwp::st {

namespace {

// Bytes that a text takes in the file: with its zero, made even.
std::size_t storedLength(std::size_t length) { return length + 1 + (length + 1) % 2; }

}  // namespace

TagTexts::TagTexts(std::size_t count, std::size_t bytes) : m_texts(bytes), m_groupStarts((count + kGroup - 1) / kGroup) {}

void TagTexts::append(std::span<const std::byte> body) {
  if (body.empty()) return;
  std::memcpy(m_texts.data() + m_length, body.data(), body.size());
  const std::size_t end = m_length + body.size();
  while (m_length < end) {
    if (m_count % kGroup == 0) m_groupStarts[m_count / kGroup] = static_cast<std::uint32_t>(m_length);
    m_length += storedLength(std::strlen(m_texts.data() + m_length));
    ++m_count;
  }
}

std::string_view TagTexts::operator[](std::size_t at) const {
  const char* text = m_texts.data() + m_groupStarts[at / kGroup];
  for (std::size_t before = at % kGroup; before > 0; --before) text += storedLength(std::strlen(text));
  return text;
}

}  // namespace lwp::st
