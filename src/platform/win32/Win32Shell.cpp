#include "platform/win32/Win32Shell.h"

#include <windows.h>
// The shell's header needs windows.h before it.
#include <shellapi.h>

#include "platform/win32/Win32.h"

namespace troth {

namespace {

template <class Function>
Function* FromShell(const char* name) {
  return LateFunction<Function>(L"shell32.dll", name);
}

HINSTANCE Execute(const wchar_t* file, const wchar_t* parameters, const wchar_t* folder) {
  const auto execute = FromShell<decltype(ShellExecuteW)>("ShellExecuteW");
  return execute(GetActiveWindow(), L"open", file, parameters, folder, SW_SHOWNORMAL);
}

// The shell's calls return more than this on success.
constexpr INT_PTR kLastError = 32;

// Windows 10 and later have no viewer, and the call then shows a box of its own.
bool HasHelpViewer() {
  wchar_t folder[MAX_PATH];
  const UINT length = GetWindowsDirectoryW(folder, MAX_PATH);
  const std::wstring viewer = std::wstring(folder, length) + L"\\winhlp32.exe";
  return GetFileAttributesW(viewer.c_str()) != INVALID_FILE_ATTRIBUTES;
}

// Under Wine without its browser engine no program is registered for local pages, but winebrowser opens them
// in the browser of the host.
bool OpenThroughHost(const std::wstring& page) {
  wchar_t folder[MAX_PATH];
  const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
  const std::wstring bridge = std::wstring(folder, length) + L"\\winebrowser.exe";
  if (!page.ends_with(L".html") || GetFileAttributesW(bridge.c_str()) == INVALID_FILE_ATTRIBUTES)
    return false;
  const HINSTANCE result = Execute(bridge.c_str(), (L'"' + page + L'"').c_str(), nullptr);
  return reinterpret_cast<INT_PTR>(result) > kLastError;
}

}  // namespace

bool Win32Shell::Open(const std::wstring& file, const std::wstring& parameters, const std::wstring& folder) {
  const HINSTANCE result = Execute(file.c_str(), parameters.empty() ? nullptr : parameters.c_str(),
                                   folder.empty() ? nullptr : folder.c_str());
  const auto code = reinterpret_cast<INT_PTR>(result);
  return code > kLastError || (code == SE_ERR_NOASSOC && OpenThroughHost(file));
}

std::optional<std::wstring> Win32Shell::FindProgramFor(const std::wstring& file) {
  wchar_t program[MAX_PATH] = L"";
  const auto find = FromShell<decltype(FindExecutableW)>("FindExecutableW");
  const HINSTANCE result = find(file.c_str(), nullptr, program);
  if (reinterpret_cast<INT_PTR>(result) <= kLastError) return std::nullopt;
  return std::wstring(program);
}

bool Win32Shell::Start(const std::wstring& commandLine) {
  if (commandLine.empty()) return false;
  std::wstring line = commandLine;  // the call may write into it
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process))
    return false;
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return true;
}

std::optional<std::wstring> Win32Shell::ReadRegistry(RegistryRoot root, const std::wstring& key,
                                                     const std::wstring& valueName) {
  const HKEY from = root == RegistryRoot::ClassesRoot ? HKEY_CLASSES_ROOT : HKEY_CURRENT_USER;
  BYTE data[4096];
  DWORD size = sizeof data;
  DWORD type = 0;
  const DWORD kinds = RRF_RT_ANY | RRF_NOEXPAND;
  if (RegGetValueW(from, key.c_str(), valueName.c_str(), kinds, &type, data, &size)) return std::nullopt;
  if (type == REG_SZ) return std::wstring(reinterpret_cast<const wchar_t*>(data));
  if (type == REG_DWORD) return std::to_wstring(*reinterpret_cast<const DWORD*>(data));
  return std::wstring();
}

bool Win32Shell::ShowHelpFile(const std::wstring& helpFile, int topic) {
  if (!HasHelpViewer()) return false;
  return WinHelpW(GetActiveWindow(), helpFile.c_str(), topic == 0 ? HELP_INDEX : HELP_CONTEXT,
                  static_cast<ULONG_PTR>(topic)) != 0;
}

void Win32Shell::CloseHelpFile(const std::wstring& helpFile) {
  if (HasHelpViewer()) WinHelpW(GetActiveWindow(), helpFile.c_str(), HELP_QUIT, 0);
}

}  // namespace troth
