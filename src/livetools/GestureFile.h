// The names of the game's gestures, which come with the program. Read by the gesture bar; written by nobody.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace troth {

class TextService;

inline constexpr std::size_t kGestures = 28;

// From the bytes of Gestures.ini: one name a line, without the blanks around it. An empty line is a gesture
// without a name. There are neither sections nor comments. At most 28 names; fewer if the file has fewer
// lines.
std::vector<std::wstring> ReadGestures(std::string_view bytes, const TextService& page);

}  // namespace troth
