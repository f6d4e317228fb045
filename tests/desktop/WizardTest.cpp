// The wizard from the menu of the shipped program to a ceremony that the game receives.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/desktop/Patience.h"
#include "tests/desktop/Stage.h"

namespace troth::desktop {
namespace {

constexpr wchar_t kTitle[] = L"Wedding Script Wizard";

class WizardTest : public DesktopTest {
 protected:
  // A language of the test's own among those of the program folder, and no script of that name.
  void SetUp() override {
    DesktopTest::SetUp();
    folder_ = ProgramPath(L"Wizard\\Testish");
    script_ = ProgramPath(L"wedscripts\\My Scripts\\Wizard test & more.txt");
    std::filesystem::create_directories(folder_);
    std::filesystem::remove(script_);
    WriteBytes(folder_ + L"\\VowsFormal.scr",
               "@!The Vows\r\n[I will\r\nWill you?\r\n*waits\r\nSo be it.\r\n");
  }
  void TearDown() override {
    std::filesystem::remove_all(folder_);
    std::filesystem::remove(script_);
    DesktopTest::TearDown();
  }

  static void ChooseLanguage(HWND wizard) {
    for (int i = 0; i < 10; ++i) {
      const HWND button = FindNamed(wizard, L"optLanguage(" + std::to_wstring(i) + L")");
      if (TextOf(button) == L"Testish") return ClickButton(button);
    }
    FAIL() << "the language is not offered";
  }

  std::wstring folder_;
  std::wstring script_;
};

TEST_F(WizardTest, WritesACeremonyThatTheGameReceives) {
  Game game;
  {
    Troth troth;
    troth.Window();
    troth.Choose(L"MFileWizard");
    const HWND wizard = troth.AwaitForm(L"frmWizard");
    const RealHands hands(wizard);
    AWAIT_EQ(std::wstring(kTitle) + L" (Step 1 of 5)", TextOf(wizard));
    ChooseLanguage(wizard);
    hands.Press('N', kWithAlt);
    AWAIT_EQ(std::wstring(kTitle) + L" (Step 2 of 5)", TextOf(wizard));
    for (int i = 0; i < 9; ++i)
      if (i != 3) ClickButton(FindNamed(wizard, L"chkSection(" + std::to_wstring(i) + L")"));
    hands.Press('N', kWithAlt);
    AWAIT_EQ(std::wstring(kTitle) + L" (Step 3 of 5)", TextOf(wizard));
    ClickButton(FindNamed(wizard, L"optStyle(1)"));
    hands.Press('N', kWithAlt);
    AWAIT_EQ(std::wstring(kTitle) + L" (Step 4 of 5)", TextOf(wizard));
    ClickButton(FindNamed(wizard, L"chkTellGroom"));
    hands.Press('N', kWithAlt);
    AWAIT_EQ(std::wstring(kTitle) + L" (Step 5 of 5)", TextOf(wizard));
    AWAIT_EQ(L"txtScriptName", NameOf(FocusOf(wizard)));
    hands.Type("Wizard test & more");
    AWAIT_EQ(L"Wizard test & more", TextOf(FindNamed(wizard, L"txtScriptName")));
    hands.Press(VK_RETURN);
    const Box box = troth.AwaitBox();
    EXPECT_EQ(box.title, kTitle);
    EXPECT_EQ(box.text,
              L"Congratulations! Your wedding script has been correctly generated and written to the disk.");
    troth.Answer(box);
    AWAIT(!IsWindow(wizard));
    EXPECT_TRUE(troth.Quit());
  }
  UseScriptPath(script_);
  Troth troth;
  EXPECT_EQ(troth.Text(L"txtFile"), L"Wizard test & more");
  troth.SetChecked(L"MOptionsAuto", false);
  troth.SetChecked(L"MOptionsPopup", false);
  // The first rows are comments and directives.
  AWAIT_EQ(L"", troth.Text(L"txtNext"));
  troth.Speak();
  for (const wchar_t* spoken : {L"/add", L"/2 I will", L"Will you?", L": waits", L"So be it."}) {
    AWAIT_EQ(spoken, troth.Text(L"txtNext"));
    troth.Speak();
  }
  AWAIT_EQ(L"", troth.Text(L"txtNext"));
  EXPECT_EQ(game.HeardToTheEnd().bytes, "\r/add\r\r/2 I will\rWill you?\r: waits\rSo be it.\r");
}

}  // namespace
}  // namespace troth::desktop
