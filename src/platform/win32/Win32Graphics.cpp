#include "platform/win32/Win32Graphics.h"

#include <cstddef>
#include <optional>
#include <utility>

namespace troth {

namespace {

// The surface of a window, given back to it at the end.
class WindowSurface {
 public:
  WindowSurface(HWND window, CaptureArea area)
      : window_(window), surface_(area == CaptureArea::ClientArea ? GetDC(window) : GetWindowDC(window)) {}
  ~WindowSurface() {
    if (surface_) ReleaseDC(window_, surface_);
  }
  WindowSurface(const WindowSurface&) = delete;
  WindowSurface& operator=(const WindowSurface&) = delete;

  HDC Get() const { return surface_; }

 private:
  HWND window_;
  HDC surface_;
};

// An object in use by a surface, which takes its former object back at the end.
class Selected {
 public:
  Selected(HDC surface, HGDIOBJ object) : surface_(surface), former_(SelectObject(surface, object)) {}
  ~Selected() { SelectObject(surface_, former_); }
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;

 private:
  HDC surface_;
  HGDIOBJ former_;
};

class SelectedPalette {
 public:
  SelectedPalette(HDC surface, HPALETTE palette)
      : surface_(surface), former_(palette ? SelectPalette(surface, palette, FALSE) : nullptr) {
    if (former_) RealizePalette(surface_);
  }
  ~SelectedPalette() {
    if (former_) SelectPalette(surface_, former_, FALSE);
  }
  SelectedPalette(const SelectedPalette&) = delete;
  SelectedPalette& operator=(const SelectedPalette&) = delete;

 private:
  HDC surface_;
  HPALETTE former_;
};

UniquePalette CopyOfSystemPalette(HDC display) {
  constexpr UINT kEntries = 256;
  struct {
    WORD version = 0x300;
    WORD count = kEntries;
    PALETTEENTRY entries[kEntries] = {};
  } palette;
  static_assert(sizeof palette == offsetof(LOGPALETTE, palPalEntry) + sizeof palette.entries);
  GetSystemPaletteEntries(display, 0, kEntries, palette.entries);
  return UniquePalette(CreatePalette(reinterpret_cast<const LOGPALETTE*>(&palette)));
}

class Win32CaptureSurface final : public CaptureSurface {
 public:
  // Not ready if the window has gone or the system has no memory for the bitmap.
  Win32CaptureSurface(HWND window, CaptureArea area, PixelSize size) : window_(window, area), size_(size) {
    if (!window_.Get()) return;
    memory_.reset(CreateCompatibleDC(window_.Get()));
    bitmap_.reset(CreateCompatibleBitmap(window_.Get(), size.width, size.height));
    if (IsReady()) inMemory_.emplace(memory_.get(), bitmap_.get());
  }

  bool IsReady() const { return memory_ && bitmap_; }

  int PaletteSize() const override {
    const bool hasPalette = (GetDeviceCaps(window_.Get(), RASTERCAPS) & RC_PALETTE) != 0;
    return hasPalette ? GetDeviceCaps(window_.Get(), SIZEPALETTE) : 0;
  }

  void TakePalette() override {
    palette_ = CopyOfSystemPalette(window_.Get());
    paletteInMemory_.emplace(memory_.get(), palette_.get());
  }

  void CopyPixels(PixelPoint source) override {
    BitBlt(memory_.get(), 0, 0, size_.width, size_.height, window_.Get(), source.left, source.top, SRCCOPY);
  }

  int TextHeight(const std::wstring& text) const override {
    SIZE extent{};
    GetTextExtentPoint32W(window_.Get(), text.c_str(), static_cast<int>(text.size()), &extent);
    return extent.cy;
  }

  void PrintLine(const std::wstring& text, const PixelRect& place, TextSide side, Color color) override {
    const HDC surface = memory_.get();
    const int formerMode = SetMapMode(surface, MM_TEXT);
    SetTextColor(surface, color);
    SetBkMode(surface, TRANSPARENT);
    RECT box{place.left, place.top, place.right, place.bottom};
    DrawTextW(surface, text.c_str(), static_cast<int>(text.size()), &box,
              side == TextSide::Left ? DT_LEFT : DT_RIGHT);
    SetMapMode(surface, formerMode);
  }

  std::shared_ptr<const Bitmap> CreateBitmapPicture() override {
    inMemory_.reset();
    paletteInMemory_.reset();
    return std::make_shared<Win32Bitmap>(std::move(bitmap_), std::move(palette_), size_);
  }

 private:
  WindowSurface window_;
  PixelSize size_;
  // An object can only be freed while no surface uses it: the order of these members matters.
  UniquePalette palette_;
  UniqueBitmap bitmap_;
  UniqueSurface memory_;
  std::optional<SelectedPalette> paletteInMemory_;
  std::optional<Selected> inMemory_;
};

}  // namespace

bool Win32Bitmap::ReadRows(std::span<char> rows) const {
  const UniqueSurface surface(CreateCompatibleDC(nullptr));
  const SelectedPalette palette(surface.get(), palette_.get());
  BITMAPINFO format{};
  format.bmiHeader.biSize = sizeof format.bmiHeader;
  format.bmiHeader.biWidth = size_.width;
  format.bmiHeader.biHeight = size_.height;
  format.bmiHeader.biPlanes = 1;
  format.bmiHeader.biBitCount = 24;
  return GetDIBits(surface.get(), bitmap_.get(), 0, static_cast<UINT>(size_.height), rows.data(), &format,
                   DIB_RGB_COLORS) == size_.height;
}

void Win32Bitmap::DrawOn(HDC surface) const {
  const UniqueSurface memory(CreateCompatibleDC(surface));
  const Selected bitmap(memory.get(), bitmap_.get());
  const SelectedPalette palette(surface, palette_.get());
  BitBlt(surface, 0, 0, size_.width, size_.height, memory.get(), 0, 0, SRCCOPY);
}

std::unique_ptr<CaptureSurface> Win32Graphics::StartCapture(WindowHandle window, CaptureArea area,
                                                            PixelSize size) {
  // Without a window the system would take the whole screen.
  if (window == WindowHandle::None || size.width <= 0 || size.height <= 0) return nullptr;
  auto surface = std::make_unique<Win32CaptureSurface>(reinterpret_cast<HWND>(static_cast<ULONG_PTR>(window)),
                                                       area, size);
  return surface->IsReady() ? std::move(surface) : nullptr;
}

}  // namespace troth
