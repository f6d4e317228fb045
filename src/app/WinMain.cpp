// Puts the desktop of Windows and the program together.
#include <windows.h>

#include <exception>

#include "app/Crash.h"
#include "core/Program.h"
#include "platform/win32/Win32Desktop.h"
#include "shell/StartUp.h"

namespace {

LONG WINAPI OnCrash(EXCEPTION_POINTERS*) { troth::EndCrashed(); }

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  SetUnhandledExceptionFilter(OnCrash);
  std::set_terminate([] { troth::EndCrashed(); });
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);

  troth::Win32Desktop desktop;
  troth::Program program(desktop.platform);
  troth::RunProgram(program);
  return 0;
}
