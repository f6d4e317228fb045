#include "screenshots/modGDI.h"

#include "core/MainWindow.h"
#include "core/Program.h"
#include "platform/services/DialogService.h"
#include "platform/services/TimeService.h"
#include "screenshots/ScreenshotLabel.h"
#include "screenshots/frmSSPreview.h"

namespace troth::modGDI {

namespace {

constexpr int kRestorePauseMs = 100;
constexpr int kTopMostPauseMs = 300;
// The label keeps off the title bar, where there is one in the picture.
constexpr int kTitleBarHeight = 20;
// A palette of any other size is none that a picture could take over.
constexpr int kPaletteSize = 256;

void DrawLabel(CaptureSurface& surface, const Program& program, const MainWindow& main, PixelSize picture,
               int topMargin) {
  const ScreenshotOptions& options = program.Screenshots;
  const std::wstring text =
      LabelText(options, main.txtGroom.Text(), main.txtBride.Text(), program.platform.time);
  const auto place = PlaceLabel(options.labelPosition, picture, topMargin, surface.TextHeight(text));
  if (place) surface.PrintLine(text, place->rect, place->side, options.textColor);
}

void ShowPreview(Program& program) {
  // A hotkey can take the next picture while the preview of the last one is open, which goes on waiting.
  if (auto* open = program.Opened<frmSSPreview>())
    open->ShowPicture();
  else
    program.Make<frmSSPreview>().ShowModal();
}

}  // namespace

std::shared_ptr<const Bitmap> CaptureGameWindow(Program& program, MainWindow& main, WindowHandle game,
                                                bool removeBorder) {
  const Platform& platform = program.platform;
  platform.windows.Restore(game);
  platform.time.Sleep(kRestorePauseMs);
  platform.time.Pump();
  const PixelRect area = (removeBorder ? platform.windows.ClientRect(game) : platform.windows.OuterRect(game))
                             .value_or(PixelRect{});
  main.SetStacking(Stacking::NotTopMost);
  platform.windows.SetStacking(game, Stacking::TopMost);
  platform.time.Pump();
  platform.time.Sleep(kTopMostPauseMs);
  program.CapturedPicture = CaptureWindowBitmap(program, main, game, removeBorder, {},
                                                {area.right - area.left, area.bottom - area.top});
  platform.windows.SetStacking(game, Stacking::NotTopMost);
  // The preview lets other handlers in, which may take another picture.
  const auto picture = program.CapturedPicture;
  if (program.Screenshots.showPreview)
    ShowPreview(program);
  else
    platform.dialogs.Beep();
  if (!program.Opened<frmSSPreview>()) main.SetStacking(program.TopMostState);
  return picture;
}

std::shared_ptr<const Bitmap> CaptureWindowBitmap(const Program& program, const MainWindow& main,
                                                  WindowHandle window, bool removeBorder, PixelPoint source,
                                                  PixelSize size) {
  const auto surface = program.platform.graphics.StartCapture(
      window, removeBorder ? CaptureArea::ClientArea : CaptureArea::WholeWindow, size);
  if (!surface) return nullptr;
  if (surface->PaletteSize() == kPaletteSize) surface->TakePalette();
  surface->CopyPixels(source);
  if (program.Screenshots.includeLabel)
    DrawLabel(*surface, program, main, size, removeBorder ? 0 : kTitleBarHeight);
  return surface->CreateBitmapPicture();
}

}  // namespace troth::modGDI
