#include "platform/win32/ViewPictures.h"

#include <cstdint>
#include <span>
#include <vector>

#include "platform/Geometry.h"

namespace troth {

namespace {

// Shapes are given on a ground of 64 by 64, so that a picture of 16 pixels has whole numbers for its edges.
constexpr int kGround = 64;
// Each pixel is the mean of so many drawn ones in either direction: that smooths the slanted edges.
constexpr int kOversampling = 4;
// Never drawn with: what still has it is transparent.
constexpr COLORREF kNothing = RGB(255, 0, 255);

struct Shape {
  COLORREF fill;
  std::vector<POINT> corners;
};

constexpr COLORREF kEdge = RGB(150, 108, 32);
constexpr COLORREF kBack = RGB(222, 172, 72);
constexpr COLORREF kFront = RGB(250, 212, 120);
constexpr COLORREF kPaperEdge = RGB(112, 122, 140);
constexpr COLORREF kPaper = RGB(255, 255, 255);
constexpr COLORREF kFold = RGB(206, 214, 226);
constexpr COLORREF kWriting = RGB(98, 126, 172);

const std::vector<Shape>& ShapesOf(int picture) {
  static const std::vector<Shape> pictures[] = {
      {{kEdge, {{4, 12}, {26, 12}, {32, 18}, {60, 18}, {60, 56}, {4, 56}}},
       {kBack, {{8, 16}, {24, 16}, {30, 22}, {56, 22}, {56, 52}, {8, 52}}},
       {kFront, {{8, 28}, {56, 28}, {56, 52}, {8, 52}}}},
      {{kEdge, {{4, 12}, {26, 12}, {32, 18}, {56, 18}, {56, 28}, {64, 28}, {56, 56}, {4, 56}}},
       {kBack, {{8, 16}, {24, 16}, {30, 22}, {52, 22}, {52, 28}, {16, 28}, {8, 48}}},
       {kFront, {{18, 32}, {60, 32}, {53, 52}, {10, 52}}}},
      {{kPaperEdge, {{12, 4}, {38, 4}, {52, 18}, {52, 60}, {12, 60}}},
       {kPaper, {{16, 8}, {36, 8}, {36, 20}, {48, 20}, {48, 56}, {16, 56}}},
       {kFold, {{38, 10}, {46, 18}, {38, 18}}},
       {kWriting, {{20, 26}, {44, 26}, {44, 30}, {20, 30}}},
       {kWriting, {{20, 36}, {44, 36}, {44, 40}, {20, 40}}},
       {kWriting, {{20, 46}, {36, 46}, {36, 50}, {20, 50}}}}};
  return pictures[picture];
}

// A bitmap whose pixels can be reached.
class Raster {
 public:
  Raster(int width, int height) : width_(width) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    bitmap_.reset(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    pixels_ = {static_cast<std::uint32_t*>(bits), static_cast<std::size_t>(width * height)};
  }
  HBITMAP Bitmap() const { return bitmap_.get(); }
  std::uint32_t& At(int x, int y) const { return pixels_[static_cast<std::size_t>(y * width_ + x)]; }

 private:
  int width_;
  Unique<HBITMAP, DeleteObject> bitmap_;
  std::span<std::uint32_t> pixels_;
};

void Fill(HDC surface, const Shape& shape, int size) {
  std::vector<POINT> corners = shape.corners;
  for (POINT& corner : corners) corner = {MulDiv(corner.x, size, kGround), MulDiv(corner.y, size, kGround)};
  const UniqueBrush brush(CreateSolidBrush(shape.fill));
  const HGDIOBJ brushBefore = SelectObject(surface, brush.get());
  const HGDIOBJ penBefore = SelectObject(surface, GetStockObject(NULL_PEN));
  Polygon(surface, corners.data(), static_cast<int>(corners.size()));
  SelectObject(surface, penBefore);
  SelectObject(surface, brushBefore);
}

// The mean colour of what is drawn in the square, its opacity by how much of it is.
std::uint32_t Mean(const Raster& drawn, int left, int top) {
  std::uint32_t red = 0, green = 0, blue = 0, count = 0;
  constexpr std::uint32_t kNothingPixel = 0x00FF00FF;
  for (int y = top; y < top + kOversampling; ++y)
    for (int x = left; x < left + kOversampling; ++x) {
      const std::uint32_t pixel = drawn.At(x, y) & 0x00FFFFFF;
      if (pixel == kNothingPixel) continue;
      red += (pixel >> 16) & 255;
      green += (pixel >> 8) & 255;
      blue += pixel & 255;
      ++count;
    }
  if (count == 0) return 0;
  const std::uint32_t opacity = 255 * count / (kOversampling * kOversampling);
  return opacity << 24 | red / count << 16 | green / count << 8 | blue / count;
}

}  // namespace

UniqueImageList DrawViewPictures(UINT dpi) {
  const int size = GetSystemMetricsForDpi(SM_CXSMICON, dpi);
  UniqueImageList list(ImageList_Create(size, size, ILC_COLOR32, kDocument + 1, 0));
  const UniqueSurface surface(CreateCompatibleDC(nullptr));
  const int drawnSize = size * kOversampling;
  for (int picture = kClosedFolder; picture <= kDocument; ++picture) {
    const Raster drawn(drawnSize, drawnSize);
    const Raster small(size, size);
    const HGDIOBJ before = SelectObject(surface.get(), drawn.Bitmap());
    const RECT ground{0, 0, drawnSize, drawnSize};
    const UniqueBrush nothing(CreateSolidBrush(kNothing));
    FillRect(surface.get(), &ground, nothing.get());
    for (const Shape& shape : ShapesOf(picture)) Fill(surface.get(), shape, drawnSize);
    SelectObject(surface.get(), before);
    GdiFlush();
    for (int y = 0; y < size; ++y)
      for (int x = 0; x < size; ++x) small.At(x, y) = Mean(drawn, x * kOversampling, y * kOversampling);
    ImageList_Add(list.get(), small.Bitmap(), nullptr);
  }
  return list;
}

}  // namespace troth
