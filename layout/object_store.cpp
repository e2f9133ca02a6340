#include "layout/object_store.h"

#include <cstring>
#include <numeric>

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

SkelegonStore::SkelegonStore(std::size_t skelegons) : m_ends(skelegons + 2) { m_ends[0] = m_ends[1] = 0; }

void SkelegonStore::layOut() {
  std::uint32_t* ends = m_ends.data();
  std::partial_sum(ends, ends + m_ends.size(), ends);
  m_words = Block<std::byte>(std::size_t{m_ends[m_ends.size() - 1]} * kBytesOfWord);
}

std::uint32_t* SkelegonStore::placeSkelegon(std::size_t skelegon, std::uint32_t points) {
  // The entry behind is still as it was laid out, for skelegons come in ascending order.
  const std::uint32_t begin = m_ends[skelegon + 1];
  const std::uint32_t end = m_ends[skelegon + 2];
  m_ends[skelegon + 1] = begin + points;
  if (end - begin > points) {
    m_ends[skelegon + 1] |= kHasTags;
    tagAt(end - kWordsOfTag)->pointsOfSkelegon = static_cast<std::uint16_t>(points);
  }
  return reinterpret_cast<std::uint32_t*>(m_words.data() + std::size_t{begin} * kBytesOfWord);
}

SkelegonRecord SkelegonStore::operator[](std::size_t at) const {
  const std::uint32_t begin = m_ends[at] & ~kHasTags;
  const std::uint32_t end = m_ends[at + 1] & ~kHasTags;
  const bool hasTags = (m_ends[at + 1] & kHasTags) != 0;
  const std::uint32_t points = hasTags ? tagAt(end - kWordsOfTag)->pointsOfSkelegon : end - begin;
  const auto* first = reinterpret_cast<const std::uint32_t*>(m_words.data() + std::size_t{begin} * kBytesOfWord);
  return {{first, points}, {tagAt(begin + points), (end - begin - points) / kWordsOfTag}};
}

}  // namespace lwp::st
