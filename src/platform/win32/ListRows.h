// What the lists of the real desktop have in common: the system's list keeps no rows, it asks for the text of
// each row that it draws or searches.
#pragma once

#include <windows.h>
// The system's list needs windows.h before it.
#include <commctrl.h>

#include <functional>
#include <string>

namespace troth {

struct ListRows {
  int count = 0;
  std::function<const std::wstring&(int row)> text;
};

// Puts the text of the row into the request, if it asks for it.
void AnswerRowText(const ListRows& rows, LVITEMW& request);

// The next row that begins with the letters typed, or -1.
LRESULT FindRow(const ListRows& rows, const NMLVFINDITEMW& search);

// Makes the only column wide enough for the longest row and `besideText` pixels, and as wide as the list at
// least, so that every word can be scrolled to.
void FitOnlyColumn(HWND list, const ListRows& rows, int besideText);

}  // namespace troth
