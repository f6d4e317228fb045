#include "bench/windows/BareForm.h"

#include <windows.h>

#include <algorithm>
#include <cwchar>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <vector>

#include "bench/windows/Measure.h"
#include "bench/windows/bare_form/WindowRecord.h"
#include "core/Program.h"
#include "core/Settings.h"
#include "core/Version.h"
#include "platform/win32/Win32Desktop.h"
#include "shell/frmTroth.h"

namespace troth::bench {

namespace {

template <std::size_t kSize>
void CopyText(wchar_t (&target)[kSize], std::wstring_view text) {
  std::wcsncpy(target, std::wstring(text).c_str(), kSize - 1);
}

void AddItems(HMENU menu, int depth, std::vector<MenuItemRecord>& items) {
  for (int index = 0; index < GetMenuItemCount(menu); ++index) {
    MenuItemRecord record{};
    MENUITEMINFOW item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_SUBMENU | MIIM_STRING;
    item.dwTypeData = record.text;
    item.cch = static_cast<UINT>(std::size(record.text));
    GetMenuItemInfoW(menu, static_cast<UINT>(index), TRUE, &item);
    record.depth = depth;
    record.opens = item.hSubMenu != nullptr;
    record.type = item.fType;
    record.state = item.fState;
    record.id = item.wID;
    items.push_back(record);
    if (item.hSubMenu) AddItems(item.hSubMenu, depth + 1, items);
  }
}

class Recorder {
 public:
  explicit Recorder(const std::filesystem::path& path) : file_(path, std::ios::binary) {}

  // Lists and the like create windows of their own, also in the bare program.
  void AddForm(HWND form) {
    Add(form, GetWindow(form, GW_OWNER), true);
    for (HWND child = GetWindow(form, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
      AddControl(child, form);
  }

 private:
  void AddControl(HWND control, HWND parent) {
    Add(control, parent, false);
    if (!IsOwnClass(control)) return;
    for (HWND child = GetWindow(control, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
      AddControl(child, control);
  }

  static bool IsOwnClass(HWND window) {
    wchar_t name[32] = {};
    GetClassNameW(window, name, static_cast<int>(std::size(name)));
    return std::wstring_view(name).starts_with(L"Troth");
  }

  void Add(HWND window, HWND parent, bool isTopLevel) {
    WindowRecord record{};
    const auto known = std::ranges::find(windows_, parent);
    record.parent = known == windows_.end() ? -1 : static_cast<int>(known - windows_.begin());
    record.isTopLevel = isTopLevel;
    record.style = static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE));
    record.exStyle = static_cast<DWORD>(GetWindowLongPtrW(window, GWL_EXSTYLE));
    GetWindowRect(window, &record.bounds);
    if (!isTopLevel) MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&record.bounds), 2);
    GetClassNameW(window, record.className, static_cast<int>(std::size(record.className)));
    if (IsOwnClass(window)) CopyText(record.className, L"STATIC");
    GetWindowTextW(window, record.text, static_cast<int>(std::size(record.text)));
    std::vector<MenuItemRecord> items;
    if (isTopLevel) AddItems(GetMenu(window), 0, items);
    record.items = static_cast<int>(items.size());
    file_.write(reinterpret_cast<const char*>(&record), sizeof record);
    file_.write(reinterpret_cast<const char*>(items.data()),
                static_cast<std::streamsize>(items.size() * sizeof(MenuItemRecord)));
    windows_.push_back(window);
  }

  std::ofstream file_;
  std::vector<HWND> windows_;
};

}  // namespace

std::wstring RecordBareForm() {
  const std::wstring bare = ProgramPath(L"bare_form.exe");
  Win32Desktop desktop;
  Program program(desktop.platform);
  WriteText(desktop.platform, settings::LastInstalledVersion, RunningVersion().Text());
  MainWindow& window = program.Open<frmTroth>();
  window.Show();
  desktop.platform.time.Pump();
  std::vector<HWND> forms;
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND form, LPARAM found) -> BOOL {
        if (IsWindowVisible(form)) reinterpret_cast<std::vector<HWND>*>(found)->push_back(form);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&forms));
  // An owner before what it owns.
  std::ranges::stable_partition(forms, [](HWND form) { return GetWindow(form, GW_OWNER) == nullptr; });
  Recorder recorder(std::filesystem::path(bare).parent_path() / kRecordFile);
  for (const HWND form : forms) recorder.AddForm(form);
  window.Unload();
  return bare;
}

}  // namespace troth::bench
