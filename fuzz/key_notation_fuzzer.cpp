// Any text handed to the keyboard as key notation: it is read or refused, and a text without special marks is
// read as itself.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "platform/forms/Control.h"
#include "platform/services/KeyNotation.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::wstring text(data, data + size);
  const auto strokes = troth::ParseKeyNotation(text);
  if (text.find_first_of(L"+^%~(){}") == std::wstring::npos) {
    if (!strokes || strokes->size() != size) std::abort();
    for (std::size_t i = 0; i < size; ++i)
      if ((*strokes)[i] != troth::KeyStroke{.character = text[i]}) std::abort();
  }
  if (!strokes) return 0;
  if (strokes->size() > size * 1000) std::abort();
  constexpr int kAllShifts = troth::kShiftDown | troth::kControlDown | troth::kAltDown;
  for (const troth::KeyStroke& stroke : *strokes) {
    const bool isKey = stroke.keyCode >= 3 && stroke.keyCode <= 145;
    if (isKey == (stroke.character != 0) && stroke.keyCode != 0) std::abort();
    if (stroke.shift & ~kAllShifts) std::abort();
  }
  return 0;
}
