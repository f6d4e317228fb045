// What code built with -fstack-protector-strong calls. The compiler's own library for it asks a cryptographic
// provider for the random value, which brings three libraries into the process and takes a tenth of the
// start.
#include <windows.h>
// The random numbers need windows.h before them.
#include <ntsecapi.h>

#include <cstdint>

#include "app/Crash.h"

// Functions compare the value below their frame with this one when they return.
extern "C" std::uintptr_t __stack_chk_guard;
extern "C" [[noreturn]] void __stack_chk_fail();

std::uintptr_t __stack_chk_guard = 0;

void __stack_chk_fail() {
  constexpr DWORD kStackOverrun = 0xC0000409;
  troth::EndCrashed(kStackOverrun, __builtin_return_address(0));
}

namespace {

// Runs before main and before everything that returns into guarded code; itself it must not be guarded, since
// the value changes under it.
[[gnu::constructor, gnu::no_stack_protector]] void DrawGuard() {
  std::uintptr_t drawn = 0;
  // Unlike the time or an address it cannot be guessed; should it ever fail, an address of this start is
  // left.
  if (!RtlGenRandom(&drawn, sizeof drawn))
    drawn = reinterpret_cast<std::uintptr_t>(&drawn) * 0x9E3779B97F4A7C15u;
  // A zero byte stops a string that is copied over the end of its place before the value is complete.
  __stack_chk_guard = drawn & ~std::uintptr_t{0xFF};
}

}  // namespace
