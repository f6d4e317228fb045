#include "screenshots/TakeScreenshot.h"

#include "core/MainWindow.h"
#include "core/Program.h"
#include "core/ProtectedFolder.h"
#include "patch/modAutoPatch.h"
#include "platform/services/BmpFile.h"
#include "platform/services/FileService.h"
#include "platform/services/TimeService.h"
#include "screenshots/ScreenshotNames.h"
#include "screenshots/modGDI.h"
#include "script/MessageBoxes.h"
#include "speech/GameOutput.h"

namespace troth::modScript {

namespace {

constexpr int kRaisePauseMs = 100;

}  // namespace

void TakeScreenshot(Program& program, MainWindow& main) {
  const Platform& platform = program.platform;
  // An attempt without a game counts as well: the folder is that of the first attempt of the run.
  if (program.ScreenshotSession.empty()) program.ScreenshotSession = SessionName(platform.time.Now());

  const WindowHandle game = FindGameWindow(platform.windows);
  if (game == WindowHandle::None) {
    if (main.MOptionsPopup.Checked())
      ShowBox(platform, BoxIcon::Information, L"Kestrel Moors is not running!");
    return;
  }
  if (!platform.windows.Raise(game)) {
    ShowBox(platform, BoxIcon::Stop, L"Error: cannot activate KM window");
    return;
  }
  platform.time.Pump();
  platform.time.Sleep(kRaisePauseMs);

  const std::wstring path = platform.files.ProgramFolder() + L"\\Screenshots\\" + program.ScreenshotSession +
                            L'\\' +
                            ScreenshotFileName(program.Screenshots.baseFileName, program.ScreenshotCounter);
  ++program.ScreenshotCounter;
  modAutoPatch::MakeFolderPath(platform.files, path);
  program.LastScreenshotFile = path;
  const auto picture = modGDI::CaptureGameWindow(program, main, game, program.Screenshots.removeBorder);
  program.CapturedPicture = picture;
  if (!picture) return;
  // What fails from here on fails in silence: the beep or the preview has been there already. But it would
  // fail again and again in a folder that is not the user's.
  const auto bytes = BmpFile(*picture);
  if (bytes && !platform.files.Write(path, *bytes)) ExplainProtectedFolder(program);
}

}  // namespace troth::modScript
