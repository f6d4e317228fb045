// The script browser as a player uses it, by keys and mouse: a new script comes up in the editor, is renamed,
// loaded and spoken, and another one is deleted.
#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>

#include "tests/desktop/Patience.h"
#include "tests/desktop/Stage.h"

namespace troth::desktop {
namespace {

namespace fs = std::filesystem;

// The command line of the tests' own editor, which lies beside them.
std::wstring EditorCommand() {
  wchar_t tests[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, tests, MAX_PATH);
  return L'"' + fs::path(tests).replace_filename(L"test_editor.exe").wstring() + L"\" \"%1\"";
}

// Folders below "wedscripts" that are gone again after the test.
class ScriptFolder {
 public:
  ScriptFolder() : root_(ProgramPath(L"wedscripts")), path_(root_ / L"A Test & More") {
    hadRoot_ = fs::exists(root_);
    fs::create_directories(path_);
  }
  ~ScriptFolder() {
    std::error_code ignored;
    fs::remove_all(hadRoot_ ? path_ : root_, ignored);
  }
  ScriptFolder(const ScriptFolder&) = delete;
  ScriptFolder& operator=(const ScriptFolder&) = delete;

  std::wstring File(const wchar_t* name) const { return (path_ / name).wstring(); }
  bool Has(const wchar_t* name) const { return fs::exists(path_ / name); }

 private:
  fs::path root_;
  fs::path path_;
  bool hadRoot_ = false;
};

using BrowserTest = DesktopTest;

TEST_F(BrowserTest, MakesRenamesDeletesLoadsAndSpeaksAScript) {
  const ProgramFile scriptTemplate(L"Template.scr", "first\r\n");
  const RegisteredReader editor(L".txt", EditorCommand());
  const ScriptFolder folder;
  WriteBytes(folder.File(L"Zeal.txt"), "nobody wants this\r\n");
  Game game;
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  troth.Choose(L"MFileScript");
  const HWND form = troth.AwaitForm(L"frmBrowse");
  const RealHands hands(form);
  const ForeignList list(troth.Running(), FindNamed(form, L"lstvScripts"));
  const auto path = [&] { return TextOf(FindNamed(form, L"stsBar")); };

  const auto rename = [&](const std::string& name) {
    hands.Press(VK_F2);
    AWAIT_EQ(L"Edit", ClassOf(FocusOf(form)));
    hands.Type(name);
    AWAIT_EQ(std::wstring(name.begin(), name.end()), TextOf(FocusOf(form)));
    hands.Press(VK_RETURN);
  };

  // Letters look for the folder in the tree.
  AWAIT_EQ(L"trvDirs", NameOf(FocusOf(form)));
  hands.Type("A");
  AWAIT_EQ(L"*Zeal.txt;", list.Rows());
  EXPECT_EQ(path(), folder.File(L"Zeal.txt"));

  hands.Press('F', kWithAlt);
  hands.Press('N');
  troth.AnswerQuestion(L"Please input a name for your new script.", "My Vows");
  AWAIT_EQ(L"*My Vows.txt;Zeal.txt;", list.Rows());
  AWAIT_EQ("first\r\nedited\r\n", ReadBytes(folder.File(L"My Vows.txt")));

  hands.Press('S', kWithAlt);
  AWAIT_EQ(L"lstvScripts", NameOf(FocusOf(form)));
  rename("Oath.txt");
  AWAIT_EQ(L"*Oath.txt;Zeal.txt;", list.Rows());
  EXPECT_TRUE(folder.Has(L"Oath.txt"));
  EXPECT_FALSE(folder.Has(L"My Vows.txt"));

  rename("Zeal.txt");
  const Box refused = troth.AwaitBox();
  EXPECT_TRUE(refused.text.starts_with(L"Error, script file Oath.txt cannot be renamed: "));
  troth.Answer(refused);
  AWAIT_EQ(L"*Oath.txt;Zeal.txt;", list.Rows());

  hands.Press(VK_DOWN);
  AWAIT_EQ(L"nobody wants this\r\n", TextOf(FindNamed(form, L"txtScript")));
  hands.Press(VK_DELETE);
  const Box question2 = troth.AwaitBox();
  EXPECT_EQ(question2.text, L"Do you really want to delete " + folder.File(L"Zeal.txt"));
  RealHands(question2.window).Press('Y');
  AWAIT_EQ(L"*Oath.txt;", list.Rows());
  EXPECT_FALSE(folder.Has(L"Zeal.txt"));

  hands.Click(list.LabelOf(0), 2);
  AWAIT(!IsWindow(form));
  AWAIT_EQ(L"first", troth.Text(L"txtNext"));
  for (const wchar_t* next : {L"edited", L"first"}) {
    troth.Speak();
    AWAIT_EQ(next, troth.Text(L"txtNext"));
    if (troth.BoxIsUp()) troth.Answer(troth.AwaitBox());
  }
  EXPECT_EQ(game.HeardToTheEnd().bytes, "first\redited\r");
}

}  // namespace
}  // namespace troth::desktop
