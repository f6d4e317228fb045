// The program's name as the user reads it: title of message boxes and windows, name of the settings.
#pragma once

namespace troth {

inline constexpr wchar_t kProgramTitle[] = L"Trothline";

}  // namespace troth
