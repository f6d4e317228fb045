#include "game/GameOptions.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cwchar>
#include <limits>
#include <string_view>

namespace troth::game {
namespace {

// A whole number that is all of the text.
template <typename Number>
bool ReadNumber(const std::wstring& text, Number least, Number& number) {
  if (text.empty() || text.find_first_not_of(L"-0123456789") != std::wstring::npos) return false;
  wchar_t* end = nullptr;
  errno = 0;
  const long long value = std::wcstoll(text.c_str(), &end, 10);
  if (errno != 0 || *end != L'\0' || value < static_cast<long long>(least)) return false;
  if (static_cast<unsigned long long>(std::max(value, 0LL)) > std::numeric_limits<Number>::max())
    return false;
  number = static_cast<Number>(value);
  return true;
}

bool ReadPair(const std::wstring& text, wchar_t separator, int least,
              std::optional<std::pair<int, int>>& pair) {
  const std::size_t at = text.find(separator);
  if (at == std::wstring::npos) return false;
  std::pair<int, int> read;
  if (!ReadNumber(text.substr(0, at), least, read.first)) return false;
  if (!ReadNumber(text.substr(at + 1), least, read.second)) return false;
  pair = read;
  return true;
}

bool ReadName(const std::wstring& text, std::wstring& name) {
  name = text;
  return !text.empty();
}

template <typename Number>
bool ReadOptional(const std::wstring& text, std::optional<Number>& number) {
  Number read{};
  if (!ReadNumber<Number>(text, 0, read)) return false;
  number = read;
  return true;
}

struct Option {
  std::wstring_view name;
  bool (*read)(const std::wstring& value, GameOptions& options);
};

constexpr int kLeastPosition = -32768;

constexpr std::array kOptions{
    Option{L"--class", [](const std::wstring& v, GameOptions& o) { return ReadName(v, o.windowClass); }},
    Option{L"--title", [](const std::wstring& v, GameOptions& o) { return ReadName(v, o.title); }},
    Option{L"--size", [](const std::wstring& v, GameOptions& o) { return ReadPair(v, L'x', 1, o.size); }},
    Option{L"--position", [](const std::wstring& v,
                             GameOptions& o) { return ReadPair(v, L',', kLeastPosition, o.position); }},
    Option{L"--transcript", [](const std::wstring& v, GameOptions& o) { return ReadName(v, o.transcript); }},
    Option{L"--slow", [](const std::wstring& v, GameOptions& o) { return ReadNumber(v, 0, o.slowMs); }},
    Option{L"--stall-after",
           [](const std::wstring& v, GameOptions& o) { return ReadOptional(v, o.stallAfter); }},
    Option{L"--stall-ms", [](const std::wstring& v, GameOptions& o) { return ReadOptional(v, o.stallMs); }},
};

}  // namespace

const wchar_t* const kUsage =
    LR"(KestrelMoors - a simulator of the game client of Kestrel Moors.

  KestrelMoors.exe [options]

A window that receives typed characters, shows them as a chat (or, while the
book is open, on its page) and can record them. F2 opens and closes the book.

  --class NAME       window class            (default: Kestrel Moors)
  --title TEXT       window title            (default: Kestrel Moors)
  --size WxH         outer size in pixels    (default: 960x640, scaled)
  --position X,Y     upper left corner in pixels
  --transcript FILE  append a line for each character as it arrives:
                     its code, a blank, the message's second parameter
  --book             start with the book open
  --slow MS          spend at least MS milliseconds on each character
  --stall-after N    after N characters (0: from the start) process no
                     message ...
  --stall-ms MS      ... for MS milliseconds; without it, or before they
                     have passed, the event "KestrelMoors.Resume.<process
                     id>" ends the stall
  --help             this text

Exit codes: 0 closed, 2 wrong options, 3 the transcript cannot be written,
70 crashed.
)";

ParsedOptions ParseOptions(const std::vector<std::wstring>& arguments) {
  ParsedOptions parsed;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::wstring& name = arguments[i];
    if (name == L"--help") {
      parsed.options.help = true;
      continue;
    }
    if (name == L"--book") {
      parsed.options.bookOpen = true;
      continue;
    }
    const auto option = std::ranges::find(kOptions, name, &Option::name);
    if (option == kOptions.end()) {
      parsed.error = L"There is no option " + name + L".";
      return parsed;
    }
    if (++i == arguments.size() || !option->read(arguments[i], parsed.options)) {
      parsed.error = L"The option " + name + L" needs a valid value.";
      return parsed;
    }
  }
  return parsed;
}

}  // namespace troth::game
