// The simulator of the game client of Kestrel Moors: reads its options and runs its window until it is
// closed.
#include <windows.h>

#include <cstdlib>
#include <exception>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "game/GameOptions.h"
#include "game/GameWindow.h"
#include "game/Transcript.h"

namespace troth::game {
namespace {

constexpr int kWrongOptions = 2;
constexpr int kTranscriptRefused = 3;
constexpr int kNoWindow = 4;
constexpr UINT kCrashed = 70;

LONG WINAPI EndCrashed(EXCEPTION_POINTERS*) {
  TerminateProcess(GetCurrentProcess(), kCrashed);
  return EXCEPTION_EXECUTE_HANDLER;
}

// A crash ends the game without a box, which would block the process that waits for the game.
void CrashQuietly() {
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
  SetUnhandledExceptionFilter(EndCrashed);
  std::set_terminate([] { TerminateProcess(GetCurrentProcess(), kCrashed); });
}

// Prints to the stream that was inherited, otherwise to the console of the parent process, otherwise not at
// all.
void Print(DWORD stream, std::wstring_view text) {
  HANDLE out = GetStdHandle(stream);
  if (out == nullptr || out == INVALID_HANDLE_VALUE) {
    if (!AttachConsole(ATTACH_PARENT_PROCESS)) return;
    out = GetStdHandle(stream);
  }
  const int length = static_cast<int>(text.size());
  std::string bytes(text.size() * 3, '\0');
  const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(),
                                       static_cast<int>(bytes.size()), nullptr, nullptr);
  DWORD written = 0;
  WriteFile(out, bytes.data(), static_cast<DWORD>(size), &written, nullptr);
}

int Play(int showCommand) {
  ParsedOptions parsed = ParseOptions({__wargv + 1, __wargv + __argc});
  if (!parsed.error.empty()) {
    Print(STD_ERROR_HANDLE, parsed.error + L"\n\n" + kUsage);
    return kWrongOptions;
  }
  if (parsed.options.help) {
    Print(STD_OUTPUT_HANDLE, kUsage);
    return EXIT_SUCCESS;
  }
  Transcript transcript;
  if (!parsed.options.transcript.empty() && !transcript.Open(parsed.options.transcript)) {
    Print(STD_ERROR_HANDLE, L"The transcript " + parsed.options.transcript + L" cannot be opened.\n");
    return kTranscriptRefused;
  }
  GameWindow game(std::move(parsed.options), std::move(transcript));
  return game.Open(showCommand) ? game.Run() : kNoWindow;
}

}  // namespace
}  // namespace troth::game

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int showCommand) {
  troth::game::CrashQuietly();
  return troth::game::Play(showCommand);
}
