#include "book/BookText.h"

#include <utility>

#include "platform/services/TextService.h"
#include "script/LineReader.h"

namespace troth {

namespace {

std::int32_t CharactersOf(const std::wstring& row) { return static_cast<std::int32_t>(row.size()) + 1; }

std::wstring Counted(std::int32_t number, const wchar_t* noun) {
  return std::to_wstring(number) + L' ' + noun + (number == 1 ? L"" : L"s");
}

}  // namespace

std::vector<std::wstring> ReadBookLines(std::string_view bytes, const TextService& text) {
  std::vector<std::wstring> rows;
  LineReader lines(bytes);
  for (auto line = lines.Next(); line && rows.size() < BookText::kMostRows; line = lines.Next())
    rows.push_back(text.Decode(*line));
  return rows;
}

void BookText::SetRows(std::vector<std::wstring> rows) {
  BookRows = std::move(rows);
  BookRowCount = static_cast<std::int32_t>(BookRows.size());
  BookCharCount = 0;
  for (const std::wstring& row : BookRows) BookCharCount += CharactersOf(row);
}

std::wstring BookText::Title(const IsTicked& isTicked) const {
  std::int32_t rows = BookRowCount;
  std::int32_t characters = BookCharCount;
  for (int row = 0; row < static_cast<int>(BookRows.size()); ++row) {
    if (isTicked(row)) continue;
    --rows;
    characters -= CharactersOf(BookRows[static_cast<std::size_t>(row)]);
  }
  return L"KMBook (" + Counted(rows, L"row") + L" of " + std::to_wstring(BookRowCount) + L", " +
         Counted(characters, L"character") + L" of " + std::to_wstring(BookCharCount) + L")";
}

}  // namespace troth
