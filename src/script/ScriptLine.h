// The grammar of one line of a script file, apart from any file or window. Called by the script loader.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace troth {

inline constexpr std::int32_t kMaxDelayMs = 30000;

// A row's delay below this gives way to the general interval of unattended speech.
inline constexpr std::int32_t kShortestWaitMs = 2000;

// What a line says. The views look into the line.
struct ScriptLine {
  std::int32_t delayMs = 0;
  std::wstring_view text;
  bool isComment = false;
  std::optional<std::wstring_view> chapterTitle;
};

// A line is an optional delay prefix and a text, with blanks at both ends of each passed over:
//
//   $ number $ , text      the row waits that many ms, 0 to 30000, in unattended speech
//   text                   all else, dollar signs included: "$2000$ hello" is a sentence of that very text
//
// A text that begins with "@" or "&" is a comment; "@!" and a title of at least two characters open a
// chapter. A line without text gives nothing.
std::optional<ScriptLine> ParseScriptLine(std::wstring_view line);

}  // namespace troth
