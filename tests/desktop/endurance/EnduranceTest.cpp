// What takes too long for every run of the tests: a ceremony that runs by itself over and over at the
// shortest pace (TROTH_MINUTES says for how long; what the program holds is printed after each round), a
// million characters to a game with every trouble, and a program that is killed while it saves.
#include <gtest/gtest.h>

#include <windows.h>
// The list of processes needs windows.h before it.
#include <winternl.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

#include "tests/desktop/Patience.h"
#include "tests/desktop/Stage.h"

namespace troth::desktop {
namespace {

struct Holdings {
  double residentMB = 0;
  unsigned handles = 0;
  int windows = 0;
};

// The system's list of processes is the one place that tells both figures of another process under Wine, too.
Holdings HoldingsOf(const Process& process) {
  std::vector<std::byte> list(1 << 20);
  ULONG needed = 0;
  Holdings held;
  if (NtQuerySystemInformation(SystemProcessInformation, list.data(), static_cast<ULONG>(list.size()),
                               &needed) != 0)
    return held;
  for (const std::byte* at = list.data();;) {
    const auto& entry = *reinterpret_cast<const SYSTEM_PROCESS_INFORMATION*>(at);
    if (reinterpret_cast<ULONG_PTR>(entry.UniqueProcessId) == process.Id()) {
      held.residentMB = static_cast<double>(entry.VirtualMemoryCounters.WorkingSetSize) / (1024 * 1024);
      held.handles = entry.HandleCount;
    }
    if (entry.NextEntryOffset == 0) break;
    at += entry.NextEntryOffset;
  }
  for (const HWND window : process.Windows()) {
    ++held.windows;
    EnumChildWindows(
        window,
        [](HWND, LPARAM count) -> BOOL {
          ++*reinterpret_cast<int*>(count);
          return TRUE;
        },
        reinterpret_cast<LPARAM>(&held.windows));
  }
  return held;
}

class Endurance : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    StoreSetting(L"Options", L"Speech Interval", L"2000");
    StoreSetting(L"Options", L"Autoterminate Pending Speech", L"0");
    StoreSetting(L"Options", L"Popup Messages", L"0");
  }
};

TEST_F(Endurance, NothingGrowsAndNoCharacterIsLostOrDoubled) {
  const char* told = std::getenv("TROTH_MINUTES");
  const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(told ? std::atoi(told) : 10) * 60000;
  constexpr std::size_t kRows = 60;
  std::string script, oneRound;
  for (std::size_t row = 1; row <= kRows; ++row) {
    const std::string text = "What is said in row " + std::to_string(row) + " of the ceremony.";
    script += (row % 5 ? "" : "@ note\r\n") + text + "\r\n";
    oneRound += text + '\r';
  }
  UseScript(script);
  Game game;
  Troth troth;
  troth.Window();
  std::string wanted;
  std::vector<Holdings> rounds;
  while (rounds.empty() || GetTickCount64() < end) {
    troth.Choose(L"MOptionsUnattanded");
    AWAIT(troth.Running().FindForm(L"frmMacro"));
    ClickButton(FindNamed(troth.Running().FindForm(L"frmMacro"), L"cdmOk"));
    AWAIT_EQ(L"&Stop", troth.Text(L"cmdSpeak"));
    wanted += oneRound;
    ASSERT_TRUE(Eventually([&] { return troth.Text(L"cmdSpeak") == L"&Speak"; }, kRows * 4000));
    AWAIT_EQ(wanted.size(), game.HeardSoFar().bytes.size());
    rounds.push_back(HoldingsOf(troth.Running()));
    const Holdings& held = rounds.back();
    std::printf("round %2u: %6.2f MB, %u handles, %d windows\n", static_cast<unsigned>(rounds.size()),
                held.residentMB, held.handles, held.windows);
    std::fflush(stdout);
    ASSERT_TRUE(held.residentMB > 0 && held.handles > 0 && held.windows > 0) << "nothing was measured";
  }
  EXPECT_EQ(game.HeardToTheEnd().bytes, wanted);
  // The first round fills caches.
  if (rounds.size() < 3) return;
  EXPECT_LE(rounds.back().residentMB, rounds[1].residentMB + 0.5);
  EXPECT_LE(rounds.back().handles, rounds[1].handles);
  EXPECT_LE(rounds.back().windows, rounds[1].windows);
}

