// Puts the desktop of Windows and the program together.
#include <windows.h>

#include <exception>

#include "platform/win32/Win32Desktop.h"
#include "shell/Program.h"
#include "shell/StartUp.h"

namespace {

// A crash ends the process with this code and shows no box, which would hang whoever waits for the end.
constexpr UINT kCrashed = 70;

LONG WINAPI EndCrashed(EXCEPTION_POINTERS*) {
  TerminateProcess(GetCurrentProcess(), kCrashed);
  return EXCEPTION_EXECUTE_HANDLER;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  SetUnhandledExceptionFilter(EndCrashed);
  std::set_terminate([] { TerminateProcess(GetCurrentProcess(), kCrashed); });
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);

  troth::Win32Desktop desktop;
  troth::Program program(desktop.platform);
  troth::RunProgram(program);
  return 0;
}
