// The editor of the desktop tests: adds a line to the file that it is given, and ends.
#include <windows.h>

#include <shellapi.h>

#include <filesystem>
#include <fstream>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  int count = 0;
  wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
  if (count < 2) return 1;
  std::ofstream(std::filesystem::path(arguments[1]), std::ios::binary | std::ios::app) << "edited\r\n";
  LocalFree(arguments);
  return 0;
}
