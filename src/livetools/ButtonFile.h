// The file in which the user keeps a set of button texts. Read and written by the button bar.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace troth {

class TextService;

// How many buttons of the bar have a text, and so how many lines of the file count.
inline constexpr std::size_t kSpeechButtons = 10;

// The texts of the first ten lines: one line a button, taken as it stands, blanks included; an empty line is
// an empty text. There are neither keys nor quotes nor comments. Fewer if the file has fewer lines.
std::vector<std::wstring> ReadButtonFile(std::string_view bytes, const TextService& page);

std::string WriteButtonFile(std::span<const std::wstring> texts, const TextService& page);

}  // namespace troth
