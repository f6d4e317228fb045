#include "script/modScript.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/Platform.h"
#include "platform/services/DialogService.h"
#include "platform/services/FileService.h"
#include "platform/services/ProcessService.h"
#include "platform/services/TextService.h"
#include "script/DecimalKey.h"
#include "script/IndexEntries.h"
#include "script/LineReader.h"
#include "script/MessageBoxes.h"
#include "script/ScriptFileName.h"
#include "script/ScriptLine.h"
#include "script/WeddingScript.h"

namespace troth::modScript {
namespace {

void AddRow(const ScriptLine& line, WeddingRows& rows, IndexEntries& entries) {
  const std::int32_t number = rows.Count() + 1;
  WeddingRow& row = rows.Add(std::wstring(line.text), true, line.isComment, DecimalKey(number));
  row.OriginalText(line.text);
  row.Delay(line.delayMs);
  if (line.chapterTitle) entries.Add(std::wstring(*line.chapterTitle), number, 0, {});
  row.IndexPointer(entries.Count());
}

// False if the text has more rows than a script can hold; the first ones are in then.
bool AddRows(std::wstring_view text, WeddingRows& rows, IndexEntries& entries) {
  LineReader lines(text);
  while (const auto line = lines.Next()) {
    const auto parsed = ParseScriptLine(*line);
    if (!parsed) continue;
    if (rows.Count() == kMaxRows) return false;
    AddRow(*parsed, rows, entries);
  }
  return true;
}

void EndProgram(WeddingScript& script, Platform& platform, const std::function<void()>& beforeEnd) {
  script.sFileName({});
  platform.dialogs.ShowMessage({.text = L"Error while reading Script file. Aborting execution.",
                                .title = L"Application error",
                                .icon = BoxIcon::Stop});
  if (beforeEnd) beforeEnd();
  platform.process.EndNow(1);
}

}  // namespace

void LoadScriptFile(WeddingScript& script, IndexEntries& entries, Platform& platform,
                    const std::function<void()>& beforeEnd) {
  script.Dirty(false);
  const std::wstring path = script.sFileName();
  if (path.empty() || !platform.files.Exists(path)) {
    script.sFileName({});
    script.Rows(nullptr);
    return;
  }

  const auto language = LanguageOf(path);
  const auto bytes = language ? platform.files.Read(path) : std::nullopt;
  if (!bytes) return EndProgram(script, platform, beforeEnd);

  script.LanguageString(*language);
  script.Rows(std::make_unique<WeddingRows>());
  while (entries.Count() > 0) entries.Remove(entries.Count());
  script.CurrentRow(0);
  script.IsTruncated(!AddRows(platform.text.Decode(*bytes), *script.Rows(), entries));
}

bool AskForScript(const WeddingScript& script, const Platform& platform) {
  if (!script.sFileName().empty()) return true;
  ShowBox(platform, BoxIcon::Information, L"Please load a script file first.");
  return false;
}

}  // namespace troth::modScript
