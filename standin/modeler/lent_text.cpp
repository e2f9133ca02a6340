#include "standin/modeler/lent_text.h"

#include <algorithm>
#include <utility>

namespace standin {

const char* LentText::lend(std::string_view text) {
  if (storage_.capacity() < text.size()) {
    std::string larger;
    larger.reserve(std::max(text.size(), storage_.capacity() * 2));
    std::swap(storage_, larger);
    retired_.push_back(std::move(larger));
  }
  storage_.assign(text);
  isLent_ = true;
  return storage_.c_str();
}

void LentText::expire() {
  if (!isLent_) return;
  std::fill(storage_.begin(), storage_.end(), '~');
  isLent_ = false;
}

const lw::PointId* LentPoints::lend(const std::vector<lw::PointId>& points) {
  if (storage_.capacity() < points.size()) {
    std::vector<lw::PointId> larger;
    larger.reserve(std::max(points.size(), storage_.capacity() * 2));
    std::swap(storage_, larger);
    retired_.push_back(std::move(larger));
  }
  storage_.assign(points.begin(), points.end());
  return storage_.data();
}

void LentPoints::expire() { std::fill(storage_.begin(), storage_.end(), nullptr); }

}  // namespace standin
