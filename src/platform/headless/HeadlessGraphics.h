// Pictures on the headless desktop: the pixels come from the window's own painter, the letters are plain
// blocks. A window that another covers shows black unless it is topmost, as on a real screen.
#pragma once

#include <vector>

#include "platform/headless/HeadlessWindows.h"
#include "platform/services/GraphicsService.h"

namespace troth {

class HeadlessBitmap final : public Bitmap {
 public:
  explicit HeadlessBitmap(PixelSize size);
  PixelSize Size() const override { return size_; }
  bool ReadRows(std::span<char> rows) const override;

  Color At(PixelPoint place) const { return pixels_.at(Index(place)); }
  void Set(PixelPoint place, Color color) { pixels_.at(Index(place)) = color; }

  bool hasPalette = false;

 private:
  std::size_t Index(PixelPoint place) const {
    return static_cast<std::size_t>(place.top) * static_cast<std::size_t>(size_.width) +
           static_cast<std::size_t>(place.left);
  }

  PixelSize size_;
  std::vector<Color> pixels_;
};

class HeadlessGraphics final : public GraphicsService {
 public:
  // A character fills its cell but for a border of one pixel; a blank fills nothing.
  static constexpr int kCellWidth = 8;
  static constexpr int kCellHeight = 16;

  explicit HeadlessGraphics(HeadlessWindows& windows) : windows_(windows) {}
  std::unique_ptr<CaptureSurface> StartCapture(WindowHandle window, CaptureArea area,
                                               PixelSize size) override;

  // As PaletteSize of the surface.
  int paletteSize = 0;

 private:
  HeadlessWindows& windows_;
};

}  // namespace troth
