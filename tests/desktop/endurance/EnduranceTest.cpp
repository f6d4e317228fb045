// A ceremony that runs by itself over and over at the shortest pace. TROTH_MINUTES says for how long. Prints
// what the program holds after each round.
#include <gtest/gtest.h>

#include <windows.h>
// The list of processes needs windows.h before it.
#include <winternl.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "tests/desktop/Ceremony.h"
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
  const std::string script =
      WithoutDelays(ReadBytes(SampleScriptPath(L"Merry\\Elopement at Crow Stile.txt")));
  Words words = WordsOf(ReadBytes(ProgramPath(L"Vars.txt")));
  words["GROOM"] = words["BRIDE"] = "";
  const std::vector<SpokenRow> rows = SpokenRows(script, words);
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
    wanted += CharactersOf(rows);
    ASSERT_TRUE(Eventually([&] { return troth.Text(L"cmdSpeak") == L"&Speak"; }, rows.size() * 4000));
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

}  // namespace
}  // namespace troth::desktop
