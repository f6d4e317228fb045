// How the program comes up, stays in front and goes down: the windows in their order, what is stored, the
// stacking order, and a start after everything that can have gone wrong.
#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

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
  RECT left{};
  {
    Troth troth;
    SetWindowPos(troth.Window(), nullptr, 210, 150, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    for (const wchar_t* item : {L"MOptionsTop", L"MOptionsPopup", L"MOptionsAuto"})
      troth.SetChecked(item, false);
    for (const wchar_t* item : {L"MOptionsEmote", L"MOptionsCounselor"}) troth.SetChecked(item, true);
    AWAIT(GetWindowRect(troth.Window(), &left) && left.left > 150);
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
  RECT back{};
  GetWindowRect(again.Window(), &back);
  // A window manager may shift a new window by the width of its own frame.
  EXPECT_NEAR(back.left, left.left, 40);
  EXPECT_NEAR(back.top, left.top, 40);
}

TEST_F(StartUpTest, KilledItComesUpWithTheSettingsOfTheLastGoodEnd) {
  {
    Troth troth;
    troth.SetChecked(L"MOptionsEmote", true);
    EXPECT_TRUE(troth.Quit());
  }
  {
    Troth troth;
    troth.SetChecked(L"MOptionsEmote", false);
    TerminateProcess(troth.Running().Handle(), 9);
    EXPECT_EQ(troth.Running().ExitCode(), 9u);
  }
  Troth again;
  EXPECT_TRUE(again.Checked(L"MOptionsEmote"));
}

TEST_F(StartUpTest, OddSettingsNeverStopTheStart) {
  const std::wstring values[] = {L"",    L"moor",     std::wstring(10000, L'7'), L"-99999999999999",
                                 L"1e9", L"\x2603 \""};
  for (const std::wstring& value : values) {
    ForgetAllSettings();
    for (const wchar_t* key : {L"X Position", L"Y Position", L"Speech Interval", L"On Top", L"Popup Messages",
                               L"Vertical Layout", L"Last Script"})
      StoreSetting(L"Options", key, value);
    SkipGreetings();
    Troth troth;
    RECT place;
    GetWindowRect(troth.Window(), &place);
    EXPECT_GE(place.right, 100) << "the window is on the screen";
    EXPECT_LT(place.left, GetSystemMetrics(SM_CXSCREEN));
    EXPECT_TRUE(troth.Quit());
  }
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

// A page's reader of our own: the game simulator, with the page as its title.
class GuideTest : public StartUpTest {
 protected:
  static constexpr wchar_t kReader[] = L"Guide Reader";

  void SetUp() override {
    StartUpTest::SetUp();
    DWORD size = 0;
    if (!RegGetValueW(HKEY_CLASSES_ROOT, L".html", nullptr, RRF_RT_ANY, nullptr, nullptr, &size))
      GTEST_SKIP() << "pages have a reader here, which this test would have to push aside";
    Register(L".html", L"Trothline.TestPage");
    Register(L"Trothline.TestPage\\shell\\open\\command",
             L'"' + ProgramPath(L"KestrelMoors.exe") + L"\" --class \"" + kReader + L"\" --title \"%1\"");
  }
  void TearDown() override {
    if (registered_) {
      RegDeleteTreeW(HKEY_CLASSES_ROOT, L".html");
      RegDeleteTreeW(HKEY_CLASSES_ROOT, L"Trothline.TestPage");
    }
    StartUpTest::TearDown();
  }
  void Register(const std::wstring& key, const std::wstring& value) {
    const auto size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    registered_ = true;
    ASSERT_EQ(RegSetKeyValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, REG_SZ, value.c_str(), size), 0);
  }
  // The name of the page that was opened; its reader is closed again.
  static std::wstring PageRead() {
    AWAIT(FindWindowW(kReader, nullptr) != nullptr);
    const HWND reader = FindWindowW(kReader, nullptr);
    const std::wstring page = fs::path(TextOf(reader)).filename().wstring();
    PostMessageW(reader, WM_CLOSE, 0, 0);
    AWAIT(!IsWindow(reader));
    return page;
  }

 private:
  bool registered_ = false;
};

TEST_F(GuideTest, F1OpensTheTopicOfTheWindow) {
  Troth troth;
  troth.Hands().Press(VK_F1);
  EXPECT_EQ(PageRead(), L"topic-3.html");
  troth.Choose(L"MHelpContents");
  EXPECT_EQ(PageRead(), L"index.html");
  troth.Choose(L"MFileAbout");
  const HWND about = troth.AwaitForm(L"frmAbout");
  RealHands(about).Press(VK_F1);
  EXPECT_EQ(PageRead(), L"index.html");
}

TEST_F(StartUpTest, WaitingPatchProgramIsSwappedIn) {
  const fs::path folder = fs::path(ProgramPath(L"Troth.exe")).parent_path();
  const fs::path waiting = folder / "AutoPatch" / "TrothAutoPatch.exe";
  const fs::path inUse = folder / "TrothAutoPatch.exe";
  fs::create_directories(waiting.parent_path());
  std::ofstream(inUse, std::ios::binary) << "old";
  std::ofstream(waiting, std::ios::binary) << "new";
  Troth troth;
  troth.Window();
  AWAIT(!fs::exists(waiting));
  EXPECT_EQ(ReadBytes(inUse.wstring()), "new");
  fs::remove(inUse);
  fs::remove(waiting.parent_path());
}

}  // namespace
}  // namespace troth::desktop
