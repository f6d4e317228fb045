#include "screenshots/frmSSPreview.h"

#include <algorithm>

#include "core/Program.h"
#include "platform/services/GraphicsService.h"

namespace troth {

frmSSPreview::frmSSPreview(Program& program)
    : Form(program.platform.forms,
           {.name = L"frmSSPreview",
            .caption = L"Trothline Screenshot - Press Close or click anywhere in the window to exit",
            .clientSize = {10590, 7965},
            .border = BorderStyle::FixedDialog,
            .helpContext = 9}),
      program_(program) {
  const auto close = [this] { Unload(); };
  OKButton.OnClick = close;
  lblComment.OnClick = close;
  picScreenShot.OnClick = close;
  OnClick = close;
}

void frmSSPreview::Form_Load() {
  const Rect outer = OuterBounds();
  margins_ = {outer.width - picScreenShot.Bounds().width, outer.height - picScreenShot.Bounds().height};
  ShowPicture();
}

// A picture that is as large as the screen makes a window that is larger: its upper left corner, where Close
// is, stays on the screen.
void frmSSPreview::ShowPicture() {
  lblComment.SetCaption(program_.LastScreenshotFile);
  picScreenShot.SetBitmap(program_.CapturedPicture);
  if (!program_.CapturedPicture) return;
  const Size picture = FromPixels(program_.CapturedPicture->Size());
  const Rect place = picScreenShot.Bounds();
  picScreenShot.SetBounds({place.left, place.top, picture.width, picture.height});
  const Size outer{picture.width + margins_.width, picture.height + margins_.height};
  SetOuterSize(outer);
  Centre();
}

}  // namespace troth
