// A canvas without a screen: it records what is drawn on it, and measures text with letters of fixed width.
// Tests read the record; there are no pixels.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/forms/Canvas.h"

namespace troth {

enum class CanvasAct { Clear, Box, Line, Disc, Polygon, Text, Repaint };

struct CanvasStroke {
  CanvasAct act = CanvasAct::Clear;
  std::vector<CanvasPoint> points;  // two of a box and a line, one of a disc and a text
  double radius = 0;
  std::wstring text;
  CanvasFont font;
  Color color = 0;
  CanvasScale scale = {};  // in which it was drawn
};

class HeadlessCanvas final : public ControlPeer, public CanvasSurface {
 public:
  explicit HeadlessCanvas(Canvas& canvas) : canvas_(canvas) { canvas_.DrawOn(this); }
  ~HeadlessCanvas() override { canvas_.DrawOn(nullptr); }

  // Of a canvas whose form is loaded on the headless desktop.
  static HeadlessCanvas& Of(const Canvas& canvas) { return static_cast<HeadlessCanvas&>(*canvas.Peer()); }

  void Refresh(Aspect) override {}
  void TakeFocus() override {}
  void Clear(Color color) override { Add({.act = CanvasAct::Clear, .color = color}); }
  void FillBox(CanvasPoint from, CanvasPoint to, Color color) override {
    Add({.act = CanvasAct::Box, .points = {from, to}, .color = color});
  }
  void Line(CanvasPoint from, CanvasPoint to, Color color) override {
    Add({.act = CanvasAct::Line, .points = {from, to}, .color = color});
  }
  void FillDisc(CanvasPoint centre, double radius, Color color) override {
    Add({.act = CanvasAct::Disc, .points = {centre}, .radius = radius, .color = color});
  }
  void FillPolygon(std::span<const CanvasPoint> corners, Color color) override {
    Add({.act = CanvasAct::Polygon, .points = {corners.begin(), corners.end()}, .color = color});
  }
  void Print(CanvasPoint place, const std::wstring& text, const CanvasFont& font, Color color) override {
    Add({.act = CanvasAct::Text, .points = {place}, .text = text, .font = font, .color = color});
  }
  // Each character is half as wide as the font is high.
  double TextWidth(const std::wstring& text, const CanvasFont& font) const override;
  void Repaint() override { Add({.act = CanvasAct::Repaint}); }

  const std::vector<CanvasStroke>& Strokes() const { return strokes_; }
  // The record since the last time.
  std::vector<CanvasStroke> TakeStrokes() { return std::exchange(strokes_, {}); }

  // The colour at a place of the scale, as the fills leave it; lines and letters are not looked at.
  Color ColorAt(CanvasPoint place) const;

 private:
  void Add(CanvasStroke stroke) {
    stroke.scale = canvas_.Scale();
    strokes_.push_back(std::move(stroke));
  }
  bool Covers(const CanvasStroke& stroke, CanvasPoint place) const;

  Canvas& canvas_;
  std::vector<CanvasStroke> strokes_;
};

}  // namespace troth
