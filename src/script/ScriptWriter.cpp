#include "script/ScriptWriter.h"

#include "platform/services/TextService.h"
#include "script/ScriptLine.h"
#include "script/WeddingRows.h"

namespace troth {

std::string ScriptBytes(const WeddingRows& rows, const TextService& text) {
  std::wstring lines;
  for (const WeddingRow& row : rows) {
    if (!row.IsComment() && row.Delay() >= kShortestWaitMs)
      lines += L'$' + std::to_wstring(row.Delay()) + L"$,";
    lines += row.OriginalText();
    lines += L"\r\n";
  }
  return text.Encode(lines);
}

}  // namespace troth
