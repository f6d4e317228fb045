#include "bench/windows/Measure.h"

#include <windows.h>
// The snapshot of threads needs windows.h before it.
#include <tlhelp32.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace troth::bench {

namespace {

const std::wstring kStore = L"Software\\Trothline\\Troth\\";

struct Search {
  DWORD process;
  HWND found;
};

// The main window: tool windows may be shown before it, but it owns them.
BOOL CALLBACK IsShownBy(HWND window, LPARAM data) {
  auto& search = *reinterpret_cast<Search*>(data);
  DWORD owner = 0;
  GetWindowThreadProcessId(window, &owner);
  if (owner != search.process || !IsWindowVisible(window) || GetWindow(window, GW_OWNER)) return TRUE;
  search.found = window;
  return FALSE;
}

HWND ShownWindowOf(DWORD process) {
  Search search{process, nullptr};
  EnumWindows(&IsShownBy, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

double Milliseconds(const FILETIME& time) {
  constexpr double kTicksPerMs = 10000;
  return (static_cast<double>(time.dwHighDateTime) * 4294967296.0 + time.dwLowDateTime) / kTicksPerMs;
}

}  // namespace

double NowMs() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double, std::milli>(now).count();
}

double Median(std::vector<double> samples) {
  const auto middle = samples.begin() + static_cast<std::ptrdiff_t>(samples.size() / 2);
  std::nth_element(samples.begin(), middle, samples.end());
  return *middle;
}

void Report(const std::string& name, double measured, const std::string& unit, Limit limit) {
  const bool kept = limit.atMost ? measured <= limit.value : measured >= limit.value;
  std::printf("%s: %.2f%s (%s %.2f%s)%s\n", name.c_str(), measured, unit.c_str(),
              limit.atMost ? "at most" : "at least", limit.value, unit.c_str(), kept ? "" : "  MISSED");
  std::fflush(stdout);
}

// The programs lie in the build folder above the benchmarks.
std::wstring ProgramPath(const std::wstring& executable) {
  if (const wchar_t* told = _wgetenv(L"TROTH_PROGRAM"))
    return (std::filesystem::path(told) / executable).wstring();
  wchar_t own[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, own, MAX_PATH);
  const std::filesystem::path here = std::filesystem::path(own).parent_path();
  const auto beside = here / executable;
  return std::filesystem::exists(beside) ? beside.wstring() : (here.parent_path() / executable).wstring();
}

void StoreSetting(const wchar_t* section, const wchar_t* key, const std::wstring& value) {
  RegSetKeyValueW(HKEY_CURRENT_USER, (kStore + section).c_str(), key, REG_SZ, value.c_str(),
                  static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
}

void ForgetSettings(const wchar_t* section) { RegDeleteTreeW(HKEY_CURRENT_USER, (kStore + section).c_str()); }

Started::Started(const std::wstring& path) {
  std::wstring line = L'"' + path + L'"';
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION started{};
  if (!CreateProcessW(path.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                      &started)) {
    std::fprintf(stderr, "a program is missing beside the benchmarks\n");
    std::exit(EXIT_FAILURE);
  }
  CloseHandle(started.hThread);
  process_.reset(started.hProcess);
  id_ = started.dwProcessId;
}

Started::~Started() { Close(); }

void Started::Close() const {
  if (WaitForSingleObject(process_.get(), 0) == WAIT_OBJECT_0) return;
  constexpr DWORD kPatienceMs = 5000;
  PostMessageW(ShownWindowOf(id_), WM_CLOSE, 0, 0);
  if (WaitForSingleObject(process_.get(), kPatienceMs) != WAIT_OBJECT_0) TerminateProcess(process_.get(), 1);
}

void Started::WaitUntilShown() const {
  while (!ShownWindowOf(id_) && WaitForSingleObject(process_.get(), 0) != WAIT_OBJECT_0) Sleep(0);
}

void Started::WaitUntilIdle() const { WaitForInputIdle(process_.get(), INFINITE); }

// Thread by thread: Wine answers for another process as a whole with the times of the one that asks.
double Started::ProcessorMs() const {
  const Unique<HANDLE, CloseHandle> all(CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0));
  THREADENTRY32 entry{};
  entry.dwSize = sizeof entry;
  double spentMs = 0;
  for (BOOL more = Thread32First(all.get(), &entry); more; more = Thread32Next(all.get(), &entry)) {
    if (entry.th32OwnerProcessID != id_) continue;
    const Unique<HANDLE, CloseHandle> thread(OpenThread(THREAD_QUERY_INFORMATION, FALSE, entry.th32ThreadID));
    FILETIME created, ended, kernel, user;
    if (GetThreadTimes(thread.get(), &created, &ended, &kernel, &user))
      spentMs += Milliseconds(kernel) + Milliseconds(user);
  }
  return spentMs;
}

}  // namespace troth::bench
