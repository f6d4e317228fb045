// Puts the desktop of Windows and the program together.
#include <windows.h>

#include <cstdlib>
#include <string>

#include "app/Crash.h"
#include "core/Program.h"
#include "platform/win32/Win32Desktop.h"
#include "shell/StartUp.h"

namespace {

// The full path of the file that was given on the command line or dropped on the icon; empty if there is
// none.
std::wstring GivenFile() {
  if (__argc < 2) return {};
  std::wstring path(GetFullPathNameW(__wargv[1], 0, nullptr, nullptr), L'\0');
  path.resize(GetFullPathNameW(__wargv[1], static_cast<DWORD>(path.size()), path.data(), nullptr));
  return path;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  // A library of the same name in the program folder, which anybody's download may have put there, is not
  // taken.
  SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
  troth::PrepareForCrash();

  troth::Win32Desktop desktop;
  troth::Program program(desktop.platform);
  program.StartScript = GivenFile();
  troth::RunProgram(program);
  return 0;
}
