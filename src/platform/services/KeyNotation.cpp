#include "platform/services/KeyNotation.h"

#include <algorithm>
#include <string>

#include "platform/forms/Control.h"
#include "platform/forms/KeyCodes.h"

namespace troth {

namespace {

constexpr int kLastFunctionKey = 16;  // F16
constexpr std::size_t kMostPresses = 1000;

struct NamedKey {
  std::wstring_view name;
  int keyCode;
};

constexpr NamedKey kNamedKeys[] = {
    {L"BACKSPACE", 8}, {L"BKSP", 8},    {L"BS", 8},      {L"BREAK", 3},        {L"CAPSLOCK", 20},
    {L"CLEAR", 12},    {L"DEL", 46},    {L"DELETE", 46}, {L"DOWN", 40},        {L"END", 35},
    {L"ENTER", 13},    {L"ESC", 27},    {L"ESCAPE", 27}, {L"HELP", 47},        {L"HOME", 36},
    {L"INS", 45},      {L"INSERT", 45}, {L"LEFT", 37},   {L"NUMLOCK", 144},    {L"PGDN", 34},
    {L"PGUP", 33},     {L"PRTSC", 44},  {L"RIGHT", 39},  {L"SCROLLLOCK", 145}, {L"TAB", 9},
    {L"UP", 38},
};

wchar_t Upper(wchar_t c) { return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - L'a' + L'A') : c; }

std::optional<std::size_t> ReadCount(std::wstring_view digits) {
  std::size_t count = 0;
  for (const wchar_t c : digits) {
    if (c < L'0' || c > L'9') return std::nullopt;
    count = count * 10 + static_cast<std::size_t>(c - L'0');
    if (count > kMostPresses) return std::nullopt;
  }
  return digits.empty() ? std::nullopt : std::optional(count);
}

std::optional<int> KeyCodeOf(std::wstring_view name) {
  std::wstring upper(name);
  std::transform(upper.begin(), upper.end(), upper.begin(), Upper);
  for (const NamedKey& key : kNamedKeys)
    if (key.name == upper) return key.keyCode;
  if (upper.size() < 2 || upper[0] != L'F') return std::nullopt;
  const auto number = ReadCount(std::wstring_view(upper).substr(1));
  if (!number || *number < 1 || *number > kLastFunctionKey) return std::nullopt;
  return kF1Key + static_cast<int>(*number) - 1;
}

class Reader {
 public:
  explicit Reader(std::wstring_view notation) : rest_(notation) {}

  std::optional<std::vector<KeyStroke>> Read() {
    while (!rest_.empty())
      if (!ReadKey(0)) return std::nullopt;
    return std::move(strokes_);
  }

 private:
  static int ShiftMark(wchar_t c) {
    return c == L'+' ? kShiftDown : c == L'^' ? kControlDown : c == L'%' ? kAltDown : 0;
  }

  bool ReadKey(int shift) {
    int marks = 0;
    while (!rest_.empty() && ShiftMark(rest_.front())) {
      marks |= ShiftMark(rest_.front());
      rest_.remove_prefix(1);
    }
    if (rest_.empty()) return false;
    shift |= marks;
    const wchar_t c = rest_.front();
    if (c == L'{') return ReadBraces(shift);
    rest_.remove_prefix(1);
    if (c == L'(') return ReadGroup(shift);
    if (c == L')' || c == L'}') return false;
    strokes_.push_back(c == L'~' ? KeyStroke{.keyCode = kEnterKey, .shift = shift}
                                 : KeyStroke{.character = c, .shift = shift});
    return true;
  }

  bool ReadGroup(int shift) {
    while (!rest_.empty() && rest_.front() != L')') {
      // A group inside a group adds nothing and would allow unlimited nesting.
      if (rest_.front() == L'(' || !ReadKey(shift)) return false;
    }
    if (rest_.empty()) return false;
    rest_.remove_prefix(1);
    return true;
  }

  // The search for the closing brace starts after the first character, which may be a brace itself.
  bool ReadBraces(int shift) {
    if (rest_.size() < 3) return false;
    const std::size_t end = rest_.find(L'}', 2);
    if (end == std::wstring_view::npos) return false;
    std::wstring_view name = rest_.substr(1, end - 1);
    rest_.remove_prefix(end + 1);
    std::size_t count = 1;
    if (const std::size_t blank = name.find(L' ', 1); blank != std::wstring_view::npos) {
      const auto number = ReadCount(name.substr(blank + 1));
      if (!number) return false;
      count = *number;
      name = name.substr(0, blank);
    }
    KeyStroke stroke{.shift = shift};
    if (name.size() == 1) {
      stroke.character = name.front();
    } else if (const auto keyCode = KeyCodeOf(name)) {
      stroke.keyCode = *keyCode;
    } else {
      return false;
    }
    strokes_.insert(strokes_.end(), count, stroke);
    return true;
  }

  std::wstring_view rest_;
  std::vector<KeyStroke> strokes_;
};

}  // namespace

std::optional<std::vector<KeyStroke>> ParseKeyNotation(std::wstring_view notation) {
  return Reader(notation).Read();
}

}  // namespace troth
