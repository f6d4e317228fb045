// How the program comes up, stays in front and goes down: the windows in their order, what is stored, the
// stacking order, and a start after everything that can have gone wrong.
#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/desktop/Patience.h"
#include "tests/desktop/Stage.h"

namespace troth::desktop {
namespace {

namespace fs = std::filesystem;

using StartUpTest = DesktopTest;

TEST_F(StartUpTest, FirstRunGreetsInOrderAndTheSecondComesStraightUp) {
  ForgetAllSettings();
  {
    Troth troth;
    const HWND tip = troth.AwaitForm(L"frmTip");
    EXPECT_EQ(troth.Running().Windows().size(), 1u) << "the tip comes alone";
    EXPECT_EQ(TextOf(FindNamed(tip, L"lblAppName")), std::wstring(L"Trothline version ") + kVersion);
    EXPECT_NE(TextOf(FindNamed(tip, L"lblTipText")), L"");
    EXPECT_TRUE(IsTicked(FindNamed(tip, L"chkLoadTipsAtStartup")));
    ClickButton(FindNamed(tip, L"chkLoadTipsAtStartup"));
    AWAIT_EQ(std::wstring(L"0"), StoredSetting(L"Options", L"Show Tips at Startup"));
    ClickButton(FindNamed(tip, L"cmdOK"));

    const HWND intro = troth.AwaitForm(L"frmIntro");
    EXPECT_EQ(troth.Running().Windows().size(), 1u) << "neither the tip nor the main window is seen";
    EXPECT_EQ(TextOf(intro), L"Trothline release notes");
    ClickButton(FindNamed(intro, L"chkNeverAgain"));
    AWAIT(IsTicked(FindNamed(intro, L"chkNeverAgain")));
    ClickButton(FindNamed(intro, L"cmdOK"));

    AWAIT(IsTopMost(troth.Window()));
    EXPECT_EQ(troth.Text(L"txtFile"), L"");
    EXPECT_EQ(troth.Running().FindForm(L"frmIntro"), nullptr);
    EXPECT_TRUE(troth.Quit());
  }
  EXPECT_EQ(StoredSetting(L"Options", L"Last Installed Version"), kVersion);
  EXPECT_EQ(StoredSetting(L"Options", L"Last Used Version"), kVersion);
  for (const wchar_t* flag : {L"On Top", L"Popup Messages", L"Autoterminate Pending Speech"})
    EXPECT_EQ(StoredSetting(L"Options", flag), L"1") << testing::PrintToString(flag);
  for (const wchar_t* flag : {L"Vertical Layout", L"Skip Emote", L"Skip Party Commands"})
    EXPECT_EQ(StoredSetting(L"Options", flag), L"0") << testing::PrintToString(flag);

  Troth second;
  second.Window();
  second.AwaitForm(L"frmIndex");
  EXPECT_EQ(second.Running().Windows().size(), 2u);
}

TEST_F(StartUpTest, SecondInstanceSaysSoAndEnds) {
  Troth first;
  first.Window();
  Troth second;
  const Box box = second.AwaitBox();
  EXPECT_EQ(box.title, L"Trothline");
  EXPECT_EQ(box.text, L"You cannot run two instances of Trothline at a same time");
  PressOk(box);
  EXPECT_EQ(second.Running().ExitCode(), 0u);
  EXPECT_TRUE(IsWindowVisible(first.Window()));
}

TEST_F(StartUpTest, OptionsPlaceAndScriptOutliveTheRun) {
  const std::wstring script = UseScript("hello\r\n");
  POINT left{};
  {
    Troth troth;
    SetWindowPos(troth.Window(), nullptr, 210, 150, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    for (const wchar_t* item : {L"MOptionsTop", L"MOptionsPopup", L"MOptionsAuto"})
      troth.SetChecked(item, false);
    for (const wchar_t* item : {L"MOptionsEmote", L"MOptionsCounselor"}) troth.SetChecked(item, true);
    AWAIT((left = CornerOf(troth.Window())).x > 150);
    EXPECT_TRUE(troth.Quit());
  }
  EXPECT_EQ(StoredSetting(L"Options", L"Last Script"), script);
  Troth again;
  for (const wchar_t* item : {L"MOptionsTop", L"MOptionsPopup", L"MOptionsAuto"})
    EXPECT_FALSE(again.Checked(item)) << testing::PrintToString(item);
  for (const wchar_t* item : {L"MOptionsEmote", L"MOptionsCounselor"})
    EXPECT_TRUE(again.Checked(item)) << testing::PrintToString(item);
  EXPECT_FALSE(IsTopMost(again.Window()));
  EXPECT_EQ(again.Text(L"txtFile"), L"Vows");
  ExpectNear(again.Window(), left);
}

TEST_F(StartUpTest, MainWindowStepsBackForADialogAndComesToTheFrontAgain) {
  Troth troth;
  AWAIT(IsTopMost(troth.Window()));
  for (const bool onTop : {true, false}) {
    troth.SetChecked(L"MOptionsTop", onTop);
    AWAIT_EQ(onTop, IsTopMost(troth.Window()));
    troth.Choose(L"MFileAbout");
    const HWND about = troth.AwaitForm(L"frmAbout");
    EXPECT_FALSE(IsTopMost(troth.Window()));
    EXPECT_FALSE(IsWindowEnabled(troth.Window()));
    EXPECT_EQ(TextOf(FindNamed(about, L"lblVersion")), std::wstring(L"Version ") + kVersion);
    RealHands(about).Press(VK_ESCAPE);
    AWAIT(!IsWindow(about));
    AWAIT_EQ(onTop, IsTopMost(troth.Window()));
    AWAIT(IsWindowEnabled(troth.Window()));
  }
}

// The page's reader is the game simulator, with the page as its title.
TEST_F(StartUpTest, F1OpensTheTopicOfTheWindow) {
  constexpr wchar_t kReader[] = L"Guide Reader";
  const RegisteredReader reader(
      L".html", L'"' + ProgramPath(L"KestrelMoors.exe") + L"\" --class \"" + kReader + L"\" --title \"%1\"");
  const auto pageRead = [&] {
    AWAIT(FindWindowW(kReader, nullptr) != nullptr);
    const HWND window = FindWindowW(kReader, nullptr);
    const std::wstring page = fs::path(TextOf(window)).filename().wstring();
    PostMessageW(window, WM_CLOSE, 0, 0);
    AWAIT(!IsWindow(window));
    return page;
  };
  Troth troth;
  troth.Hands().Press(VK_F1);
  EXPECT_EQ(pageRead(), L"topic-3.html");
  troth.Choose(L"MFileAbout");
  RealHands(troth.AwaitForm(L"frmAbout")).Press(VK_F1);
  EXPECT_EQ(pageRead(), L"index.html");
}

}  // namespace
}  // namespace troth::desktop
