// Loads any bytes as a script, from the file to the rows, and checks what holds for every
// loaded script.
#include <cstddef>
#include <cstdint>
#include <string>

#include "Require.h"
#include "platform/headless/HeadlessDesktop.h"
#include "script/IndexEntries.h"
#include "script/ScriptLine.h"
#include "script/Text.h"
#include "script/WeddingScript.h"
#include "script/modScript.h"

namespace troth {
namespace {

const std::wstring kPath = L"C:\\script.txt";

void CheckRow(const WeddingRow& row) {
  const std::wstring& text = row.OriginalText();
  Require(!text.empty(), "a row has a text");
  Require(TrimBlanks(text).size() == text.size(), "a row has no blanks at its ends");
  Require(text.find(L'\r') == std::wstring::npos, "a row is one line");
  Require(row.WText() == text, "both texts are the same until variables are put in");
  Require(row.IsComment() == (text[0] == L'@' || text[0] == L'&'),
          "comments are known by their first character");
  Require(row.IsEnabled(), "a row is enabled");
  Require(row.Delay() >= 0 && row.Delay() <= kMaxDelayMs, "a delay is within its limits");
}

void CheckRows(const WeddingRows& rows, const IndexEntries& entries) {
  std::int32_t number = 0;
  std::int32_t chapter = 0;
  for (const WeddingRow& row : rows) {
    ++number;
    CheckRow(row);
    Require(&rows.Item(std::to_wstring(number)) == &row, "the key of row n is n");
    Require(&rows.Item(number) == &row, "rows are numbered in order");
    if (chapter < entries.Count() && entries.Item(chapter + 1).ScriptPointer() == number) {
      ++chapter;
      Require(row.OriginalText() == L"@!" + entries.Item(chapter).IText(), "a chapter row carries its title");
    } else {
      const std::wstring& text = row.OriginalText();
      Require(!text.starts_with(L"@!") || text.size() < 4, "every chapter row makes an entry");
    }
    Require(row.IndexPointer() == chapter, "a row falls under the latest chapter");
  }
  Require(number == rows.Count(), "the enumerator walks all rows");
  Require(chapter == entries.Count(), "every entry belongs to a row");
}

}  // namespace
}  // namespace troth

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace troth;
  HeadlessDesktop desktop;
  desktop.files.Put(kPath, std::string(reinterpret_cast<const char*>(data), size));
  WeddingScript script;
  IndexEntries entries;
  script.sFileName(kPath);
  modScript::LoadScriptFile(script, entries, desktop.platform);

  Require(script.Rows() != nullptr, "a file that is read gives rows");
  Require(script.Rows()->Count() <= kMaxRows, "a script holds no more rows than the list can count");
  Require(desktop.journal.Lines().empty() || script.Rows()->Count() == kMaxRows,
          "only too long a script raises a message");
  CheckRows(*script.Rows(), entries);
  return 0;
}
