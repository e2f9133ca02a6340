#include "standin/layout/host_text.h"

#include <algorithm>

namespace standin {

const char* HostTexts::give(std::string_view text) {
  if (life_ == TextLife::Session) return ofSession_.emplace(text).first->c_str();
  if (life_ == TextLife::OnePlace) return onePlace_.assign(text).c_str();
  std::fill(texts_[current_].begin(), texts_[current_].end(), 'X');
  current_ = (current_ + 1) % texts_.size();
  texts_[current_] = text;
  return texts_[current_].c_str();
}

}  // namespace standin
