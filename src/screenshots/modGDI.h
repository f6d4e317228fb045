// Makes a picture of the game's window. Knows nothing of files; see TakeScreenshot.
#pragma once

#include <memory>

#include "platform/Geometry.h"
#include "platform/services/GraphicsService.h"
#include "platform/services/WindowService.h"

namespace troth {

class MainWindow;
class Program;

namespace modGDI {

// Restores the game, puts it in front of everything else for the moment of the capture, and shows the preview
// or sounds a beep. The picture is in CapturedPicture of the program before the preview opens; null if the
// game has gone. Other handlers run inside the call, and the preview is modal.
std::shared_ptr<const Bitmap> CaptureGameWindow(Program& program, MainWindow& main, WindowHandle game,
                                                bool removeBorder);

// Copies a part of the window as it stands on the screen, and draws the label if the options ask for it. Null
// if the window has gone.
std::shared_ptr<const Bitmap> CaptureWindowBitmap(const Program& program, const MainWindow& main,
                                                  WindowHandle window, bool removeBorder, PixelPoint source,
                                                  PixelSize size);

}  // namespace modGDI
}  // namespace troth