// 500 rows of 2000 characters, of which the last is the Enter. Each row differs from the others at many
// places.
std::vector<std::string> LongSentences() {
  constexpr int kRows = 500;
  constexpr std::size_t kCharacters = 1999;
  std::vector<std::string> rows;
  for (int row = 1; row <= kRows; ++row) {
    std::string& text = rows.emplace_back();
    for (int word = 0; text.size() < kCharacters; ++word)
      text += std::to_string(row) + '.' + std::to_string(word) + ' ';
    text.resize(kCharacters, '.');
    text.back() = '.';
  }
  return rows;
}

class MillionCharacters : public DesktopTest {
 protected:
  // Speaks the rows one after the other; returns what the game has to receive.
  static std::string Speak(Troth& troth, const std::vector<std::string>& rows, std::size_t from,
                           std::size_t to) {
    std::string wanted;
    for (std::size_t row = from; row < to; ++row) {
      troth.Speak();
      wanted += rows[row] + '\r';
      AWAIT_EQ(static_cast<int>(row) + 1, troth.List().Index());
    }
    return wanted;
  }

  // Reads seldom: the game needs the processor.
  static void ExpectAllOf(Game& game, const std::string& wanted) {
    constexpr ULONGLONG kHour = 3600000;
    const auto hasAll = [&] {
      Sleep(3000);
      return game.HeardSoFar().bytes.size() >= wanted.size();
    };
    ASSERT_TRUE(Eventually(hasAll, kHour));
    EXPECT_TRUE(game.HeardToTheEnd().bytes == wanted) << "characters are lost, doubled or out of order";
  }
};

TEST_F(MillionCharacters, ReachAGameThatIsSlowStallsAndIsReopenedHalfWay) {
  const std::vector<std::string> rows = LongSentences();
  std::string script;
  for (const std::string& row : rows) script += row + "\r\n";
  UseScript(script + "the end\r\n");
  StoreSetting(L"Options", L"Autoterminate Pending Speech", L"0");
  const std::size_t half = rows.size() / 2;
  Troth troth;
  troth.Window();
  {
    Game slow({L"--slow", L"1", L"--stall-after", L"100000", L"--stall-ms", L"30000"});
    ExpectAllOf(slow, Speak(troth, rows, 0, half));
  }
  Game reopened;
  ExpectAllOf(reopened, Speak(troth, rows, half, rows.size()));
  EXPECT_TRUE(troth.Quit());
}

class KilledSave : public DesktopTest {
 protected:
  // Opens the program, gives the variable "ring" its new value and presses OK, which saves all variables.
  static void StartSaving(Troth& troth) {
    troth.Window();
    troth.Choose(L"MOptionsDefine");
    const HWND form = troth.AwaitForm(L"frmVars");
    const HWND value = FindNamed(form, L"txtVal");
    RealHands(form).Press(VK_DOWN, 0, 2);
    AWAIT_EQ(L"old", TextOf(value));
    Ask(value, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"new"));
    ClickButton(FindNamed(form, L"cmdOK"));
  }
};

TEST_F(KilledSave, LeavesTheOldOrTheNewFile) {
  constexpr int kKills = 200;
  std::string rest;
  for (int variable = 0; variable < 400; ++variable)
    rest += "guest" + std::to_string(variable) + '=' + std::string(400, 'x') + "\r\n";
  const std::string before = "ring=old\r\n" + rest, after = "ring=new\r\n" + rest;
  const ProgramFile file(L"Vars.txt", before);
  DWORD longestMs = 0;
  {
    Troth troth;
    StartSaving(troth);
    const ULONGLONG pressed = GetTickCount64();
    AWAIT(file.Bytes() == after);
    longestMs = 2 * static_cast<DWORD>(GetTickCount64() - pressed);
  }
  std::mt19937 random(20010615);
  int kept = 0, replaced = 0;
  for (int kill = 0; kill < kKills; ++kill) {
    WriteBytes(ProgramPath(L"Vars.txt"), before);
    Troth troth;
    StartSaving(troth);
    Sleep(std::uniform_int_distribution<DWORD>(0, longestMs)(random));
    TerminateProcess(troth.Running().Handle(), 1);
    ASSERT_EQ(troth.Running().ExitCode(), 1u);
    const std::string left = file.Bytes();
    ASSERT_TRUE(left == before || left == after) << "kill " << kill << " left " << left.size() << " bytes";
    ++(left == before ? kept : replaced);
  }
  std::printf("%d kills up to %u ms after OK left the old file, %d the new one\n", kept,
              static_cast<unsigned>(longestMs), replaced);
  EXPECT_GT(kept, 0);
  EXPECT_GT(replaced, 0);
}

}  // namespace
}  // namespace troth::desktop
