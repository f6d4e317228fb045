// The largest script shown in the main window, and filled with another name, beside the least that anybody
// could do with as many rows: a bare list of the system that is told its count and asks for its texts.
#include <windows.h>
// The system's list needs windows.h before it.
#include <commctrl.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "bench/windows/Measure.h"
#include "core/Program.h"
#include "core/Settings.h"
#include "core/Version.h"
#include "platform/win32/Win32Desktop.h"
#include "script/WeddingScript.h"
#include "script/modScript.h"
#include "shell/frmTroth.h"

namespace troth::bench {

namespace {

constexpr int kRows = 32767;
constexpr int kTurns = 15;
constexpr double kMostMs = 100;
constexpr double kMostRefreshMs = 150;

class ScriptFile {
 public:
  ScriptFile() : path_(std::filesystem::temp_directory_path() / "desktop_bench.txt") {
    std::ofstream file(path_, std::ios::binary);
    for (int row = 1; row <= kRows; ++row)
      file << (row % 100 == 1 ? "@!Paragraph "
                              : "Dearly beloved, #groom# and #bride# stand in front of the old oak, ")
           << row << "\r\n";
  }
  ~ScriptFile() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }
  ScriptFile(const ScriptFile&) = delete;
  ScriptFile& operator=(const ScriptFile&) = delete;
  std::wstring Path() const { return path_.wstring(); }

 private:
  std::filesystem::path path_;
};

BOOL CALLBACK IsList(HWND window, LPARAM found) {
  wchar_t name[32] = {};
  GetClassNameW(window, name, 32);
  if (std::wstring_view(name) != WC_LISTVIEWW) return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

// The list of the only form of this thread.
HWND FindList() {
  HWND list = nullptr;
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM found) {
        EnumChildWindows(window, &IsList, found);
        return *reinterpret_cast<HWND*>(found) == nullptr ? TRUE : FALSE;
      },
      reinterpret_cast<LPARAM>(&list));
  return list;
}

LRESULT CALLBACK BareParent(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_NOTIFY || reinterpret_cast<NMHDR*>(lParam)->code != LVN_GETDISPINFOW)
    return DefWindowProcW(window, message, wParam, lParam);
  static wchar_t text[] = L"Dearly beloved, we are gathered here in front of the old oak";
  reinterpret_cast<NMLVDISPINFOW*>(lParam)->item.pszText = text;
  return 0;
}

// As large as the real one.
UniqueWindow MakeBareList(SIZE size) {
  WNDCLASSW parentClass{};
  parentClass.lpfnWndProc = &BareParent;
  parentClass.hInstance = GetModuleHandleW(nullptr);
  parentClass.lpszClassName = L"BareListParent";
  RegisterClassW(&parentClass);
  UniqueWindow parent(CreateWindowExW(0, parentClass.lpszClassName, L"", WS_OVERLAPPED | WS_VISIBLE, 0, 0,
                                      size.cx + 20, size.cy + 40, nullptr, nullptr, parentClass.hInstance,
                                      nullptr));
  const HWND list =
      CreateWindowExW(WS_EX_CLIENTEDGE, WC_LISTVIEWW, L"",
                      WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA | LVS_NOCOLUMNHEADER | LVS_SINGLESEL,
                      0, 0, size.cx, size.cy, parent.get(), nullptr, parentClass.hInstance, nullptr);
  ListView_SetExtendedListViewStyle(list, LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_CHECKBOXES);
  LVCOLUMNW column{};
  column.mask = LVCF_WIDTH;
  column.cx = size.cx;
  SendMessageW(list, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
  return parent;
}

double TimeBare(HWND list) {
  const double start = NowMs();
  ListView_SetItemCountEx(list, 0, 0);
  ListView_SetItemCountEx(list, kRows, 0);
  InvalidateRect(list, nullptr, TRUE);
  UpdateWindow(list);
  return NowMs() - start;
}

double TimeReal(MainWindow& window, HWND list) {
  const double start = NowMs();
  window.ShowLanguage();
  UpdateWindow(list);
  return NowMs() - start;
}

// As when the officiant has typed a name and goes on to the next box: it comes into all rows.
double TimeRefresh(MainWindow& window, HWND list, const std::wstring& groom) {
  window.Show();  // a window manager may have given the keyboard to another window of this thread
  window.txtGroom.SetFocus();
  window.txtGroom.SetText(groom);
  const double start = NowMs();
  window.txtBride.SetFocus();
  UpdateWindow(list);
  const double ms = NowMs() - start;
  if (window.lstWedding.Text(kRows - 1).find(groom) == std::wstring::npos) {
    std::fprintf(stderr, "the name did not come into the rows\n");
    std::exit(EXIT_FAILURE);
  }
  return ms;
}

}  // namespace

void MeasureList() {
  const ScriptFile file;
  Win32Desktop desktop;
  Program program(desktop.platform);
  // The greetings would wait for somebody.
  WriteText(desktop.platform, settings::LastInstalledVersion, RunningVersion().Text());
  MainWindow& window = program.Open<frmTroth>();
  window.Show();
  program.ScriptNow.sFileName(file.Path());
  modScript::LoadScriptFile(program.ScriptNow, program.ScriptIndexEntries, program.platform);
  const HWND list = FindList();
  RECT place;
  GetWindowRect(list, &place);
  const UniqueWindow parent = MakeBareList({place.right - place.left, place.bottom - place.top});
  HWND bare = nullptr;
  EnumChildWindows(parent.get(), &IsList, reinterpret_cast<LPARAM>(&bare));

  std::vector<double> realMs;
  std::vector<double> refreshMs;
  std::vector<double> bareMs;
  for (int turn = 0; turn < kTurns; ++turn) {
    desktop.platform.time.Pump();
    bareMs.push_back(TimeBare(bare));
    realMs.push_back(TimeReal(window, list));
    refreshMs.push_back(TimeRefresh(window, list, turn % 2 == 0 ? L"Bram" : L"Rowan"));
  }
  Report("list of 32767 rows shown", Median(realMs), " ms", {.atMost = true, .value = kMostMs});
  Report("  as a ratio to a bare list", Median(realMs) / Median(bareMs), "", {.atMost = true, .value = 10});
  Report("name put into 32767 rows", Median(refreshMs), " ms", {.atMost = true, .value = kMostRefreshMs});
  Report("  as a ratio to a bare list", Median(refreshMs) / Median(bareMs), "",
         {.atMost = true, .value = 20});
  window.Unload();
}

}  // namespace troth::bench
