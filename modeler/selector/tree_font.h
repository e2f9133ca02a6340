// The tree's characters as bitmap lists of OpenGL: those of the font's first 255 byte codes, made together under fixed
// numbers, and one for each other character that a name holds, made when it is first drawn under a number that OpenGL gives.
#pragma once

#include <cstddef>
#include <optional>
#include <unordered_map>

#include "host/gl_calls.h"

namespace mst {

inline constexpr unsigned kFirstList = 1000;        // of character code 0
inline constexpr unsigned kByteLists = 255;         // there is none for code 255
inline constexpr std::size_t kMostOwnLists = 2048;  // more than a view shows; when they are used up they begin anew

class CTreeFont {
 public:
  // The font in a device context while a picture is drawn. It is made when a list has to be and goes with this object, so
  // that nothing of it is left between two pictures.
  class CUse {
   public:
    CUse(const GlCalls& gl, void* device) : gl_(gl), device_(device) {}
    ~CUse();
    CUse(const CUse&) = delete;
    CUse& operator=(const CUse&) = delete;

    const GlCalls& gl() const { return gl_; }
    void* device() const { return device_; }
    bool select();

   private:
    const GlCalls& gl_;
    void* device_;
    std::optional<SelectedFont> selected_;
  };

  // [context current] Makes the lists when the device context is not the one that they were made for. False: there are none,
  // and no text can be drawn.
  bool prepare(CUse& use);

  // [prepared] The list that shows a character; that of "?" where the font gives none.
  unsigned listOf(char32_t character, CUse& use);

  // Deletes the lists of single characters, if the context that they were made in is current. If not they are kept: their
  // numbers may be somebody else's lists in another one, and their own may be current again at the next drawing.
  void giveBack(const GlCalls& gl);

 private:
  // As giveBack, but forgets them in any case: lists of a context that is gone went with it.
  void forget(const GlCalls& gl);
  unsigned madeList(char16_t character, CUse& use) const;

  void* madeFor_ = nullptr;                          // device context
  void* madeIn_ = nullptr;                           // OpenGL's context
  std::unordered_map<char32_t, unsigned> ownLists_;  // the list of "?" for a character without one
};

}  // namespace mst
