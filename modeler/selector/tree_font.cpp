#include "modeler/selector/tree_font.h"

#include <array>
#include <cstddef>

namespace mst {
namespace {

constexpr char32_t kFirstNonAscii = 0x80;
constexpr char32_t kGreatestWide = 0xFFFF;  // of a single UTF-16 unit
constexpr int kMostErrors = 16;             // there are fewer kinds, and each is told once
constexpr unsigned kQuestionList = kFirstList + '?';

// Lists keep a character's pixels as they are unpacked when the list is made; the system unpacks them by these values.
struct Unpacking {
  unsigned what;
  int value;
};
constexpr std::array kUnpacking = {
    Unpacking{gl::kUnpackSwapBytes, 0}, Unpacking{gl::kUnpackLeastBitFirst, 0}, Unpacking{gl::kUnpackRowLength, 0},
    Unpacking{gl::kUnpackSkipRows, 0},  Unpacking{gl::kUnpackSkipPixels, 0},    Unpacking{gl::kUnpackAlignment, 4},
};

// While lists are made.
class CListMaking {
 public:
  explicit CListMaking(const GlCalls& gl) : gl_(gl) {
    for (std::size_t i = 0; i < kUnpacking.size(); ++i) {
      gl_.getIntegers(kUnpacking[i].what, &before_[i]);
      gl_.pixelStore(kUnpacking[i].what, kUnpacking[i].value);
    }
  }
  ~CListMaking() {
    // OpenGL can call the list of an empty character an error, though it is made as it should be.
    for (int i = 0; i < kMostErrors && gl_.getError() != 0; ++i) {
    }
    for (std::size_t i = 0; i < kUnpacking.size(); ++i) gl_.pixelStore(kUnpacking[i].what, before_[i]);
  }
  CListMaking(const CListMaking&) = delete;
  CListMaking& operator=(const CListMaking&) = delete;

 private:
  const GlCalls& gl_;
  std::array<int, kUnpacking.size()> before_{};
};

}  // namespace

CTreeFont::CUse::~CUse() {
  if (selected_ && selected_->font != nullptr) gl_.giveFontBack(device_, *selected_);
}

bool CTreeFont::CUse::select() {
  if (!selected_) selected_ = gl_.selectFont(device_);
  return selected_->font != nullptr;
}

bool CTreeFont::prepare(CUse& use) {
  const GlCalls& gl = use.gl();
  // A new window can get the handle of a closed one's device context. Then the lists went with the old window.
  if (use.device() == madeFor_ && gl.isList(kFirstList) != 0) {
    if (gl.currentContext() != madeIn_)
      ownLists_.clear();  // another context of the device: these numbers are not ours there
    madeIn_ = gl.currentContext();
    return true;
  }

  forget(gl);
  madeFor_ = madeIn_ = nullptr;
  const CListMaking making(gl);
  if (!use.select() || !gl.makeByteLists(use.device(), 0, kByteLists, kFirstList)) return false;
  madeFor_ = use.device();
  madeIn_ = gl.currentContext();
  return true;
}

unsigned CTreeFont::listOf(char32_t character, CUse& use) {
  if (character < kFirstNonAscii) return kFirstList + character;
  if (character > kGreatestWide) return kQuestionList;
  if (const auto known = ownLists_.find(character); known != ownLists_.end()) return known->second;

  if (ownLists_.size() == kMostOwnLists) forget(use.gl());
  unsigned& list = ownLists_[character];
  list = kQuestionList;
  list = madeList(static_cast<char16_t>(character), use);
  return list;
}

unsigned CTreeFont::madeList(char16_t character, CUse& use) const {
  const GlCalls& gl = use.gl();
  const CListMaking making(gl);
  if (!use.select()) return kQuestionList;
  const unsigned list = gl.genLists(1);
  if (list == 0) return kQuestionList;
  if (gl.makeWideList(use.device(), character, list)) return list;
  gl.deleteLists(list, 1);
  return kQuestionList;
}

void CTreeFont::giveBack(const GlCalls& gl) {
  // Only their own context can delete lists. Where that is not current they stay known: it may be again.
  if (madeIn_ == nullptr || gl.currentContext() != madeIn_) return;
  forget(gl);
}

void CTreeFont::forget(const GlCalls& gl) {
  // A context that has lost the lists of bytes is a new one under an old handle.
  const bool isTheirs = madeIn_ != nullptr && gl.currentContext() == madeIn_ && gl.isList(kFirstList) != 0;
  for (const auto& [character, list] : ownLists_) {
    if (isTheirs && list != kQuestionList) gl.deleteLists(list, 1);
  }
  ownLists_.clear();
}

}  // namespace mst
