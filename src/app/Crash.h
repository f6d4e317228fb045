// How a run ends that cannot go on. Called by the handlers of last resort.
#pragma once

#include <windows.h>

namespace troth {

// A crash ends the process with this code and shows no box, which would hang whoever waits for the end.
inline constexpr UINT kCrashed = 70;

[[noreturn]] inline void EndCrashed() {
  for (;;) TerminateProcess(GetCurrentProcess(), kCrashed);
}

}  // namespace troth
