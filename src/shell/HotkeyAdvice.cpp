#include "shell/HotkeyAdvice.h"

#include <algorithm>
#include <optional>

#include "platform/forms/KeyCodes.h"

namespace troth {

namespace {

constexpr int kF4Key = kF1Key + 3;
constexpr int kKeys = kF12Key - kF1Key + 1;

// In the order in which they are suggested: few keys to hold first.
constexpr int kModifiers[] = {
    0, kHotkeyControl, kHotkeyShift, kHotkeyAlt, kHotkeyControl | kHotkeyShift, kHotkeyControl | kHotkeyAlt};

// The system keeps F12 alone for debuggers, and refuses it or takes it without ever reporting a press.
bool IsReserved(const HotkeyRecord& hotkey) { return hotkey.key == kF12Key && hotkey.Modifiers() == 0; }

// Alt+F4 would work, and close no window any more.
bool MayBeSuggested(const HotkeyRecord& hotkey) {
  return !IsReserved(hotkey) && !(hotkey.key == kF4Key && hotkey.alt);
}

bool IsUsed(const HotkeyRecord& hotkey, const std::vector<HotkeyRecord>& others) {
  return std::any_of(others.begin(), others.end(), [&](const HotkeyRecord& other) {
    return other.enabled && other.IsSameCombination(hotkey);
  });
}

std::wstring NameOf(const HotkeyRecord& hotkey) {
  return std::wstring(hotkey.control ? L"Ctrl+" : L"") + (hotkey.alt ? L"Alt+" : L"") +
         (hotkey.shift ? L"Shift+" : L"") + L'F' + std::to_wstring(hotkey.key - kF1Key + 1);
}

// The chosen key with other modifiers if possible, otherwise the next key.
std::optional<HotkeyRecord> Suggestion(const HotkeyRecord& chosen, const std::vector<HotkeyRecord>& others,
                                       const HotkeyTrial& works) {
  const bool isOffered = chosen.key >= kF1Key && chosen.key <= kF12Key;
  const int first = (isOffered ? chosen.key : kF12Key) - kF1Key;
  for (int step = 0; step < kKeys; ++step)
    for (const int modifiers : kModifiers) {
      HotkeyRecord candidate;
      candidate.key = kF1Key + (first + step) % kKeys;
      candidate.control = (modifiers & kHotkeyControl) != 0;
      candidate.alt = (modifiers & kHotkeyAlt) != 0;
      candidate.shift = (modifiers & kHotkeyShift) != 0;
      if (MayBeSuggested(candidate) && !IsUsed(candidate, others) && works(candidate)) return candidate;
    }
  return std::nullopt;
}

}  // namespace

std::wstring HotkeyAdvice(const HotkeyRecord& chosen, const std::vector<HotkeyRecord>& others,
                          const HotkeyTrial& works) {
  if (!chosen.enabled) return {};
  std::wstring text;
  if (IsReserved(chosen))
    text = L"Reserved by Windows.";
  else if (IsUsed(chosen, others))
    text = L"Used twice in this dialog.";
  else if (works(chosen))
    return L"Free.";
  else
    text = L"Taken by another program.";
  if (const auto other = Suggestion(chosen, others, works)) text += L" Try " + NameOf(*other) + L".";
  return text;
}

}  // namespace troth
