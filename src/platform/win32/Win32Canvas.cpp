#include "platform/win32/Win32Canvas.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace troth {

namespace {

// Puts a pen, brush or font into a surface for the time of one drawing.
class Selected {
 public:
  Selected(HDC surface, HGDIOBJ object) : surface_(surface), before_(SelectObject(surface, object)) {}
  ~Selected() { SelectObject(surface_, before_); }
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;

 private:
  HDC surface_;
  HGDIOBJ before_;
};

// The system's own pen and brush, which take a colour without being made each time.
void UseColor(HDC surface, Color color) {
  SetDCPenColor(surface, color);
  SetDCBrushColor(surface, color);
}

}  // namespace

Win32Canvas::Win32Canvas(ControlSite& site, Canvas& canvas)
    : Win32Control(site, canvas, {.windowClass = WindowClass(), .style = WS_CLIPSIBLINGS}), canvas_(canvas) {
  canvas_.DrawOn(this);
}

Win32Canvas::~Win32Canvas() { canvas_.DrawOn(nullptr); }

void Win32Canvas::Open() {
  Win32Control::Open();
  FitBitmap();
}

void Win32Canvas::FitToForm() {
  Win32Control::FitToForm();
  FitBitmap();
}

// At another size, which comes with another DPI, the content is stretched into a new bitmap.
void Win32Canvas::FitBitmap() {
  RECT client;
  GetClientRect(Window(), &client);
  // An empty bitmap could not be selected.
  const SIZE wanted{std::max(client.right, 1L), std::max(client.bottom, 1L)};
  if (bitmap_ && wanted.cx == size_.cx && wanted.cy == size_.cy) return;

  const HDC screen = GetDC(nullptr);
  UniqueBitmap bitmap(CreateCompatibleBitmap(screen, wanted.cx, wanted.cy));
  UniqueSurface memory(CreateCompatibleDC(screen));
  ReleaseDC(nullptr, screen);
  SelectObject(memory.get(), bitmap.get());
  SetBkMode(memory.get(), TRANSPARENT);
  const bool hadContent = bitmap_ != nullptr;
  if (hadContent) {
    SetStretchBltMode(memory.get(), HALFTONE);
    StretchBlt(memory.get(), 0, 0, wanted.cx, wanted.cy, memory_.get(), 0, 0, size_.cx, size_.cy, SRCCOPY);
  }
  memory_ = std::move(memory);
  bitmap_ = std::move(bitmap);
  size_ = wanted;
  if (!hadContent) Clear(canvas_.BackColor().value_or(0));
  InvalidateRect(Window(), nullptr, FALSE);
}

// The surface to draw on. The window is invalidated once a frame, not once a stroke: it is a call to another
// process.
HDC Win32Canvas::Drawing() {
  if (!isDirty_) InvalidateRect(Window(), nullptr, FALSE);
  isDirty_ = true;
  return memory_.get();
}

void Win32Canvas::Paint() {
  isDirty_ = false;
  PAINTSTRUCT painting;
  const HDC surface = BeginPaint(Window(), &painting);
  const RECT& part = painting.rcPaint;
  BitBlt(surface, part.left, part.top, part.right - part.left, part.bottom - part.top, memory_.get(),
         part.left, part.top, SRCCOPY);
  EndPaint(Window(), &painting);
}

const wchar_t* Win32Canvas::WindowClass() {
  static const ATOM registered = [] {
    WNDCLASSEXW canvas{};
    canvas.cbSize = sizeof canvas;
    canvas.lpfnWndProc = &DefWindowProcW;
    canvas.hInstance = GetModuleHandleW(nullptr);
    canvas.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    canvas.lpszClassName = L"TrothlineCanvas";
    return RegisterClassExW(&canvas);
  }();
  return MAKEINTATOM(registered);
}

