// A font with the measures that layout needs, and the bitmap that all is drawn into. The view owns them and
// creates them again when the DPI or the size changes.
#pragma once

#include <windows.h>

#include <span>
#include <string_view>

#include "game/Raster.h"
#include "game/TextWrap.h"
#include "game/WinHandles.h"

namespace troth::game {

struct FaceChoice {
  std::span<const wchar_t* const> families;  // the first one installed is taken
  int height;                                // of the em, pixels
  bool slanted = false;
};

class Typeface {
 public:
  void Choose(HDC device, const FaceChoice& choice);

  const GlyphWidths& widths() const { return widths_; }
  int lineHeight() const { return lineHeight_; }

  // Text in bytes of the 8-bit page, from the left; every glyph advances by its entry in widths().
  void Draw(HDC device, std::string_view text, int x, int y, Colour colour) const;
  // Text of the game's own, at the left, middle or right of the box, cut with an ellipsis.
  void DrawLabel(HDC device, std::wstring_view text, const Box& box, Colour colour, UINT alignment) const;

 private:
  FontHandle font_;
  GlyphWidths widths_{};
  int lineHeight_ = 1;
};

// 32-bit pixels that both the brush and GDI draw into.
class Surface {
 public:
  // Keeps what it has if the size is the same. At least one pixel each way.
  void Resize(int width, int height);
  Pixmap pixels() const { return {pixels_, width_, height_}; }
  HDC device() const { return device_.get(); }

 private:
  // The device holds the bitmap selected and must go first.
  BitmapHandle bitmap_;
  DeviceContext device_;
  Colour* pixels_ = nullptr;
  int width_ = 0;
  int height_ = 0;
};

}  // namespace troth::game
