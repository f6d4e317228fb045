// Scripts that an editor has saved in today's manner, as UTF-8 or with bare line feeds, and the form in which
// the loader reads them: letters of the system's code page, lines that end in CR LF. The script browser asks
// before it converts one. Reads and writes no file.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace troth {

class TextService;

struct ScriptConversion {
  std::string bytes;              // what the file should hold
  bool wasUtf8 = false;           // it has the signature of UTF-8, or letters that are valid UTF-8
  bool hadBareLineFeeds = false;  // and no other line ends
  bool losesLetters = false;  // the code page lacks letters of it, and has only look-alikes or "?" for them
};

// Nothing if the loader reads the file as its author means it: a file of plain ASCII with proper line ends,
// or of bytes that are no UTF-8.
std::optional<ScriptConversion> ConvertScript(std::string_view bytes, const TextService& text);

}  // namespace troth
