// A ceremony that runs by itself, from the dialog to its end.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/desktop/Ceremony.h"
#include "tests/desktop/Patience.h"
#include "tests/desktop/Stage.h"

namespace troth::desktop {
namespace {

constexpr ULONGLONG kTickMs = 200;

class UnattendedTest : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    StoreSetting(L"Options", L"Speech Interval", L"2000");
    StoreSetting(L"Options", L"Autoterminate Pending Speech", L"0");
    StoreSetting(L"Options", L"Popup Messages", L"0");
  }
};

// When each line was heard; ends with as many lines as are wanted.
std::vector<ULONGLONG> ListenTo(const Game& game, std::size_t lines) {
  std::vector<ULONGLONG> heardAt;
  const auto listen = [&] {
    const std::string bytes = game.HeardSoFar().bytes;
    const auto count = static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\r'));
    heardAt.resize(std::max(heardAt.size(), count), GetTickCount64());
    return heardAt.size() >= lines;
  };
  while (heardAt.size() < lines) {
    const std::size_t before = heardAt.size();
    if (!Eventually([&] { return listen() || heardAt.size() > before; })) break;
  }
  return heardAt;
}

TEST_F(UnattendedTest, SpeaksAWholeSampleCeremonyWithItsPauses) {
  const std::wstring path = SampleScriptPath(L"Merry\\Elopement at Crow Stile.txt");
  Words words = WordsOf(ReadBytes(ProgramPath(L"Vars.txt")));
  words["GROOM"] = "Bram";
  words["BRIDE"] = "Anna";
  const std::vector<SpokenRow> rows = SpokenRows(ReadBytes(path), words);
  ASSERT_GT(rows.size(), 50u);
  UseScriptPath(path);
  Game game;
  Troth troth;
  const RealHands hands = troth.Hands();
  hands.Press('G', kWithAlt);
  AWAIT_EQ(L"txtGroom", troth.Focus());
  hands.Type("Bram");
  hands.Press('B', kWithAlt);
  AWAIT_EQ(L"txtBride", troth.Focus());
  hands.Type("Anna");
  hands.Press(VK_TAB);
  AWAIT_EQ(L"txtFile", troth.Focus());

  troth.Choose(L"MOptionsUnattanded");
  AWAIT(troth.Running().FindForm(L"frmMacro"));
  const ULONGLONG startedAt = GetTickCount64();
  ClickButton(FindNamed(troth.Running().FindForm(L"frmMacro"), L"cdmOk"));
  AWAIT_EQ(L"&Stop", troth.Text(L"cmdSpeak"));
  const std::string wanted = CharactersOf(rows);
  const auto lines = static_cast<std::size_t>(std::count(wanted.begin(), wanted.end(), '\r'));
  const std::vector<ULONGLONG> heardAt = ListenTo(game, lines);
  AWAIT_EQ(L"&Speak", troth.Text(L"cmdSpeak"));
  EXPECT_EQ(game.HeardToTheEnd().bytes, wanted);
  ASSERT_EQ(heardAt.size(), lines);
  // Counted from the start of the run, where a line that is heard late makes none of the others early. An
  // Enter of its own precedes a command.
  ULONGLONG due = startedAt;
  std::size_t line = 0;
  for (const SpokenRow& row : rows) {
    if (row.text[0] == '/') ++line;
    due += static_cast<ULONGLONG>(std::max(2000, row.delayMs));
    EXPECT_GE(heardAt[line++] + kTickMs, due) << row.text;
  }
}

TEST_F(UnattendedTest, TheSpeechHotkeyStopsItAndTheNextPressSpeaks) {
  StoreSetting(L"Hotkey", L"Enabled", L"1");
  UseScript("one\r\ntwo\r\nthree\r\n");
  Game game;
  Troth troth;
  troth.Choose(L"MOptionsUnattanded");
  AWAIT(troth.Running().FindForm(L"frmMacro"));
  ClickButton(FindNamed(troth.Running().FindForm(L"frmMacro"), L"cdmOk"));
  AWAIT_EQ("one\r", game.HeardSoFar().bytes);
  const RealHands hands(game.Window());
  hands.Press(VK_F12);
  AWAIT_EQ(L"&Speak", troth.Text(L"cmdSpeak"));
  EXPECT_TRUE(troth.Enabled(L"txtNext"));
  hands.Press(VK_F12);
  AWAIT_EQ("one\rtwo\r", game.HeardSoFar().bytes);
}

}  // namespace
}  // namespace troth::desktop
