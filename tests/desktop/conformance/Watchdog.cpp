#include "tests/desktop/conformance/Watchdog.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace troth {

namespace {

constexpr DWORD kPatienceMs = 60000;
constexpr UINT kExitCode = 70;

std::string TestName() {
  const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
  return test ? std::string(test->test_suite_name()) + "." + test->name() : "no test";
}

LONG WINAPI OnCrash(EXCEPTION_POINTERS* crash) {
  std::printf("CRASH %08lx at %p in %s\n", crash->ExceptionRecord->ExceptionCode,
              crash->ExceptionRecord->ExceptionAddress, TestName().c_str());
  std::fflush(stdout);
  TerminateProcess(GetCurrentProcess(), kExitCode);
  return EXCEPTION_CONTINUE_SEARCH;
}

}  // namespace

Watchdog::Watchdog() : over_(CreateEventW(nullptr, TRUE, FALSE, nullptr)) {
  SetUnhandledExceptionFilter(&OnCrash);
  thread_ = std::thread([this, name = TestName()] {
    if (WaitForSingleObject(over_, kPatienceMs) != WAIT_TIMEOUT) return;
    std::printf("HANGS: %s\n", name.c_str());
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), kExitCode);
  });
}

Watchdog::~Watchdog() {
  SetEvent(over_);
  thread_.join();
  CloseHandle(over_);
}

}  // namespace troth
