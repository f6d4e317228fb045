// Any bytes as the table of replacements: each character of the page must come out as the last line for it
// says, here found byte by byte and without the program's own readers.
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <utility>

#include "platform/headless/HeadlessServices.h"
#include "script/UnicodeTable.h"

namespace {

using Entries = std::array<std::string, 256>;

void TakeLine(std::string line, Entries& entries) {
  while (line.starts_with(' ')) line.erase(0, 1);
  while (line.ends_with(' ')) line.pop_back();
  if (line.size() > 2) entries[static_cast<unsigned char>(line[0])] = line.substr(2);
}

Entries Expected(const std::string& file) {
  Entries entries;
  for (std::size_t code = 0; code < entries.size(); ++code) entries[code] = static_cast<char>(code);
  std::string line;
  bool isBehindReturn = false;
  for (const char byte : file) {
    if (byte == '\r') TakeLine(std::exchange(line, {}), entries);
    if (byte != '\r' && !(byte == '\n' && isBehindReturn)) line += byte;
    isBehindReturn = byte == '\r';
  }
  TakeLine(line, entries);
  return entries;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string file(reinterpret_cast<const char*>(data), size);
  const troth::HeadlessText page;
  troth::UnicodeTable table;
  table.LoadFrom("a=what was there before", page);
  table.LoadFrom(file, page);

  std::string all;
  std::string expected;
  const Entries entries = Expected(file);
  for (std::size_t code = 0; code < entries.size(); ++code) {
    all += static_cast<char>(code);
    expected += entries[code];
  }
  if (table.Translate(page.Decode(all), page) != page.Decode(expected)) std::abort();
  return 0;
}
