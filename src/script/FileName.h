// Whether a text that the user typed can be the name of a file in a given folder. Asked before every path
// that is made from such a text; touches no file.
#pragma once

#include <string_view>

namespace troth {

// False for a name that leads out of its folder, that no file can have, or that means something else than a
// file: a stream of another file (":") or a device, which "nul.txt" is as well as "NUL".
bool IsFileName(std::wstring_view name);

}  // namespace troth
