// Any bytes as a journal, read in pieces whose size is the first byte, and as the character's name what
// follows up to the first NUL: the pieces change nothing, and each row is the sentence of a line of that
// character.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

#include "Require.h"
#include "authoring/JournalParser.h"
#include "authoring/LineStream.h"
#include "platform/headless/HeadlessServices.h"
#include "script/LineReader.h"
#include "script/Text.h"

namespace troth {
namespace {

// The rule in its slow and plain form: whether the character says anything in this line.
bool Speaks(std::string_view line, const std::wstring& name, const TextService& text) {
  const auto separator = line.find(": ");
  if (separator == std::string_view::npos || separator == 0 || separator + 2 == line.size()) return false;
  return ToUpper(text.Decode(line.substr(0, separator))) == ToUpper(TrimBlanks(name));
}

void CheckRow(std::string_view line, std::string_view row) {
  Require(row.ends_with("\r\n"), "a row ends its line");
  row.remove_suffix(2);
  Require(row.find('\r') == std::string_view::npos, "a row is one line");
  const std::string_view sentence = row.starts_with(": ") ? row.substr(2) : row;
  Require(line.find(sentence) != std::string_view::npos, "a row is what the line says");
}

}  // namespace
}  // namespace troth

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace troth;
  if (size == 0) return 0;
  const std::size_t piece = std::max<std::size_t>(data[0], 1);
  const std::string_view input(reinterpret_cast<const char*>(data) + 1, size - 1);
  const auto end = std::min(input.find('\0'), input.size());
  const HeadlessText text;
  const std::wstring name = text.Decode(input.substr(0, end));
  const std::string_view journal = input.substr(std::min(end + 1, input.size()));

  std::size_t at = 0;
  LineStream stream([&](std::span<char> place) -> std::optional<std::size_t> {
    const std::size_t count = std::min({piece, place.size(), journal.size() - at});
    std::copy_n(journal.begin() + static_cast<std::ptrdiff_t>(at), count, place.begin());
    at += count;
    return count;
  });
  LineReader<char> lines(journal);
  JournalParser parser(name, text);
  while (const auto line = lines.Next()) {
    const auto streamed = stream.Next();
    Require(streamed == line, "the pieces of a file change none of its lines");
    Require(stream.AtEnd() == lines.IsAtEnd(), "the last line is known as the last");
    std::string row;
    Require(parser.AppendRow(*line, row) == Speaks(*line, name, text), "the character is known by the name");
    if (!row.empty()) CheckRow(*line, row);
  }
  Require(!stream.Next(), "a stream has no more lines than its file");
  return 0;
}
