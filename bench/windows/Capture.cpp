// A picture of a large window with its label, and its file, beside the least that anybody has to do: a copy
// of the same pixels and a file of the same bytes.
#include <windows.h>

#include <cstdio>
#include <cstdlib>

#include "bench/windows/Measure.h"
#include "platform/services/BmpFile.h"
#include "platform/win32/Win32Desktop.h"

namespace troth::bench {

namespace {

constexpr PixelSize kSize{1920, 1080};
constexpr int kTurns = 15;
constexpr double kMostRatio = 3;

UniqueWindow OpenWindow() {
  WNDCLASSW plain{};
  plain.lpfnWndProc = &DefWindowProcW;
  plain.hInstance = GetModuleHandleW(nullptr);
  plain.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
  plain.lpszClassName = L"CaptureBenchWindow";
  RegisterClassW(&plain);
  UniqueWindow window(CreateWindowExW(WS_EX_TOPMOST, plain.lpszClassName, L"", WS_POPUP | WS_VISIBLE, 0, 0,
                                      kSize.width, kSize.height, nullptr, nullptr, plain.hInstance, nullptr));
  UpdateWindow(window.get());
  return window;
}

std::wstring ScratchFile(const wchar_t* name) {
  wchar_t folder[MAX_PATH + 1] = L"";
  GetTempPathW(MAX_PATH, folder);
  return std::wstring(folder) + name;
}

double TimeBare(HWND window, const std::string& bytes, const std::wstring& path) {
  const double start = NowMs();
  const HDC source = GetDC(window);
  const UniqueSurface memory(CreateCompatibleDC(source));
  const UniqueBitmap bitmap(CreateCompatibleBitmap(source, kSize.width, kSize.height));
  const HGDIOBJ before = SelectObject(memory.get(), bitmap.get());
  BitBlt(memory.get(), 0, 0, kSize.width, kSize.height, source, 0, 0, SRCCOPY);
  SelectObject(memory.get(), before);
  ReleaseDC(window, source);
  GdiFlush();
  const UniqueFile file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
  DWORD written = 0;
  WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
  FlushFileBuffers(file.get());
  return NowMs() - start;
}

double TimeReal(const Platform& platform, HWND window, const std::wstring& path) {
  const double start = NowMs();
  const auto surface = platform.graphics.StartCapture(
      static_cast<WindowHandle>(reinterpret_cast<ULONG_PTR>(window)), CaptureArea::ClientArea, kSize);
  surface->CopyPixels({});
  surface->PrintLine(L"Alan and Beth - Friday, June 15, 2001 - 9:05:03 PM", {5, 5, kSize.width - 10, 30},
                     TextSide::Left, 65535);
  const auto bytes = BmpFile(*surface->CreateBitmapPicture());
  if (!bytes || !platform.files.Write(path, *bytes)) {
    std::fprintf(stderr, "the picture cannot be written\n");
    std::exit(EXIT_FAILURE);
  }
  return NowMs() - start;
}

}  // namespace

void MeasureCapture() {
  Win32Desktop desktop;
  const UniqueWindow window = OpenWindow();
  const std::wstring bareFile = ScratchFile(L"capture_bench_bare.bmp");
  const std::wstring realFile = ScratchFile(L"capture_bench_real.bmp");
  const std::string bytes(54 + static_cast<std::size_t>(kSize.width) * kSize.height * 3, 'x');
  std::vector<double> realMs;
  std::vector<double> bareMs;
  for (int turn = 0; turn < kTurns; ++turn) {
    desktop.platform.time.Pump();
    bareMs.push_back(TimeBare(window.get(), bytes, bareFile));
    realMs.push_back(TimeReal(desktop.platform, window.get(), realFile));
  }
  for (const std::wstring& file : {bareFile, realFile}) DeleteFileW(file.c_str());
  Report("picture of 1920 x 1080 with label and file", Median(realMs), " ms", {.atMost = true, .value = 500});
  Report("  as a ratio to a bare copy and write", Median(realMs) / Median(bareMs), "",
         {.atMost = true, .value = kMostRatio});
}

}  // namespace troth::bench
