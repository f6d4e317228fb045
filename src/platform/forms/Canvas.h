// A surface that the program draws on: boxes, lines, discs, polygons and text. What was drawn stays until
// something is drawn over it, also while the window is covered or hidden; it ends with the form. Drawing
// shows at the next repaint as a whole, so an animation never flickers. Takes no keyboard; OnClick
// follows a click.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "platform/forms/Control.h"
#include "platform/forms/ControlHost.h"

namespace troth {

// A point in the scale of the canvas.
struct CanvasPoint {
  double x = 0;
  double y = 0;
  friend bool operator==(const CanvasPoint&, const CanvasPoint&) = default;
};

// What the edges of the canvas stand for. The units need not be square.
struct CanvasScale {
  double left = 0;
  double top = 0;
  double right = 1;
  double bottom = 1;
  friend bool operator==(const CanvasScale&, const CanvasScale&) = default;

  double Width() const { return right - left; }
  double Height() const { return bottom - top; }
};

using CanvasFont = ControlFont;

// What a backend draws on. Places are in the scale of the canvas; see Canvas.
class CanvasSurface {
 public:
  virtual void Clear(Color color) = 0;
  virtual void FillBox(CanvasPoint from, CanvasPoint to, Color color) = 0;
  virtual void Line(CanvasPoint from, CanvasPoint to, Color color) = 0;
  virtual void FillDisc(CanvasPoint centre, double radius, Color color) = 0;
  virtual void FillPolygon(std::span<const CanvasPoint> corners, Color color) = 0;
  virtual void Print(CanvasPoint place, const std::wstring& text, const CanvasFont& font, Color color) = 0;
  virtual double TextWidth(const std::wstring& text, const CanvasFont& font) const = 0;
  virtual void Repaint() = 0;

 protected:
  ~CanvasSurface() = default;
};

struct CanvasOptions {
  std::wstring name;
  std::wstring toolTip;
  Rect bounds;
  bool visible = true;
  CanvasScale scale = {};
  Color ground = 0;  // of the canvas before anything is drawn
};

class Canvas final : public Control {
 public:
  Canvas(ControlHost& host, CanvasOptions options)
      : Control(host, {.name = std::move(options.name),
                       .toolTip = std::move(options.toolTip),
                       .bounds = options.bounds,
                       .visible = options.visible,
                       .backColor = options.ground}),
        scale_(options.scale) {}

  // The peer refers to the canvas when it goes.
  ~Canvas() override { DetachPeer(); }

  const CanvasScale& Scale() const { return scale_; }
  // For what is drawn from here on.
  void SetScale(const CanvasScale& scale) { scale_ = scale; }

  // None of these does anything while the form is not loaded. A line is one pixel wide at 100 %.
  void Clear(Color color) {
    if (surface_) surface_->Clear(color);
  }
  void FillBox(CanvasPoint from, CanvasPoint to, Color color) {
    if (surface_) surface_->FillBox(from, to, color);
  }
  void Line(CanvasPoint from, CanvasPoint to, Color color) {
    if (surface_) surface_->Line(from, to, color);
  }
  // The radius is in units of the horizontal scale; the disc is round whatever the scale.
  void FillDisc(CanvasPoint centre, double radius, Color color) {
    if (surface_) surface_->FillDisc(centre, radius, color);
  }
  void FillPolygon(std::span<const CanvasPoint> corners, Color color) {
    if (surface_) surface_->FillPolygon(corners, color);
  }
  // One line of text, its upper left corner at `place`.
  void Print(CanvasPoint place, const std::wstring& text, const CanvasFont& font, Color color) {
    if (surface_) surface_->Print(place, text, font, color);
  }
  // In units of the horizontal scale; 0 while the form is not loaded.
  double TextWidth(const std::wstring& text, const CanvasFont& font) const {
    return surface_ ? surface_->TextWidth(text, font) : 0;
  }

  // Shows what was drawn immediately, without serving any other message.
  void Repaint() {
    if (surface_) surface_->Repaint();
  }

  bool IsTabStop() const override { return false; }

  std::function<void()> OnClick;

  // --- Called by the form and the backend only. ---
  void UserClicked() { Host().Raise(OnClick); }
  // By the peer, which is also the surface: null when it goes.
  void DrawOn(CanvasSurface* surface) { surface_ = surface; }

 private:
  std::unique_ptr<ControlPeer> CreatePeer(FormPeer& form) override { return form.Create(*this); }

  CanvasScale scale_;
  CanvasSurface* surface_ = nullptr;
};

}  // namespace troth
