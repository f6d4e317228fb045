// The script browser as a player uses it, by keys and mouse: a new script comes up in the editor, is renamed,
// loaded and spoken, and another one is deleted.
#include <gtest/gtest.h>
#include <windows.h>
// The tree needs windows.h before it.
#include <commctrl.h>

#include <filesystem>

#include "tests/desktop/Patience.h"
#include "tests/desktop/Stage.h"

namespace troth::desktop {
namespace {

namespace fs = std::filesystem;

constexpr wchar_t kFileType[] = L"TrothlineTest.Script";

// Makes the tests' own program the one that opens text files, for the time of a test.
class RegisteredEditor {
 public:
  RegisteredEditor() {
    wchar_t type[128] = {};
    DWORD size = sizeof type;
    if (RegGetValueW(HKEY_CLASSES_ROOT, L".txt", nullptr, RRF_RT_REG_SZ, nullptr, type, &size) ==
        ERROR_SUCCESS)
      typeBefore_ = type;
    Store(std::wstring(kFileType) + L"\\shell\\open\\command", L'"' + EditorPath() + L"\" \"%1\"");
    Store(L".txt", kFileType);
  }
  ~RegisteredEditor() {
    Store(L".txt", typeBefore_);
    RegDeleteTreeW(HKEY_CLASSES_ROOT, kFileType);
  }
  RegisteredEditor(const RegisteredEditor&) = delete;
  RegisteredEditor& operator=(const RegisteredEditor&) = delete;

 private:
  // It lies beside the tests.
  static std::wstring EditorPath() {
    wchar_t tests[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, tests, MAX_PATH);
    return fs::path(tests).replace_filename(L"test_editor.exe").wstring();
  }
  static void Store(const std::wstring& key, const std::wstring& value) {
    RegSetKeyValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, REG_SZ, value.c_str(),
                    static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
  }
  std::wstring typeBefore_;
};

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

class BrowserTest : public DesktopTest {
 protected:
  static std::wstring Entries(const ForeignList& list) {
    std::wstring entries;
    for (int i = 0; i < list.Count(); ++i) entries += (i == list.Index() ? L"*" : L"") + list.Text(i) + L";";
    return entries;
  }
};

TEST_F(BrowserTest, MakesRenamesDeletesLoadsAndSpeaksAScript) {
  const ProgramFile scriptTemplate(L"Template.scr", "first\r\n");
  const RegisteredEditor editor;
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

  // Letters look for the folder in the tree.
  AWAIT_EQ(L"trvDirs", NameOf(FocusOf(form)));
  hands.Type("A");
  AWAIT_EQ(L"*Zeal.txt;", Entries(list));
  EXPECT_EQ(path(), folder.File(L"Zeal.txt"));

  hands.Press('F', kWithAlt);
  hands.Press('N');
  HWND question = nullptr;
  AWAIT((question = troth.Running().FindForm(L"InputBox")) != nullptr);
  RealHands(question).Type("My Vows");
  AWAIT_EQ(L"My Vows", TextOf(FindNamed(question, L"txtAnswer")));
  RealHands(question).Press(VK_RETURN);
  AWAIT_EQ(L"*My Vows.txt;Zeal.txt;", Entries(list));
  AWAIT_EQ("first\r\nedited\r\n", ReadBytes(folder.File(L"My Vows.txt")));

  hands.Press('S', kWithAlt);
  AWAIT_EQ(L"lstvScripts", NameOf(FocusOf(form)));
  hands.Press(VK_F2);
  AWAIT_EQ(L"Edit", ClassOf(FocusOf(form)));
  hands.Type("Oath.txt");
  AWAIT_EQ(L"Oath.txt", TextOf(FocusOf(form)));
  hands.Press(VK_RETURN);
  AWAIT_EQ(L"*Oath.txt;Zeal.txt;", Entries(list));
  EXPECT_TRUE(folder.Has(L"Oath.txt"));
  EXPECT_FALSE(folder.Has(L"My Vows.txt"));

  hands.Press(VK_F2);
  AWAIT_EQ(L"Edit", ClassOf(FocusOf(form)));
  hands.Type("Zeal.txt");
  AWAIT_EQ(L"Zeal.txt", TextOf(FocusOf(form)));
  hands.Press(VK_RETURN);
  const Box refused = troth.AwaitBox();
  EXPECT_TRUE(refused.text.starts_with(L"Error, script file Oath.txt cannot be renamed: "))
      << refused.text.size();
  troth.Answer(refused);
  AWAIT_EQ(L"*Oath.txt;Zeal.txt;", Entries(list));

  hands.Press(VK_DOWN);
  AWAIT_EQ(L"nobody wants this\r\n", TextOf(FindNamed(form, L"txtScript")));
  hands.Press(VK_DELETE);
  const Box question2 = troth.AwaitBox();
  EXPECT_EQ(question2.text, L"Do you really want to delete " + folder.File(L"Zeal.txt"));
  RealHands(question2.window).Press('Y');
  AWAIT_EQ(L"*Oath.txt;", Entries(list));
  EXPECT_FALSE(folder.Has(L"Zeal.txt"));

  // The context menu of the right button, down to its last entry.
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
