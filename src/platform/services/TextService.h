// The system's 8-bit code page: how bytes in files and towards the game become the wide strings inside.
// Called by loaders, writers and senders; decides nothing about lines or marks.
#pragma once

#include <string>
#include <string_view>

namespace troth {

class TextService {
 public:
  virtual ~TextService() = default;

  // Every byte sequence decodes; a byte without a character of its own becomes some placeholder.
  virtual std::wstring Decode(std::string_view bytes) const = 0;

  // A character that the page lacks becomes its nearest look-alike if the system knows one, otherwise "?".
  virtual std::string Encode(std::wstring_view text) const = 0;
};

}  // namespace troth
