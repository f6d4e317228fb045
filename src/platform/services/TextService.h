// The system's 8-bit code page: converts the bytes of files and of the game to wide strings and back.
// Called by loaders, writers and senders; it knows nothing of lines or marks.
#pragma once

#include <string>
#include <string_view>

namespace troth {

class TextService {
 public:
  virtual ~TextService() = default;

  // Every byte sequence decodes; a byte without a character becomes a placeholder.
  virtual std::wstring Decode(std::string_view bytes) const = 0;

  // A character that is not on the page becomes the most similar one that the system knows, otherwise "?".
  virtual std::string Encode(std::wstring_view text) const = 0;
};

}  // namespace troth
