// Script files of every kind, brought up by the shipped program.
#include <gtest/gtest.h>

#include "tests/desktop/Patience.h"
#include "tests/desktop/Stage.h"

namespace troth::desktop {
namespace {

using ScriptFileTest = DesktopTest;

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

}  // namespace
}  // namespace troth::desktop