bool Win32Canvas::OnMessage(UINT message) {
  switch (message) {
    case WM_ERASEBKGND:
      return true;
    case WM_PAINT:
      Paint();
      return true;
    case WM_LBUTTONUP:
      canvas_.UserClicked();
      return true;
    default:
      return false;
  }
}

POINT Win32Canvas::PixelOf(CanvasPoint place) const {
  const CanvasScale& scale = canvas_.Scale();
  return {std::lround((place.x - scale.left) / scale.Width() * static_cast<double>(size_.cx)),
          std::lround((place.y - scale.top) / scale.Height() * static_cast<double>(size_.cy))};
}

void Win32Canvas::FillPixels(const RECT& box, Color color) {
  const HDC surface = Drawing();
  SetDCBrushColor(surface, color);
  FillRect(surface, &box, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void Win32Canvas::Clear(Color color) { FillPixels({0, 0, size_.cx, size_.cy}, color); }

void Win32Canvas::FillBox(CanvasPoint from, CanvasPoint to, Color color) {
  const POINT first = PixelOf(from);
  const POINT second = PixelOf(to);
  FillPixels({std::min(first.x, second.x), std::min(first.y, second.y), std::max(first.x, second.x),
              std::max(first.y, second.y)},
             color);
}

void Win32Canvas::Line(CanvasPoint from, CanvasPoint to, Color color) {
  const POINT first = PixelOf(from);
  const POINT second = PixelOf(to);
  const int width = std::max(1, MulDiv(1, static_cast<int>(Site().Dpi()), 96));
  const HDC surface = Drawing();
  const UniquePen pen(CreatePen(PS_SOLID, width, color));
  const Selected selected(surface, pen.get());
  MoveToEx(surface, first.x, first.y, nullptr);
  LineTo(surface, second.x, second.y);
}

void Win32Canvas::FillDisc(CanvasPoint centre, double radius, Color color) {
  const POINT middle = PixelOf(centre);
  const auto pixels =
      std::max(1L, std::lround(radius / canvas_.Scale().Width() * static_cast<double>(size_.cx)));
  const HDC surface = Drawing();
  // With its outline: a disc of one pixel is a cross, not a square.
  const Selected pen(surface, GetStockObject(DC_PEN));
  const Selected brush(surface, GetStockObject(DC_BRUSH));
  UseColor(surface, color);
  Ellipse(surface, middle.x - pixels, middle.y - pixels, middle.x + pixels + 1, middle.y + pixels + 1);
}

void Win32Canvas::FillPolygon(std::span<const CanvasPoint> corners, Color color) {
  std::vector<POINT> points;
  for (const CanvasPoint& corner : corners) points.push_back(PixelOf(corner));
  const HDC surface = Drawing();
  // Without an outline, which would reach a pixel further on each side.
  const Selected pen(surface, GetStockObject(NULL_PEN));
  const Selected brush(surface, GetStockObject(DC_BRUSH));
  UseColor(surface, color);
  Polygon(surface, points.data(), static_cast<int>(points.size()));
}

void Win32Canvas::Print(CanvasPoint place, const std::wstring& text, const CanvasFont& font, Color color) {
  const POINT corner = PixelOf(place);
  const HDC surface = Drawing();
  const UniqueFont letters = CreateControlFont(font, Site().Dpi());
  const Selected selected(surface, letters.get());
  SetTextColor(surface, color);
  TextOutW(surface, corner.x, corner.y, text.c_str(), static_cast<int>(text.size()));
}

double Win32Canvas::TextWidth(const std::wstring& text, const CanvasFont& font) const {
  const UniqueFont letters = CreateControlFont(font, Site().Dpi());
  const Selected selected(memory_.get(), letters.get());
  SIZE size{};
  GetTextExtentPoint32W(memory_.get(), text.c_str(), static_cast<int>(text.size()), &size);
  return static_cast<double>(size.cx) / static_cast<double>(size_.cx) * canvas_.Scale().Width();
}

void Win32Canvas::Repaint() { UpdateWindow(Window()); }

}  // namespace troth
