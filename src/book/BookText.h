// The text of a book: its rows, how many rows and characters are ticked, and what is saved of it. Which rows
// are ticked is asked of the caller, since the list of the window holds the ticks. Touches no file and no
// window.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace troth {

class TextService;

// The lines of a text file, up to kMostRows of the book.
std::vector<std::wstring> ReadBookLines(std::string_view bytes, const TextService& text);

class BookText {
 public:
  static constexpr int kMostRows = 10000;
  using IsTicked = std::function<bool(int row)>;  // row from 0

  std::vector<std::wstring> BookRows;
  // The number of rows, 0 while they are being replaced; and the sum over the rows of the length and 1 for
  // the Enter at the end of the row.
  std::int32_t BookRowCount = 0;
  std::int32_t BookCharCount = 0;

  // Replaces the rows, at most kMostRows, and counts them.
  void SetRows(std::vector<std::wstring> rows);

  // "KMBook (1 row of 3, 12 characters of 40)".
  std::wstring Title(const IsTicked& isTicked) const;
};

}  // namespace troth
