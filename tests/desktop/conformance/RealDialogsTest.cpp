// The system's own dialogs: the owner and the place of message boxes, and the file dialogs.
#include <windows.h>
// The dialogs' control numbers need windows.h before them.
#include <dlgs.h>

#include "platform/services/FileService.h"
#include "platform/services/WindowService.h"
#include "tests/desktop/conformance/RealWindows.h"
#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

class RealDialogs : public ConformanceTest {
 protected:
  DeskForm form{platform};

  bool IsTopMost(HWND window) { return (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0; }

  void ShowBox(const DesktopUnderTest::Act& whileUp) {
    desktop->NextBox(BoxAnswer::Ok, whileUp);
    platform.dialogs.ShowMessage({.text = L"Text", .title = L"Title"});
  }

  // Types a file name into the file dialog that opens next and confirms it.
  void ChooseFile(const std::wstring& name) {
    desktop->Later(500, [name] {
      const HWND box = FindMessageBox();
      HWND field = GetDlgItem(box, cmb13);
      if (!field) field = GetDlgItem(box, edt1);
      SendMessageW(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name.c_str()));
      PostMessageW(box, WM_COMMAND, IDOK, 0);
    });
  }
};

TEST_F(RealDialogs, BoxWithoutAnyVisibleFormIsInFrontOfTopmostWindows) {
  desktop->OpenForeignWindow(L"TrothConformanceGame");
  platform.windows.SetStacking(platform.windows.Find(L"TrothConformanceGame"), Stacking::TopMost);
  form.Load();
  ShowBox([&] {
    EXPECT_EQ(GetWindow(FindMessageBox(), GW_OWNER), nullptr) << "a hidden form owns no box";
    EXPECT_TRUE(IsTopMost(FindMessageBox()));
  });
}

TEST_F(RealDialogs, BoxWhileAnotherProgramIsActiveBelongsToTheNewestVisibleForm) {
  DialogForm tool(platform, L"frmTool");
  DialogForm hidden(platform, L"frmHidden");
  Show(form);
  Show(tool, &form);
  hidden.Load();
  const int game = desktop->OpenForeignWindow(L"TrothConformanceGame");
  platform.windows.Raise(platform.windows.Find(L"TrothConformanceGame"));
  ASSERT_TRUE(desktop->WasRaised(game));
  Settle();
  ShowBox([&] {
    EXPECT_EQ(GetWindow(FindMessageBox(), GW_OWNER), WindowOf(tool));
    EXPECT_TRUE(IsTopMost(FindMessageBox()));
  });
}

TEST_F(RealDialogs, BoxOfTheActiveFormIsNotTopmost) {
  Show(form);
  ShowBox([&] {
    EXPECT_EQ(GetWindow(FindMessageBox(), GW_OWNER), WindowOf(form));
    EXPECT_FALSE(IsTopMost(FindMessageBox()));
  });
}

TEST_F(RealDialogs, FileDialogsGiveTheFullPathAndKeepTheCurrentFolder) {
  Show(form);
  const std::wstring folder = desktop->PutFolder(L"folder");
  const std::wstring path = desktop->PutFile(L"folder\\script.txt", "x");
  wchar_t before[MAX_PATH] = {};
  wchar_t after[MAX_PATH] = {};
  GetCurrentDirectoryW(MAX_PATH, before);
  const FileRequest request{.title = L"Please select",
                            .filters = {{L"Text Files (*.txt)", L"*.txt"}, {L"All Files (*.*)", L"*.*"}},
                            .folder = folder,
                            .fileName = {},
                            .mustExist = true,
                            .overwritePrompt = true};
  ChooseFile(L"script.txt");
  EXPECT_EQ(platform.dialogs.AskOpenFile(request), path);
  ChooseFile(L"new");
  EXPECT_EQ(platform.dialogs.AskSaveFile(request), folder + L"\\new.txt");
  desktop->Later(500, [] { PostMessageW(FindMessageBox(), WM_COMMAND, IDCANCEL, 0); });
  EXPECT_EQ(platform.dialogs.AskSaveFile(request), std::nullopt);
  GetCurrentDirectoryW(MAX_PATH, after);
  EXPECT_STREQ(after, before);
  EXPECT_TRUE(desktop->TakesInput(form));
}

}  // namespace

}  // namespace troth
