// A ceremony that runs by itself over and over at the shortest pace. TROTH_MINUTES says for how long. Prints
// what the program holds after each round.
#include <gtest/gtest.h>

#include <windows.h>
// The process's memory needs windows.h ahead of it.
#include <psapi.h>

#include <cstdio>
#include <cstdlib>
#include <vector>

#include "tests/desktop/Ceremony.h"
#include "tests/desktop/Patience.h"
#include "tests/desktop/Stage.h"

namespace troth::desktop {
namespace {

struct Holdings {
  double privateMB = 0;
  DWORD handles = 0;
  DWORD drawingObjects = 0;
  DWORD windowObjects = 0;
};

Holdings HoldingsOf(HANDLE process) {
  PROCESS_MEMORY_COUNTERS_EX memory{};
  K32GetProcessMemoryInfo(process, reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory), sizeof memory);
  Holdings held;
  held.privateMB = static_cast<double>(memory.PrivateUsage) / (1024 * 1024);
  GetProcessHandleCount(process, &held.handles);
  held.drawingObjects = GetGuiResources(process, GR_GDIOBJECTS);
  held.windowObjects = GetGuiResources(process, GR_USEROBJECTS);
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
    rounds.push_back(HoldingsOf(troth.Running().Handle()));
    const Holdings& held = rounds.back();
    std::printf("round %2u: %6.2f MB, %lu handles, %lu drawing objects, %lu window objects\n",
                static_cast<unsigned>(rounds.size()), held.privateMB, held.handles, held.drawingObjects,
                held.windowObjects);
    std::fflush(stdout);
  }
  EXPECT_EQ(game.HeardToTheEnd().bytes, wanted);
  // The first round fills caches.
  if (rounds.size() < 3) return;
  EXPECT_LE(rounds.back().privateMB, rounds[1].privateMB + 0.5);
  EXPECT_LE(rounds.back().handles, rounds[1].handles);
  EXPECT_LE(rounds.back().drawingObjects, rounds[1].drawingObjects);
  EXPECT_LE(rounds.back().windowObjects, rounds[1].windowObjects);
}

}  // namespace
}  // namespace troth::desktop
