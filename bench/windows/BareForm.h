// The program bare_form.exe, which creates the same windows, controls and menus as the start of the real
// program does, and nothing else.
#pragma once

#include <string>

namespace troth::bench {

// Records the real windows for it. Returns its path.
std::wstring RecordBareForm();

}  // namespace troth::bench
