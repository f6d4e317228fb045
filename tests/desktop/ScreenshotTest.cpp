// Pictures of the game: the file is read byte by byte here and compared with what the game shows on the
// screen.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <filesystem>

#include "tests/desktop/Patience.h"
#include "tests/desktop/Stage.h"
#include "tests/screenshots/BmpPicture.h"

namespace troth::desktop {
namespace {

namespace fs = std::filesystem;

// A colour that the game does not paint with.
constexpr std::uint32_t kLabelColor = 0xFE01FE;
// Rows of the label below its top edge, at most: the height of the system's font.
constexpr int kMostTextHeight = 40;

// What the client area of a window shows on the screen at this moment.
class Shown {
 public:
  explicit Shown(HWND window) {
    RECT client;
    GetClientRect(window, &client);
    width = client.right;
    height = client.bottom;
    const HDC source = GetDC(window);
    const UniqueSurface memory(CreateCompatibleDC(source));
    const UniqueBitmap bitmap(CreateCompatibleBitmap(source, width, height));
    const HGDIOBJ before = SelectObject(memory.get(), bitmap.get());
    BitBlt(memory.get(), 0, 0, width, height, source, 0, 0, SRCCOPY);
    SelectObject(memory.get(), before);
    BITMAPINFO format{};
    format.bmiHeader.biSize = sizeof format.bmiHeader;
    format.bmiHeader.biWidth = width;
    format.bmiHeader.biHeight = -height;
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    pixels_.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    GetDIBits(memory.get(), bitmap.get(), 0, static_cast<UINT>(height), pixels_.data(), &format,
              DIB_RGB_COLORS);
    ReleaseDC(window, source);
  }
  // 0x00BBGGRR.
  std::uint32_t At(int left, int top) const {
    const std::uint32_t rgb = pixels_[static_cast<std::size_t>(top * width + left)];
    return (rgb & 0xFF) << 16 | (rgb & 0xFF00) | (rgb >> 16 & 0xFF);
  }

  int width = 0;
  int height = 0;

 private:
  std::vector<std::uint32_t> pixels_;
};

class ScreenshotTest : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    StoreSetting(L"Screenshot", L"Include Label", L"0");
    StoreSetting(L"Screenshot", L"Text Color", std::to_wstring(kLabelColor));
    UseScript("one\r\n@{SS}\r\ntwo\r\n");
  }

  // The file of that name in the folder of the only run; empty if there is none.
  static fs::path Find(const std::wstring& name) {
    std::error_code ignored;
    for (const auto& entry : fs::recursive_directory_iterator(ProgramPath(L"Screenshots"), ignored))
      if (entry.path().filename() == name) return entry.path();
    return {};
  }
  static BmpPicture Await(const std::wstring& name) {
    AWAIT(!Find(name).empty());
    return BmpPicture(ReadBytes(Find(name).wstring()));
  }

  // Pixels in which the picture differs from what the game shows, as the rectangle around them.
  static RECT Difference(const BmpPicture& picture, const Shown& shown) {
    RECT around{INT_MAX, INT_MAX, -1, -1};
    for (int y = 0; y < shown.height; ++y)
      for (int x = 0; x < shown.width; ++x) {
        if (picture.At(x, y) == shown.At(x, y)) continue;
        around = {std::min<LONG>(around.left, x), std::min<LONG>(around.top, y),
                  std::max<LONG>(around.right, x), std::max<LONG>(around.bottom, y)};
      }
    return around;
  }
};

TEST_F(ScreenshotTest, ShowsTheGameAndNotWhatLiesInFrontOfIt) {
  StoreSetting(L"Screenshot", L"Remove Border", L"1");
  Game game({L"--position", L"60,60", L"--size", L"700x500"});
  Troth troth;
  SetWindowPos(troth.Window(), nullptr, 100, 100, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  ASSERT_TRUE(IsTopMost(troth.Window()));
  troth.Choose(L"MScreenScresnshot");
  const BmpPicture picture = Await(L"TRLSS0000.bmp");
  AWAIT(IsTopMost(troth.Window()));
  EXPECT_FALSE(IsTopMost(game.Window()));
  ASSERT_TRUE(troth.Quit());
  SetForegroundWindow(game.Window());
  const Shown now(game.Window());
  ASSERT_EQ(picture.width, now.width);
  ASSERT_EQ(picture.height, now.height);
  // The caret blinks: sooner or later it is as it was.
  EXPECT_TRUE(Eventually([&] { return Difference(picture, Shown(game.Window())).right < 0; }));
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
  const BmpPicture picture = Await(L"TRLSS0000.bmp");
  AWAIT(IsTopMost(troth.Window()));
  EXPECT_EQ(picture.width, outer.right - outer.left) << "the whole window";
  EXPECT_EQ(picture.height, outer.bottom - outer.top);
  EXPECT_EQ(path, Find(L"TRLSS0000.bmp").wstring());
}

TEST_F(ScreenshotTest, HotkeyAndDirectiveTakeAMinimisedGameOutOfTheTaskBar) {
  StoreSetting(L"Screenshot", L"Hotkey Enabled", L"1");
  StoreSetting(L"Screenshot", L"Base FileName", L"Us");
  Game game;
  Troth troth;
  RealHands(game.Window()).Press(VK_F12);
  const BmpPicture usual = Await(L"Us0000.bmp");
  ShowWindow(game.Window(), SW_MINIMIZE);
  AWAIT(IsIconic(game.Window()));
  troth.Speak();
  const BmpPicture restored = Await(L"Us0001.bmp");
  EXPECT_EQ(restored.width, usual.width);
  EXPECT_EQ(restored.height, usual.height);
}

}  // namespace
}  // namespace troth::desktop
