// A press of a bar button to the first character in the game's queue, beside a press of Speak; and what both
// bars cost at the start.
#include <windows.h>

#include <filesystem>
#include <fstream>

#include "bench/windows/Listener.h"
#include "bench/windows/Measure.h"

namespace troth::bench {

namespace {

constexpr int kPresses = 101;
constexpr int kStarts = 21;
constexpr double kMostRatio = 1.2;
constexpr double kMostStartMs = 60;
constexpr double kPatienceMs = 5000;
// Each sentence is three characters and an Enter; so is the text of the bar's first button.
constexpr char kScript[] = "one\r\ntwo\r\nsix\r\n";
constexpr wchar_t kButtonText[] = L"hey";
constexpr int kLeastHeard = 4;

BOOL CALLBACK IsButton(HWND window, LPARAM found) {
  auto& [text, button] = *reinterpret_cast<std::pair<std::wstring, HWND>*>(found);
  wchar_t own[64] = {};
  GetWindowTextW(window, own, static_cast<int>(std::size(own)));
  if (own != text) return TRUE;
  button = window;
  return FALSE;
}

// A button anywhere on the desktop.
HWND FindButton(const std::wstring& text) {
  std::pair<std::wstring, HWND> search{text, nullptr};
  EnumWindows(
      [](HWND window, LPARAM found) -> BOOL {
        EnumChildWindows(window, &IsButton, found);
        return reinterpret_cast<std::pair<std::wstring, HWND>*>(found)->second == nullptr;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.second;
}

double TimePress(Listener& game, HWND button) {
  game.ListenAnew();
  const double pressed = NowMs();
  PostMessageW(button, BM_CLICK, 0, 0);
  while (game.Heard() < kLeastHeard && NowMs() - pressed < kPatienceMs) Sleep(1);
  Sleep(5);  // the bar appends a blank
  return game.FirstHeardMs() - pressed;
}

void MeasurePress() {
  Listener game("Kestrel Moors", true);
  const Started program(ProgramPath(L"Troth.exe"));
  program.WaitUntilShown();
  Sleep(1000);  // until it has come to rest
  const HWND speak = FindButton(L"&Speak");
  const HWND bar = FindButton(kButtonText);
  std::vector<double> speakMs;
  std::vector<double> barMs;
  for (int press = 0; press < kPresses; ++press) {
    speakMs.push_back(TimePress(game, speak));
    barMs.push_back(TimePress(game, bar));
  }
  Report("button of the bar to the first character", Median(barMs), " ms", {.atMost = true, .value = 20});
  Report("  as a ratio to Speak", Median(barMs) / Median(speakMs), "", {.atMost = true, .value = kMostRatio});
}

double TimeStart() {
  const double start = NowMs();
  const Started program(ProgramPath(L"Troth.exe"));
  program.WaitUntilIdle();
  return NowMs() - start;
}

void ShowBars(bool areShown) {
  for (const wchar_t* bar : {L"Button Bar", L"Gesture Bar"})
    StoreSetting(bar, L"Visible", areShown ? L"-1" : L"0");
}

void MeasureStart() {
  std::vector<double> withMs;
  std::vector<double> withoutMs;
  for (int start = 0; start < kStarts; ++start) {
    ShowBars(false);
    withoutMs.push_back(TimeStart());
    ShowBars(true);
    withMs.push_back(TimeStart());
  }
  Report("start with both bars, more than without", Median(withMs) - Median(withoutMs), " ms",
         {.atMost = true, .value = kMostStartMs});
}

}  // namespace

void MeasureBars() {
  const auto script = std::filesystem::temp_directory_path() / L"BenchBars.txt";
  std::ofstream(script, std::ios::binary) << kScript;
  StoreSetting(L"Options", L"Last Script", script.wstring());
  StoreSetting(L"Options", L"Autoterminate Pending Speech", L"0");
  StoreSetting(L"Options", L"Popup Messages", L"0");
  StoreSetting(L"Button Bar", L"Button 0", kButtonText);
  ShowBars(true);
  MeasurePress();
  MeasureStart();
  for (const wchar_t* bar : {L"Button Bar", L"Gesture Bar"}) ForgetSettings(bar);
  std::error_code ignored;
  std::filesystem::remove(script, ignored);
}

}  // namespace troth::bench
