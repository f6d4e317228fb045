// Pictures of a window of another program.
#include "platform/services/GraphicsService.h"

#include "platform/services/BmpFile.h"
#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

constexpr wchar_t kClass[] = L"TrothlineConformanceGame";

class Graphics : public ConformanceTest {
 protected:
  std::unique_ptr<CaptureSurface> Start(CaptureArea area, PixelSize size) {
    return platform.graphics.StartCapture(platform.windows.Find(kClass), area, size);
  }
};

TEST_F(Graphics, PictureHasTheSizeThatWasAskedForAndBecomesAFile) {
  desktop->OpenForeignWindow(kClass);
  for (const CaptureArea area : {CaptureArea::WholeWindow, CaptureArea::ClientArea}) {
    const auto surface = Start(area, {121, 40});
    ASSERT_TRUE(surface);
    surface->CopyPixels({});
    EXPECT_EQ(surface->PaletteSize(), 0);
    EXPECT_GT(surface->TextHeight(L"Label"), 5);
    surface->PrintLine(L"Label", {5, 5, 100, 30}, TextSide::Left, 255);
    const auto bitmap = surface->CreateBitmapPicture();
    EXPECT_EQ(bitmap->Size(), (PixelSize{121, 40}));
    const auto file = BmpFile(*bitmap);
    ASSERT_TRUE(file);
    EXPECT_EQ(file->size(), 54u + 364 * 40);
  }
}

TEST_F(Graphics, LineIsCutOffAtItsPlaceAndLeavesTheGroundBetweenItsLetters) {
  desktop->OpenForeignWindow(kClass);
  const std::wstring text(40, L'H');
  for (const TextSide side : {TextSide::Left, TextSide::Right}) {
    const auto surface = Start(CaptureArea::ClientArea, {100, 40});
    ASSERT_TRUE(surface);
    surface->PrintLine(text, {20, 8, 60, 8 + surface->TextHeight(text)}, side, 0x0000FF);
    std::vector<char> rows(100 * 3 * 40);
    ASSERT_TRUE(surface->CreateBitmapPicture()->ReadRows(rows));
    int inside = 0;
    for (int row = 0; row < 40; ++row)
      for (int left = 0; left < 100; ++left) {
        const bool isRed =
            static_cast<unsigned char>(rows[static_cast<std::size_t>((39 - row) * 300 + left * 3 + 2)]) != 0;
        const bool isPlace = left >= 20 && left < 60 && row >= 8;
        EXPECT_TRUE(!isRed || isPlace) << left << ' ' << row;
        inside += isRed;
      }
    EXPECT_GT(inside, 50);
    EXPECT_LT(inside, 40 * 20) << "nothing is drawn between the letters";
  }
}

TEST_F(Graphics, ThereIsNoPictureOfNothing) {
  const int window = desktop->OpenForeignWindow(kClass);
  EXPECT_FALSE(Start(CaptureArea::WholeWindow, {0, 10}));
  EXPECT_FALSE(Start(CaptureArea::WholeWindow, {10, -1}));
  EXPECT_FALSE(platform.graphics.StartCapture(WindowHandle::None, CaptureArea::ClientArea, {10, 10}));
  const WindowHandle handle = platform.windows.Find(kClass);
  desktop->CloseForeignWindow(window);
  EXPECT_FALSE(platform.graphics.StartCapture(handle, CaptureArea::ClientArea, {10, 10}));
}

}  // namespace
}  // namespace troth
