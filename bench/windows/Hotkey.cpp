// From the press of the speech hotkey to the first character in the game's queue, while the game has the
// keyboard, beside a bare program that does no more than post one. Autotermination is off: its pause would be
// all of it.
#include <windows.h>

#include <filesystem>
#include <fstream>

#include "bench/windows/Listener.h"
#include "bench/windows/Measure.h"

namespace troth::bench {

namespace {

constexpr int kPresses = 201;
constexpr double kMostMs = 20;
constexpr DWORD kPatienceMs = 5000;
// Each sentence is three characters and an Enter.
constexpr char kScript[] = "one\r\ntwo\r\nsix\r\n";
constexpr int kHeardASentence = 4;

void Press(WORD keyCode) {
  INPUT inputs[2]{};
  for (INPUT& input : inputs) {
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = keyCode;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(keyCode, MAPVK_VK_TO_VSC));
  }
  inputs[1].ki.dwFlags = KEYEVENTF_KEYUP;
  SendInput(2, inputs, sizeof(INPUT));
}

double TimePress(Listener& game, WORD keyCode, int characters) {
  game.ListenAnew();
  const double pressed = NowMs();
  Press(keyCode);
  while (game.Heard() < characters)
    if (NowMs() - pressed > kPatienceMs)
      return kPatienceMs;
    else
      Sleep(1);
  return game.FirstHeardMs() - pressed;
}

}  // namespace

void MeasureHotkey() {
  const auto script = std::filesystem::temp_directory_path() / L"BenchHotkey.txt";
  std::ofstream(script, std::ios::binary) << kScript;
  StoreSetting(L"Options", L"Last Script", script.wstring());
  StoreSetting(L"Options", L"Autoterminate Pending Speech", L"0");
  StoreSetting(L"Options", L"Popup Messages", L"0");
  StoreSetting(L"Hotkey", L"Enabled", L"1");
  {
    Listener game("Kestrel Moors", true);
    const Started bare(ProgramPath(L"bare_hotkey.exe"));
    bare.WaitUntilShown();
    const Started program(ProgramPath(L"Troth.exe"));
    program.WaitUntilShown();
    Sleep(1000);  // until both have come to rest
    SetForegroundWindow(game.Window());
    std::vector<double> realMs;
    std::vector<double> bareMs;
    for (int press = 0; press < kPresses; ++press) {
      // In turns the first, which wakes the desktop up.
      if (press % 2 == 0) bareMs.push_back(TimePress(game, VK_F11, 1));
      realMs.push_back(TimePress(game, VK_F12, kHeardASentence));
      if (press % 2 != 0) bareMs.push_back(TimePress(game, VK_F11, 1));
    }
    Report("hotkey to the first character", Median(realMs), " ms", {.atMost = true, .value = kMostMs});
    Report("  in a bare program", Median(bareMs), " ms", {.atMost = true, .value = kMostMs});
    Report("  as a ratio to it", Median(realMs) / Median(bareMs), "", {.atMost = true, .value = 10});
  }
  ForgetSettings(L"Hotkey");
  std::error_code ignored;
  std::filesystem::remove(script, ignored);
}

}  // namespace troth::bench
