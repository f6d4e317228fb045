// What a thousand pictures leave behind in the process: nothing.
#include <windows.h>
// The counters of memory need windows.h before them.
#include <psapi.h>

#include "platform/services/BmpFile.h"
#include "platform/services/GraphicsService.h"
#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

constexpr wchar_t kClass[] = L"TrothlineConformanceGame";
constexpr int kCaptures = 1000;
constexpr SIZE_T kMegabyte = 1024 * 1024;

struct Holdings {
  DWORD handles = 0;
  DWORD gdiObjects = 0;
  SIZE_T bytes = 0;
};

Holdings Held() {
  Holdings held;
  GetProcessHandleCount(GetCurrentProcess(), &held.handles);
  held.gdiObjects = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
  PROCESS_MEMORY_COUNTERS memory{};
  memory.cb = sizeof memory;
  GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
  held.bytes = memory.PagefileUsage;
  return held;
}

class CaptureLeak : public ConformanceTest {};

TEST_F(CaptureLeak, ThousandCapturesLeaveNothingBehind) {
  desktop->OpenForeignWindow(kClass);
  const WindowHandle window = platform.windows.Find(kClass);
  const auto capture = [&] {
    const auto surface = platform.graphics.StartCapture(window, CaptureArea::WholeWindow, {300, 200});
    surface->CopyPixels({});
    surface->PrintLine(L"Alan and Beth", {5, 25, 290, 45}, TextSide::Left, 65535);
    return BmpFile(*surface->CreateBitmapPicture()).has_value();
  };
  for (int warmUp = 0; warmUp < 50; ++warmUp) ASSERT_TRUE(capture());
  const Holdings before = Held();
  for (int count = 0; count < kCaptures; ++count) ASSERT_TRUE(capture());
  const Holdings after = Held();
  EXPECT_LE(after.handles, before.handles);
  EXPECT_LE(after.gdiObjects, before.gdiObjects);
  EXPECT_LE(after.bytes, before.bytes + 2 * kMegabyte)
      << "a single picture that stays each time would be 170 MB";
}

}  // namespace
}  // namespace troth
