// What the command line can ask of the game, and the text that tells it. Only main reads it.
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
  std::optional<std::pair<int, int>> position;  // pixels; none: the desktop's choice
  std::wstring transcript;                      // file name; empty: none is kept
  int slowMs = 0;                               // what each character costs
  std::optional<std::uint64_t> stallAfter;      // characters
  std::optional<int> stallMs;                   // none: until resumed
  bool help = false;
};

struct ParsedOptions {
  GameOptions options;
  std::wstring complaint;  // empty: all was understood
};

// The arguments without the program's name.
ParsedOptions ParseOptions(const std::vector<std::wstring>& arguments);

extern const wchar_t* const kUsage;

}  // namespace troth::game
