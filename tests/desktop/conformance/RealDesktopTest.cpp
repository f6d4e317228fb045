// What only real windows have: names for other processes, the agreed question about menus, boxes that are
// closed by their frame, keys that go to whatever window has the keyboard.
#include <windows.h>
// The system's controls need windows.h before them.
#include <commctrl.h>

#include <set>

#include "platform/forms/DropDownList.h"
#include "platform/services/KeyboardService.h"
#include "platform/win32/Win32Services.h"
#include "tests/desktop/conformance/RealWindows.h"
#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

class RealDesktop : public ConformanceTest {
 protected:
  DeskForm form{platform};

  // Asks or chooses as another process would.
  LRESULT AskMenu(const wchar_t* item, LPARAM what) {
    const ATOM name = GlobalAddAtomW(item);
    const LRESULT answer =
        SendMessageW(WindowOf(form), RegisterWindowMessageW(L"Trothline.MenuItem"), name, what);
    GlobalDeleteAtom(name);
    return answer;
  }
};

TEST_F(RealDesktop, AnswersOtherProcessesAboutItsMenus) {
  form.MFileOpen.OnClick = form.Writer("open");
  form.MOptionsOff.OnClick = form.Writer("grey");
  Show(form);
  form.TakeHeard();
  EXPECT_EQ(AskMenu(L"MFileOpen", 0), 1 + 4 + 8);
  EXPECT_EQ(AskMenu(L"MOptionsAuto", 0), 1 + 2 + 4 + 8);
  EXPECT_EQ(AskMenu(L"MOptionsOff", 0), 1 + 8);
  EXPECT_EQ(AskMenu(L"MFileSecret", 0), 1 + 4);
  EXPECT_EQ(AskMenu(L"MNone", 0), 0);
  AskMenu(L"MFileOpen", 1);
  EXPECT_EQ(form.TakeHeard(), Lines{}) << "the choice is posted, not carried out inside the question";
  AskMenu(L"MOptionsOff", 1);
  Settle();
  EXPECT_EQ(form.TakeHeard(), Lines{"open"});
}

TEST_F(RealDesktop, ControlsAndNamesAreGoneWithTheirForm) {
  Show(form);
  const HWND window = WindowOf(form);
  const HWND button = WindowOf(form.cmdGo);
  desktop->CloseWindow(form);
  EXPECT_FALSE(IsWindow(window));
  EXPECT_FALSE(IsWindow(button));
  EXPECT_EQ(GlobalFindAtomW(L"cmdGo"), 0) << "an atom of the name is left behind";
}

// The answer that is planned would press a button; these boxes are closed by their frame.
TEST_F(RealDesktop, ClosedBoxCountsAsCancelOrAsItsOnlyButton) {
  Show(form);
  const auto answerToClosing = [&](BoxButtons buttons) {
    desktop->Later(50, [] { PostMessageW(FindMessageBox(), WM_CLOSE, 0, 0); });
    return platform.dialogs.ShowMessage({L"Text", L"Title", BoxIcon::None, buttons});
  };
  EXPECT_EQ(answerToClosing(BoxButtons::Ok), BoxAnswer::Ok);
  EXPECT_EQ(answerToClosing(BoxButtons::OkCancel), BoxAnswer::Cancel);
  EXPECT_EQ(answerToClosing(BoxButtons::YesNoCancel), BoxAnswer::Cancel);
  desktop->NextBox(BoxAnswer::No, [&] { desktop->Press(kEscape); });
  EXPECT_EQ(platform.dialogs.ShowMessage({L"Text", L"Title", BoxIcon::Question, BoxButtons::YesNo}),
            BoxAnswer::No);
}

