// The note that a crash leaves: when, what and where in the program, and none of the user's text. The handler
// of last resort writes it, and the next start mentions it, once.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace troth {

struct Platform;

// Below the user's folder for local data.
inline constexpr wchar_t kCrashFolder[] = L"\\Trothline";
inline constexpr wchar_t kCrashNote[] = L"\\Trothline\\crash.txt";
inline constexpr wchar_t kSeenCrashNote[] = L"\\Trothline\\crash (seen).txt";

struct CrashDetails {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;  // UTC
  std::uint32_t exceptionCode = 0;
  std::string_view version;
  std::string_view module;   // file name without folder; empty if the address lies in none
  std::uint64_t offset = 0;  // from the start of the module, or the address itself
};

// Writes the note into the buffer and returns its length; what does not fit is cut off. Takes no memory and
// no lock, so that it can be called in a process that has just crashed.
std::size_t ComposeCrashNote(std::span<char> buffer, const CrashDetails& details);

// If a run before this one left a note, says so and marks the note as seen. The note is kept.
void MentionCrash(const Platform& platform);

}  // namespace troth
