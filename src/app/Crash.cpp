#include "app/Crash.h"

// The process status functions need windows.h before them.
#include <psapi.h>

#include <exception>
#include <iterator>

#include "core/CrashNote.h"
#include "core/Version.h"

namespace troth {

namespace {

constexpr DWORD kTerminated = 0xE0000001;  // an exception of C++ that nobody caught
constexpr DWORD kPatienceMs = 3000;
constexpr ULONG kStackForHandler = 32768;  // is kept free for the end of a stack that overflowed
constexpr std::size_t kLongestPath = 1024;

// After a crash nothing can be trusted: neither the heap, nor a lock that another thread may hold, nor an
// object of the program. What the handler needs is therefore kept here from the start.
struct {
  wchar_t folder[kLongestPath];
  wchar_t note[kLongestPath];
  char version[32];
  HANDLE hasCrashed;
  DWORD crashedThread;
} prepared;

[[noreturn]] void End() {
  for (;;) TerminateProcess(GetCurrentProcess(), kCrashed);
}

// Waits for as long as the process runs, since a thread could no longer be started after a crash.
DWORD WINAPI EndIfTheHandlerHangs(void*) {
  WaitForSingleObject(prepared.hasCrashed, INFINITE);
  Sleep(kPatienceMs);
  End();
}

// The name of the file that the address belongs to. The system knows it by the memory that the file is mapped
// to; its list of modules would be guarded by a lock.
std::size_t NameModule(const void* base, std::span<char> name) {
  wchar_t path[kLongestPath];
  const DWORD length =
      K32GetMappedFileNameW(GetCurrentProcess(), const_cast<void*>(base), path, kLongestPath);
  std::size_t start = length;
  while (start > 0 && path[start - 1] != L'\\') --start;
  std::size_t count = 0;
  for (; start + count < length && count < name.size(); ++count)
    name[count] = path[start + count] < 0x80 ? static_cast<char>(path[start + count]) : '?';
  return count;
}

void WriteNote(DWORD exceptionCode, const void* address) {
  SYSTEMTIME now;
  GetSystemTime(&now);
  CrashDetails details{.year = now.wYear,
                       .month = now.wMonth,
                       .day = now.wDay,
                       .hour = now.wHour,
                       .minute = now.wMinute,
                       .second = now.wSecond,
                       .exceptionCode = exceptionCode,
                       .version = prepared.version,
                       .offset = reinterpret_cast<std::uint64_t>(address)};
  char module[64];
  MEMORY_BASIC_INFORMATION memory;
  if (VirtualQuery(address, &memory, sizeof memory) && memory.Type == MEM_IMAGE) {
    details.module = {module, NameModule(memory.AllocationBase, module)};
    details.offset -= reinterpret_cast<std::uint64_t>(memory.AllocationBase);
  }
  char text[512];
  const auto length = static_cast<DWORD>(ComposeCrashNote(text, details));
  CreateDirectoryW(prepared.folder, nullptr);
  const HANDLE file = CreateFileW(prepared.note, GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  DWORD written = 0;
  if (file != INVALID_HANDLE_VALUE) WriteFile(file, text, length, &written, nullptr);
}

LONG WINAPI OnException(EXCEPTION_POINTERS* exception) {
  const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
  EndCrashed(record.ExceptionCode, record.ExceptionAddress);
}

[[noreturn]] void OnTerminate() { EndCrashed(kTerminated, __builtin_return_address(0)); }

}  // namespace

void PrepareForCrash() {
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
  ULONG stack = kStackForHandler;
  SetThreadStackGuarantee(&stack);
  wchar_t data[kLongestPath / 2] = {};
  GetEnvironmentVariableW(L"LOCALAPPDATA", data, std::size(data));
  lstrcpyW(prepared.folder, data);
  lstrcatW(prepared.folder, kCrashFolder);
  lstrcpyW(prepared.note, data);
  lstrcatW(prepared.note, kCrashNote);
  const std::wstring version = RunningVersion().Text();
  std::copy(version.begin(), version.end(), prepared.version);
  prepared.hasCrashed = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  CloseHandle(CreateThread(nullptr, kStackForHandler, EndIfTheHandlerHangs, nullptr,
                           STACK_SIZE_PARAM_IS_A_RESERVATION, nullptr));
  SetUnhandledExceptionFilter(OnException);
  std::set_terminate(OnTerminate);
}

// A crash inside the handler ends at once; one of another thread leaves the first one the time to write.
void EndCrashed(DWORD exceptionCode, const void* address) {
  const DWORD thread = GetCurrentThreadId();
  const auto first = InterlockedCompareExchange(reinterpret_cast<LONG*>(&prepared.crashedThread),
                                                static_cast<LONG>(thread), 0);
  if (first == static_cast<LONG>(thread)) End();
  if (first != 0) Sleep(kPatienceMs);
  SetEvent(prepared.hasCrashed);
  if (first == 0) WriteNote(exceptionCode, address);
  End();
}

}  // namespace troth
