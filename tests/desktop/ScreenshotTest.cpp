// Pictures of the game: the file is compared with what the game shows on the screen.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/desktop/Patience.h"
#include "tests/desktop/Stage.h"

namespace troth::desktop {
namespace {

namespace fs = std::filesystem;

struct Pixels {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> colors;
};

Pixels PixelsOf(HBITMAP bitmap) {
  BITMAP info{};
  GetObjectW(bitmap, sizeof info, &info);
  BITMAPINFO format{};
  format.bmiHeader.biSize = sizeof format.bmiHeader;
  format.bmiHeader.biWidth = info.bmWidth;
  format.bmiHeader.biHeight = -info.bmHeight;
  format.bmiHeader.biPlanes = 1;
  format.bmiHeader.biBitCount = 32;
  Pixels pixels{info.bmWidth, info.bmHeight, {}};
  pixels.colors.resize(static_cast<std::size_t>(info.bmWidth) * static_cast<std::size_t>(info.bmHeight));
  const UniqueSurface memory(CreateCompatibleDC(nullptr));
  GetDIBits(memory.get(), bitmap, 0, static_cast<UINT>(info.bmHeight), pixels.colors.data(), &format,
            DIB_RGB_COLORS);
  for (std::uint32_t& color : pixels.colors) color &= 0xFFFFFF;
  return pixels;
}

// What the client area of a window shows on the screen at this moment.
Pixels Shown(HWND window) {
  RECT client;
  GetClientRect(window, &client);
  const HDC source = GetDC(window);
  const UniqueSurface memory(CreateCompatibleDC(source));
  const UniqueBitmap bitmap(CreateCompatibleBitmap(source, client.right, client.bottom));
  const HGDIOBJ before = SelectObject(memory.get(), bitmap.get());
  BitBlt(memory.get(), 0, 0, client.right, client.bottom, source, 0, 0, SRCCOPY);
  SelectObject(memory.get(), before);
  ReleaseDC(window, source);
  return PixelsOf(bitmap.get());
}

class ScreenshotTest : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    StoreSetting(L"Screenshot", L"Include Label", L"0");
    UseScript("one\r\n@{SS}\r\ntwo\r\n");
  }

  // The file of that name in the folder of the only run; empty if there is none.
  static fs::path Find(const std::wstring& name) {
    std::error_code ignored;
    for (const auto& entry : fs::recursive_directory_iterator(ProgramPath(L"Screenshots"), ignored))
      if (entry.path().filename() == name) return entry.path();
    return {};
  }
  static Pixels Await(const std::wstring& name) {
    AWAIT(!Find(name).empty());
    const UniqueBitmap bitmap(static_cast<HBITMAP>(
        LoadImageW(nullptr, Find(name).c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION)));
    return PixelsOf(bitmap.get());
  }
};

TEST_F(ScreenshotTest, ShowsTheGameAndNotWhatLiesInFrontOfIt) {
  StoreSetting(L"Screenshot", L"Remove Border", L"1");
  Game game({L"--position", L"60,60", L"--size", L"700x500"});
  Troth troth;
  SetWindowPos(troth.Window(), nullptr, 100, 100, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  ASSERT_TRUE(IsTopMost(troth.Window()));
  troth.Choose(L"MScreenScresnshot");
  const Pixels picture = Await(L"TRLSS0000.bmp");
  AWAIT(IsTopMost(troth.Window()));
  EXPECT_FALSE(IsTopMost(game.Window()));
  ASSERT_TRUE(troth.Quit());
  SetForegroundWindow(game.Window());
  ASSERT_EQ(picture.width, Shown(game.Window()).width);
  // The caret blinks: sooner or later it is as it was.
  EXPECT_TRUE(Eventually([&] { return Shown(game.Window()).colors == picture.colors; }));
}

TEST_F(ScreenshotTest, PreviewComesBeforeTheFileAndKeepsTheMainWindowDown) {
  StoreSetting(L"Screenshot", L"Show Preview", L"1");
  Game game({L"--size", L"500x400"});
  RECT outer;
  GetWindowRect(game.Window(), &outer);
  Troth troth;
  troth.Choose(L"MScreenScresnshot");
  const HWND preview = troth.AwaitForm(L"frmSSPreview");
  AWAIT(!IsTopMost(game.Window()));
  EXPECT_FALSE(IsTopMost(troth.Window()));
  EXPECT_TRUE(Find(L"TRLSS0000.bmp").empty());
  const std::wstring path = TextOf(FindNamed(preview, L"lblComment"));
  RECT shown;
  GetClientRect(FindNamed(preview, L"picScreenShot"), &shown);
  EXPECT_EQ(shown.right, outer.right - outer.left);
  EXPECT_EQ(shown.bottom, outer.bottom - outer.top);
  RealHands(preview).ClickMiddle(FindNamed(preview, L"picScreenShot"));
  const Pixels picture = Await(L"TRLSS0000.bmp");
  AWAIT(IsTopMost(troth.Window()));
  EXPECT_EQ(picture.width, outer.right - outer.left) << "the whole window";
  EXPECT_EQ(picture.height, outer.bottom - outer.top);
  EXPECT_EQ(path, Find(L"TRLSS0000.bmp").wstring());
}

}  // namespace
}  // namespace troth::desktop
