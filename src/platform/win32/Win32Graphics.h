// Pictures of windows on the real desktop. The capture of a window lies in a bitmap of the system.
#pragma once

#include "platform/services/GraphicsService.h"
#include "platform/win32/Win32.h"

namespace troth {

class Win32Bitmap final : public Bitmap {
 public:
  Win32Bitmap(UniqueBitmap bitmap, UniquePalette palette, PixelSize size)
      : palette_(std::move(palette)), bitmap_(std::move(bitmap)), size_(size) {}
  PixelSize Size() const override { return size_; }
  bool ReadRows(std::span<char> rows) const override;

  // Draws the picture at the upper left corner of the surface, one pixel for one.
  void DrawOn(HDC surface) const;

 private:
  UniquePalette palette_;
  UniqueBitmap bitmap_;
  PixelSize size_;
};

class Win32Graphics final : public GraphicsService {
 public:
  std::unique_ptr<CaptureSurface> StartCapture(WindowHandle window, CaptureArea area,
                                               PixelSize size) override;
};

}  // namespace troth
