// Waiting for a state of another process, never for a time: asks every few milliseconds, and gives up only
// when the other side must be stuck. Used by everything in this folder.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <type_traits>

namespace troth::desktop {

// How long a state may take on a machine that is busy with other things.
inline constexpr ULONGLONG kPatienceMs = 20000;
inline constexpr DWORD kPollMs = 5;

// True as soon as the condition holds, false when patience is at its end.
template <class Condition>
bool Eventually(Condition condition, ULONGLONG patienceMs = kPatienceMs) {
  const ULONGLONG end = GetTickCount64() + patienceMs;
  while (!condition()) {
    if (GetTickCount64() > end) return false;
    Sleep(kPollMs);
  }
  return true;
}

// Asks until the answer is the wanted one; a failure tells of the last answer, and ends the test: what waits
// for a state in vain has nothing left to look at.
template <class Answer, class Ask>
void Await(const Answer& wanted, Ask ask, const char* what, const char* file, int line) {
  Answer last = ask();
  if (Eventually([&] { return last == wanted || (last = ask()) == wanted; })) return;
  throw std::runtime_error(std::string(file) + ':' + std::to_string(line) + ": " + what +
                           " did not come to be " + testing::PrintToString(wanted) + " but stayed " +
                           testing::PrintToString(last));
}

}  // namespace troth::desktop

#define AWAIT_EQ(wanted, question)                                                                           \
  ::troth::desktop::Await<std::decay_t<decltype(question)>>((wanted), [&] { return (question); }, #question, \
                                                            __FILE__, __LINE__)
#define AWAIT(condition) AWAIT_EQ(true, static_cast<bool>(condition))
