// Pictures of other programs' windows: copies what a window shows into memory, writes text on the copy and
// keeps it as a picture. Used by the screen capture. Never raises, moves or waits for a window.
#pragma once

#include <memory>
#include <span>
#include <string>

#include "platform/Geometry.h"
#include "platform/services/WindowService.h"

namespace troth {

// A finished picture. Owns all that it consists of (on Windows a bitmap and, on a display with a palette,
// that palette) and frees it at its end.
class Bitmap {
 public:
  virtual ~Bitmap() = default;

  virtual PixelSize Size() const = 0;

  // The pixels as a bitmap file holds them: three bytes a pixel, blue first, the bottom row first, each row
  // filled up to a multiple of four bytes. `rows` has exactly that size. False if the system does not give
  // them.
  virtual bool ReadRows(std::span<char> rows) const = 0;
};

// What of a window is captured.
enum class CaptureArea { WholeWindow, ClientArea };

enum class TextSide { Left, Right };

// A picture in the making: an off-screen bitmap, black at first, beside the window that it is taken from.
class CaptureSurface {
 public:
  virtual ~CaptureSurface() = default;

  // The number of colours in the palette of the display; 0 where colours need none.
  virtual int PaletteSize() const = 0;

  // Takes over the first 256 colours of the display's palette. The picture keeps them.
  virtual void TakePalette() = 0;

  // Copies the area as it stands on the screen, from `source` on. What another window covers may come out
  // black.
  virtual void CopyPixels(PixelPoint source) = 0;

  // The height of a line of text, in pixels.
  virtual int TextHeight(const std::wstring& text) const = 0;

  // Draws one line in the system's font, clipped by `place`. Only the letters are drawn. "&" underlines the
  // character after it.
  virtual void PrintLine(const std::wstring& text, const PixelRect& place, TextSide side, Color color) = 0;

  // Ends the work on the surface and hands its bitmap, and its palette if it has one, over to the picture.
  // Called once; the surface takes no other call afterwards.
  virtual std::shared_ptr<const Bitmap> CreateBitmapPicture() = 0;
};

class GraphicsService {
 public:
  virtual ~GraphicsService() = default;

  // A surface of that size for a picture of the window. Null if the window has gone, if the size is empty, or
  // if there is no memory for it.
  virtual std::unique_ptr<CaptureSurface> StartCapture(WindowHandle window, CaptureArea area,
                                                       PixelSize size) = 0;
};

}  // namespace troth
