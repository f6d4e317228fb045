// How a run ends that cannot go on: with a note about the crash and without a box, which would hang whoever
// waits for the end. Used by the handlers of last resort.
#pragma once

#include <windows.h>

namespace troth {

// The process ends with this code.
inline constexpr UINT kCrashed = 70;

// Installs the handlers and gets everything ready that a crash then needs. Called once, before all else.
void PrepareForCrash();

// Writes the note, as far as that is possible, and ends the process within seconds, whatever state it is in.
[[noreturn]] void EndCrashed(DWORD exceptionCode, const void* address);

}  // namespace troth
