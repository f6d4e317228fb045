// The notation in which key presses are written, read into single strokes. Called by the backends' keyboards.
//
//   a          the character itself
//   ~          Enter
//   + ^ %      Shift, Control, Alt held for the next key or for a group: +a, ^(ab)
//   {NAME}     a named key: {ENTER}, {TAB}, {F5}, {PGUP}
//   {NAME 4}   the key so many times; {x 4} the same for a character
//   {+} {{}    a character that otherwise has a meaning of its own
#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace troth {

// One press and release. Either a character, for whatever keys type it, or a virtual key code.
struct KeyStroke {
  wchar_t character = 0;
  int keyCode = 0;
  int shift = 0;  // kShiftDown, kControlDown, kAltDown
  friend bool operator==(const KeyStroke&, const KeyStroke&) = default;
};

// Nothing if the notation is invalid: an unknown name, a brace or group without its end, a count that is
// no number from 0 to 1000, a shift mark without a key. An invalid notation presses no key at all.
std::optional<std::vector<KeyStroke>> ParseKeyNotation(std::wstring_view notation);

}  // namespace troth
