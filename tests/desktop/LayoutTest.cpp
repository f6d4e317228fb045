// The shapes of the main window, as another program and the mouse see them.
#include <gtest/gtest.h>

#include "tests/desktop/Patience.h"
#include "tests/desktop/Stage.h"

namespace troth::desktop {
namespace {

class LayoutTest : public DesktopTest {
 protected:
  static constexpr LONG kTitleBar = 0xCB0000;

  void SetUp() override {
    DesktopTest::SetUp();
    StoreSetting(L"Options", L"Index Visible", L"0");
    StoreSetting(L"Options", L"X Position", L"1500");
    StoreSetting(L"Options", L"Y Position", L"1500");
  }

  static LONG FrameBits(HWND window) { return GetWindowLongW(window, GWL_STYLE) & kTitleBar; }
  static bool HasSize(HWND window, SIZE size) {
    const SIZE present = SizeOf(window);
    return present.cx == size.cx && present.cy == size.cy;
  }
  // A point of the Tiny window's ground, left of the Speak button.
  static POINT Ground(HWND window) { return {CornerOf(window).x + 5, CornerOf(window).y + 30}; }
  static SIZE TinySize() {
    const int dpi = static_cast<int>(GetDpiForSystem());
    return {MulDiv(3015, dpi, 1440), MulDiv(1140, dpi, 1440)};
  }
};

TEST_F(LayoutTest, TheTinyWindowIsTheSameWindowWithoutItsFrame) {
  StoreSetting(L"Hotkey", L"Enabled", L"1");
  UseScript("one\r\ntwo\r\n");
  Game game({L"--position", L"500,100"});
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  const HWND window = troth.Window();
  const SIZE normal = SizeOf(window);
  const LONG bits = FrameBits(window);
  EXPECT_EQ(bits, 0xCA0000) << "a title, a system menu and a minimise button";

  troth.Choose(L"MOptionsTiny");
  AWAIT(HasSize(window, TinySize()));
  EXPECT_EQ(FrameBits(window), 0);
  EXPECT_EQ(TextOf(window), L"");
  EXPECT_TRUE(troth.Visible(L"txtNext"));
  EXPECT_FALSE(troth.Visible(L"lstWedding"));
  RealHands(game.Window()).Press(VK_F12);
  AWAIT_EQ("one\r", game.HeardSoFar().bytes);

  RealHands(window).RightClickMiddle(troth.Control(L"cmdSpeak"));
  AWAIT(FindWindowW(L"#32768", nullptr));
  RealHands(window).Press('R');
  AWAIT(HasSize(window, normal));
  EXPECT_EQ(FrameBits(window), bits);
  EXPECT_EQ(TextOf(window), L"Trothline");
  EXPECT_TRUE(troth.Visible(L"lstWedding"));

  troth.Choose(L"MOptionsTiny");
  AWAIT(HasSize(window, TinySize()));
  RealHands(window).Click(Ground(window), 2);
  AWAIT(HasSize(window, normal));
}

}  // namespace
}  // namespace troth::desktop