TEST_F(RealDesktop, TopmostFormsStepDownForAModalForm) {
  DialogForm tool(platform, L"frmTool");
  DialogForm dialog(platform, L"frmDialog");
  Show(form);
  Show(tool, &form);
  tool.SetStacking(Stacking::TopMost);
  SetActiveWindow(WindowOf(form));
  desktop->Later(100, [&] {
    EXPECT_TRUE(desktop->IsAbove(dialog, tool));
    dialog.Unload();
  });
  dialog.ShowModal();
  EXPECT_TRUE(desktop->IsAbove(tool, form));
  EXPECT_NE(GetWindowLongW(WindowOf(tool), GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
}

TEST_F(RealDesktop, EachBorderHasTheFrameOfItsKind) {
  constexpr struct {
    BorderStyle border;
    bool hasCloseBox;
    DWORD style;
    DWORD extendedStyle;
  } kCases[] = {{BorderStyle::FixedSingle, true, WS_SYSMENU | WS_MINIMIZEBOX, 0},
                {BorderStyle::FixedDialog, true, WS_SYSMENU, WS_EX_DLGMODALFRAME},
                {BorderStyle::FixedDialog, false, 0, WS_EX_DLGMODALFRAME},
                {BorderStyle::FixedTool, true, WS_SYSMENU, WS_EX_TOOLWINDOW}};
  for (const auto& each : kCases) {
    Form framed(platform.forms, {.name = L"frmFramed",
                                 .caption = L"Framed",
                                 .clientSize = {3000, 1500},
                                 .border = each.border,
                                 .hasCloseBox = each.hasCloseBox});
    framed.Load();
    const HWND window = WindowOf(framed);
    const auto has = [&](int which, DWORD bits) {
      return static_cast<DWORD>(GetWindowLongW(window, which)) & bits;
    };
    EXPECT_EQ(has(GWL_STYLE, WS_SYSMENU | WS_MINIMIZEBOX | WS_THICKFRAME), each.style);
    EXPECT_EQ(has(GWL_EXSTYLE, WS_EX_DLGMODALFRAME | WS_EX_TOOLWINDOW), each.extendedStyle);
  }
}

// As long as a list is dropped, Enter and Esc are for it and not for the form.
TEST_F(RealDesktop, EnterAndEscapeCloseADroppedListFirst) {
  TestForm choice(platform, L"frmChoice");
  DropDownList list{choice, {.name = L"cmbKey", .bounds = {120, 120, 1800, 315}}};
  CommandButton ok{choice,
                   {.name = L"ok",
                    .caption = L"OK",
                    .bounds = {120, 900, 1200, 375},
                    .isDefault = true,
                    .isCancel = true}};
  ok.OnClick = choice.Writer("ok");
  list.SetEntries({L"F1", L"F2", L"F3"});
  Show(choice);
  choice.TakeHeard();
  for (const int key : {kEnter, kEscape}) {
    desktop->Press(kDown, kAltDown);
    ASSERT_TRUE(SendMessageW(WindowOf(list), CB_GETDROPPEDSTATE, 0, 0));
    desktop->Press(key);
    EXPECT_FALSE(SendMessageW(WindowOf(list), CB_GETDROPPEDSTATE, 0, 0));
    EXPECT_EQ(choice.TakeHeard(), Lines{}) << key;
    desktop->Press(key);
    EXPECT_EQ(choice.TakeHeard(), Lines{"ok"}) << key;
  }
}

TEST_F(RealDesktop, KeysGoToTheWindowThatHasTheKeyboard) {
  form.cmdGo.OnClick = [this] { form.Write("go " + Narrow(form.txtName.Text())); };
  Show(form);
  desktop->Click(form.txtName);
  form.TakeHeard();
  platform.keyboard.TypeKeys(L"I, Rowan, do!{ENTER}");
  desktop->LetTimePass(100);
  EXPECT_EQ(form.TakeHeard(), Lines{"go I, Rowan, do!"});
}

// As after a hotkey, while its modifier is still held, and with Caps Lock on.
TEST_F(RealDesktop, KeysDoNotMixWithThoseThatTheUserHolds) {
  const auto send = [](WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof input);
  };
  Show(form);
  desktop->Click(form.txtName);
  for (const WORD held : std::initializer_list<WORD>{VK_LCONTROL, VK_RSHIFT, VK_LMENU}) {
    form.txtName.SetText(L"");
    send(VK_CAPITAL, 0);
    send(VK_CAPITAL, KEYEVENTF_KEYUP);
    send(held, 0);
    desktop->LetTimePass(50);
    platform.keyboard.TypeKeys(L"Ann");
    // Wine forgets a right Shift key that was pressed by a program.
    EXPECT_TRUE(held == VK_RSHIFT || GetAsyncKeyState(held) & 0x8000)
        << "the user still holds the key " << held;
    send(held, KEYEVENTF_KEYUP);
    desktop->LetTimePass(50);
    EXPECT_EQ(form.txtName.Text(), L"Ann") << held;
    EXPECT_TRUE(GetKeyState(VK_CAPITAL) & 1);
    send(VK_CAPITAL, 0);
    send(VK_CAPITAL, KEYEVENTF_KEYUP);
    desktop->LetTimePass(50);
    EXPECT_FALSE(GetKeyState(VK_CAPITAL) & 1);
  }
}

TEST(RealProcess, SeedsDifferFromCallToCall) {
  Win32Process process;
  std::set<std::uint32_t> seeds;
  for (int i = 0; i < 100; ++i) seeds.insert(process.RandomSeed());
  EXPECT_GT(seeds.size(), 95u);
}

}  // namespace

}  // namespace troth
