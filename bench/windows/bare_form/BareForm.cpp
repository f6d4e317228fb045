// The least that a program with the same windows, controls and menus can be: a baseline for the start of the
// real one.
#include <windows.h>
// The common controls need windows.h before them.
#include <commctrl.h>

#include <ranges>
#include <string>
#include <vector>

#include "bench/windows/bare_form/WindowRecord.h"

namespace troth::bench {

namespace {

constexpr wchar_t kClass[] = L"BareForm";

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DESTROY && !GetWindow(window, GW_OWNER)) PostQuitMessage(0);
  return DefWindowProcW(window, message, wParam, lParam);
}

std::vector<char> ReadRecords() {
  wchar_t path[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  const std::wstring own(path);
  const HANDLE file = CreateFileW((own.substr(0, own.rfind(L'\\') + 1) + kRecordFile).c_str(), GENERIC_READ,
                                  FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  std::vector<char> bytes(file == INVALID_HANDLE_VALUE ? 0 : GetFileSize(file, nullptr));
  DWORD count = 0;
  ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr);
  CloseHandle(file);
  return bytes;
}

HMENU CreateRecordedMenu(const MenuItemRecord* items, int count) {
  std::vector<HMENU> levels{CreateMenu()};
  for (int index = 0; index < count; ++index) {
    const MenuItemRecord& item = items[index];
    levels.resize(static_cast<std::size_t>(item.depth) + 1);
    const HMENU submenu = item.opens ? CreatePopupMenu() : nullptr;
    AppendMenuW(levels.back(), item.type | item.state | (submenu ? MF_POPUP : 0),
                submenu ? reinterpret_cast<UINT_PTR>(submenu) : item.id, item.text);
    if (submenu) levels.push_back(submenu);
  }
  return levels.front();
}

void CreateRecorded(const std::vector<char>& bytes, HINSTANCE instance, HFONT font) {
  std::vector<HWND> windows;
  std::vector<HWND> shown;
  for (const char* at = bytes.data(); at < bytes.data() + bytes.size();) {
    const auto& record = *reinterpret_cast<const WindowRecord*>(at);
    at += sizeof record;
    const auto* items = reinterpret_cast<const MenuItemRecord*>(at);
    at += static_cast<std::size_t>(record.items) * sizeof *items;
    const RECT& place = record.bounds;
    const HWND parent = record.parent < 0 ? nullptr : windows[static_cast<std::size_t>(record.parent)];
    const HWND window = CreateWindowExW(
        record.exStyle, record.isTopLevel ? kClass : record.className, record.text,
        record.isTopLevel ? record.style & ~WS_VISIBLE : record.style, place.left, place.top,
        place.right - place.left, place.bottom - place.top, parent,
        record.items > 0 ? CreateRecordedMenu(items, record.items) : nullptr, instance, nullptr);
    if (record.isTopLevel && (record.style & WS_VISIBLE)) shown.push_back(window);
    if (!record.isTopLevel) SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    windows.push_back(window);
  }
  // As the real program does: what a window owns is shown before it, and only the last one is activated.
  for (const HWND window : shown | std::views::reverse)
    ShowWindow(window, GetWindow(window, GW_OWNER) ? SW_SHOWNA : SW_SHOW);
}

}  // namespace

}  // namespace troth::bench

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
  using namespace troth::bench;
  INITCOMMONCONTROLSEX controls{.dwSize = sizeof controls, .dwICC = ICC_WIN95_CLASSES};
  InitCommonControlsEx(&controls);
  WNDCLASSW bare{};
  bare.lpfnWndProc = &Procedure;
  bare.hInstance = instance;
  bare.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  bare.lpszClassName = kClass;
  RegisterClassW(&bare);
  const HFONT font =
      CreateFontW(-11, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"MS Sans Serif");
  CreateRecorded(ReadRecords(), instance, font);
  for (MSG message; GetMessageW(&message, nullptr, 0, 0) > 0;) DispatchMessageW(&message);
  return 0;
}
