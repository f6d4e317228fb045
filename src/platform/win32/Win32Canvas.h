// The canvas of the real desktop: a window below those that share its place, whose content lies in a bitmap
// and is painted from it in one copy.
#pragma once

#include "platform/forms/Canvas.h"
#include "platform/win32/Win32Control.h"

namespace troth {

class Win32Canvas final : public Win32Control, public CanvasSurface {
 public:
  Win32Canvas(ControlSite& site, Canvas& canvas);
  ~Win32Canvas() override;

  void Open() override;
  void FitToForm() override;

  void Clear(Color color) override;
  void FillBox(CanvasPoint from, CanvasPoint to, Color color) override;
  void Line(CanvasPoint from, CanvasPoint to, Color color) override;
  void FillDisc(CanvasPoint centre, double radius, Color color) override;
  void FillPolygon(std::span<const CanvasPoint> corners, Color color) override;
  void Print(CanvasPoint place, const std::wstring& text, const CanvasFont& font, Color color) override;
  double TextWidth(const std::wstring& text, const CanvasFont& font) const override;
  void Repaint() override;

 private:
  using UniqueBitmap = Unique<HBITMAP, DeleteObject>;
  using UniquePen = Unique<HPEN, DeleteObject>;

  bool OnMessage(UINT message) override;
  static const wchar_t* WindowClass();
  void FitBitmap();
  void Paint();
  HDC Drawing();
  void FillPixels(const RECT& box, Color color);
  POINT PixelOf(CanvasPoint place) const;

  Canvas& canvas_;
  SIZE size_{};
  // The surface goes before the bitmap that is selected in it.
  UniqueBitmap bitmap_;
  UniqueSurface memory_;
  bool isDirty_ = false;
};

}  // namespace troth
