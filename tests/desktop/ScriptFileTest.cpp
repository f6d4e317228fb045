// Script files of every kind, brought up by the shipped program.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/desktop/Patience.h"
#include "tests/desktop/Stage.h"

namespace troth::desktop {
namespace {

constexpr int kMostRows = 32767;

class ScriptFileTest : public DesktopTest {
 protected:
  static std::string NumberedRows(int count) {
    std::string rows;
    for (int row = 1; row <= count; ++row)
      rows += (row % 2 ? "row " : "@ note ") + std::to_string(row) + "\r\n";
    return rows;
  }

  static void ExpectNoScript(Troth& troth) {
    EXPECT_EQ(troth.List().Count(), 0);
    EXPECT_FALSE(troth.Enabled(L"cmdSpeak"));
    EXPECT_EQ(troth.Text(L"txtNext"), L"");
  }
};

TEST_F(ScriptFileTest, RunsWithoutAScript) {
  Troth troth;
  ExpectNoScript(troth);
  EXPECT_EQ(troth.Text(L"txtFile"), L"");
}

TEST_F(ScriptFileTest, RunsWithoutAScriptWhereThereIsNoSuchFile) {
  const std::wstring folder = ScratchPath(L"Folder.txt");
  std::filesystem::create_directories(folder);
  for (const std::wstring& path :
       {ScratchPath(L"Gone.txt"), folder, folder + L"\\", std::wstring(L"?:*.txt")}) {
    UseScriptPath(path);
    Troth troth;
    ExpectNoScript(troth);
    EXPECT_EQ(troth.Text(L"txtFile"), L"") << testing::PrintToString(path);
  }
}

TEST_F(ScriptFileTest, ShowsTheRowsOfAScriptWithTheirTicks) {
  UseScript("   hello   \r\n@ note\r\n\r\n$3000$, later\r\n& popup\r\nlone\nfeed\r\n", L"Vows and more.TXT");
  Troth troth;
  EXPECT_EQ(troth.Text(L"txtFile"), L"Vows and more");
  EXPECT_EQ(troth.Text(L"txtNext"), L"hello");
  EXPECT_TRUE(troth.Enabled(L"cmdSpeak"));
  const ForeignList list = troth.List();
  constexpr std::pair<const wchar_t*, bool> kShown[] = {
      {L"hello", true}, {L"@ note", false}, {L"later", true}, {L"& popup", false}, {L"lone\nfeed", true}};
  ASSERT_EQ(list.Count(), static_cast<int>(std::size(kShown)));
  for (int row = 0; row < list.Count(); ++row) {
    EXPECT_EQ(list.Text(row), kShown[row].first);
    EXPECT_EQ(list.Ticked(row), kShown[row].second) << "row " << row;
  }
  EXPECT_EQ(list.Index(), 0);
}

TEST_F(ScriptFileTest, KeepsTheNameOfAnEmptyScript) {
  UseScript("\r\n   \r\n$1000$,\r\n", L"Silence.txt");
  Troth troth;
  ExpectNoScript(troth);
  EXPECT_EQ(troth.Text(L"txtFile"), L"Silence");
}

TEST_F(ScriptFileTest, EndsTheProgramOverAFileThatIsNoScript) {
  UseScript("hello\r\n", L"vows.scr");
  Troth troth;
  const Box box = troth.AwaitBox();
  EXPECT_EQ(box.title, L"Application error");
  EXPECT_EQ(box.text, L"Error while reading Script file. Aborting execution.");
  EXPECT_FALSE(troth.Running().FindForm(L"frmTroth")) << "nothing but the box is shown";
  PressOk(box);
  EXPECT_EQ(troth.Running().ExitCode(), 1u);
  EXPECT_TRUE(troth.Running().Windows().empty());
}

TEST_F(ScriptFileTest, HoldsTheLargestScript) {
  UseScript(NumberedRows(kMostRows));
  Troth troth;
  const ForeignList list = troth.List();
  ASSERT_EQ(list.Count(), kMostRows);
  EXPECT_EQ(list.Text(0), L"row 1");
  EXPECT_EQ(list.Text(kMostRows - 2), L"@ note 32766");
  EXPECT_EQ(list.Text(kMostRows - 1), L"row 32767");
  EXPECT_TRUE(list.Ticked(kMostRows - 1));
  EXPECT_FALSE(list.Ticked(kMostRows - 2));

  const RealHands hands = troth.Hands();
  hands.Press('N', kWithAlt);
  AWAIT_EQ(L"txtNext", troth.Focus());
  hands.Press(VK_END, kWithControl);
  AWAIT_EQ(kMostRows - 1, list.Index());
  EXPECT_EQ(troth.Text(L"txtNext"), L"row 32767");
}

TEST_F(ScriptFileTest, WarnsOfRowsThatDoNotFitAndLoadsTheRest) {
  UseScript(NumberedRows(kMostRows + 1));
  Troth troth;
  const Box box = troth.AwaitBox();
  EXPECT_EQ(box.title, L"Trothline");
  EXPECT_EQ(box.text, L"This script has more than 32767 rows. Only the first 32767 are loaded.");
  troth.Answer(box);
  EXPECT_EQ(troth.List().Count(), kMostRows);
  EXPECT_EQ(troth.List().Text(kMostRows - 1), L"row 32767");
}

TEST_F(ScriptFileTest, StaysAtHandOverALineOfAMegabyte) {
  const std::string megabyte(1 << 20, 'x');
  UseScript("before\r\n" + megabyte + "\r\nbehind\r\n");
  Game game;
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  ASSERT_EQ(troth.List().Count(), 3);
  troth.Speak();
  AWAIT_EQ(1, troth.List().Index());
  EXPECT_EQ(troth.Text(L"txtNext").substr(0, 100), std::wstring(100, L'x'));
  troth.Hands().Click(troth.List().LabelOf(2));
  AWAIT_EQ(L"behind", troth.Text(L"txtNext"));
  EXPECT_EQ(game.HeardToTheEnd().bytes, "before\r");
}

}  // namespace
}  // namespace troth::desktop
