// The options of the command line and the text that describes them. Only main uses them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace troth::game {

struct GameOptions {
  std::wstring windowClass = L"Kestrel Moors";
  std::wstring title = L"Kestrel Moors";
  std::optional<std::pair<int, int>> size;      // outer size, pixels; none: 960x640 at 96 DPI, scaled
  std::optional<std::pair<int, int>> position;  // pixels; none: the system's choice
  std::wstring transcript;                      // file name; empty: none is kept
  int slowMs = 0;                               // time per character
  std::optional<std::uint64_t> stallAfter;      // characters
  std::optional<int> stallMs;                   // none: until resumed
  bool bookOpen = false;                        // at the start
  bool help = false;
};

struct ParsedOptions {
  GameOptions options;
  std::wstring error;  // empty if all options are valid
};

// The arguments without the program's name.
ParsedOptions ParseOptions(const std::vector<std::wstring>& arguments);

extern const wchar_t* const kUsage;

}  // namespace troth::game
