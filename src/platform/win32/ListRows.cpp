#include "platform/win32/ListRows.h"

#include <algorithm>
#include <cwchar>

namespace troth {

namespace {
// The list draws no more of a row than this.
constexpr std::size_t kShownCharacters = 259;
}  // namespace

void AnswerRowText(const ListRows& rows, LVITEMW& request) {
  if (request.iItem < 0 || request.iItem >= rows.count) return;
  if (request.mask & LVIF_TEXT && request.cchTextMax > 0)
    std::wcsncpy(request.pszText, rows.text(request.iItem).c_str(),
                 static_cast<std::size_t>(request.cchTextMax) - 1)[request.cchTextMax - 1] = L'\0';
}

LRESULT FindRow(const ListRows& rows, const NMLVFINDITEMW& search) {
  if (!(search.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) || rows.count == 0) return -1;
  const std::size_t length = std::wcslen(search.lvfi.psz);
  const int start = std::max(0, search.iStart);
  for (int step = 0; step < rows.count; ++step) {
    const int row = (start + step) % rows.count;
    if (_wcsnicmp(rows.text(row).c_str(), search.lvfi.psz, length) == 0) return row;
  }
  return -1;
}

// Measuring all rows would take longer than showing them: the row with the most characters stands for the
// widest.
void FitOnlyColumn(HWND list, const ListRows& rows, int besideText) {
  const std::wstring* longest = nullptr;
  for (int row = 0; row < rows.count; ++row)
    if (!longest || rows.text(row).size() > longest->size()) longest = &rows.text(row);
  int width = 0;
  if (longest) {
    const std::wstring shown = longest->substr(0, kShownCharacters);
    width = besideText + static_cast<int>(SendMessageW(list, LVM_GETSTRINGWIDTHW, 0,
                                                       reinterpret_cast<LPARAM>(shown.c_str())));
  }
  RECT client;
  GetClientRect(list, &client);
  width = std::max<int>(width, client.right);
  if (width != ListView_GetColumnWidth(list, 0)) ListView_SetColumnWidth(list, 0, width);
}

}  // namespace troth
