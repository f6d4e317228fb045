#include "platform/headless/HeadlessGraphics.h"

#include <algorithm>

namespace troth {

namespace {

class HeadlessSurface final : public CaptureSurface {
 public:
  HeadlessSurface(const HeadlessWindow& window, CaptureArea area, PixelSize size, int paletteSize)
      : window_(window),
        area_(area),
        paletteSize_(paletteSize),
        bitmap_(std::make_shared<HeadlessBitmap>(size)) {}

  int PaletteSize() const override { return paletteSize_; }
  void TakePalette() override { bitmap_->hasPalette = true; }

  void CopyPixels(PixelPoint source) override {
    if (!window_.alive || window_.minimised || (window_.isCovered && window_.stacking != Stacking::TopMost))
      return;
    const PixelPoint origin = area_ == CaptureArea::ClientArea
                                  ? PixelPoint{window_.frame, window_.frame + window_.titleBar}
                                  : PixelPoint{};
    const PixelSize size = bitmap_->Size();
    for (int top = 0; top < size.height; ++top)
      for (int left = 0; left < size.width; ++left)
        bitmap_->Set({left, top},
                     window_.paint({origin.left + source.left + left, origin.top + source.top + top}));
  }

  int TextHeight(const std::wstring&) const override { return HeadlessGraphics::kCellHeight; }

  void PrintLine(const std::wstring& text, const PixelRect& place, TextSide side, Color color) override {
    const int width = static_cast<int>(text.size()) * HeadlessGraphics::kCellWidth;
    int left = side == TextSide::Left ? place.left : place.right - width;
    for (const wchar_t letter : text) {
      if (letter != L' ') FillCell({left, place.top}, place, color);
      left += HeadlessGraphics::kCellWidth;
    }
  }

  std::shared_ptr<const Bitmap> CreateBitmapPicture() override { return bitmap_; }

 private:
  void FillCell(PixelPoint cell, const PixelRect& clip, Color color) {
    const PixelSize size = bitmap_->Size();
    const int right = std::min({cell.left + HeadlessGraphics::kCellWidth - 1, clip.right, size.width});
    const int bottom = std::min({cell.top + HeadlessGraphics::kCellHeight - 1, clip.bottom, size.height});
    for (int top = std::max({cell.top + 1, clip.top, 0}); top < bottom; ++top)
      for (int left = std::max({cell.left + 1, clip.left, 0}); left < right; ++left)
        bitmap_->Set({left, top}, color);
  }

  const HeadlessWindow& window_;
  CaptureArea area_;
  int paletteSize_;
  std::shared_ptr<HeadlessBitmap> bitmap_;
};

}  // namespace

HeadlessBitmap::HeadlessBitmap(PixelSize size)
    : size_(size), pixels_(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height)) {}

bool HeadlessBitmap::ReadRows(std::span<char> rows) const {
  const std::size_t rowBytes = rows.size() / static_cast<std::size_t>(size_.height);
  for (int top = 0; top < size_.height; ++top) {
    auto byte = rows.begin() + static_cast<std::ptrdiff_t>(rowBytes) * (size_.height - 1 - top);
    for (int left = 0; left < size_.width; ++left) {
      const Color color = At({left, top});
      for (const int shift : {16, 8, 0}) *byte++ = static_cast<char>(color >> shift & 0xFF);
    }
  }
  return true;
}

std::unique_ptr<CaptureSurface> HeadlessGraphics::StartCapture(WindowHandle window, CaptureArea area,
                                                               PixelSize size) {
  const HeadlessWindow* found = windows_.Alive(window);
  if (!found || size.width <= 0 || size.height <= 0) return nullptr;
  return std::make_unique<HeadlessSurface>(*found, area, size, paletteSize);
}

}  // namespace troth
