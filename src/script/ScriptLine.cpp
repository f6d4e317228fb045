#include "script/ScriptLine.h"

#include <algorithm>

#include "script/NumberReader.h"
#include "script/Text.h"

namespace troth {
namespace {

// Takes a delay prefix off the line, if there is one, and sets the delay.
std::wstring_view TakeDelayPrefix(std::wstring_view line, std::int32_t& delayMs) {
  if (!line.starts_with(L'$')) return line;
  const auto secondDollar = line.find(L'$', 1);
  if (secondDollar == std::wstring_view::npos) return line;
  const auto rest = TrimBlanks(line.substr(secondDollar + 1));
  if (!rest.starts_with(L',')) return line;

  delayMs = std::clamp(ReadNumber(line.substr(1, secondDollar - 1)), 0, kMaxDelayMs);
  return TrimBlanks(rest.substr(1));
}

std::optional<std::wstring_view> ChapterTitle(std::wstring_view text) {
  constexpr std::wstring_view kMark = L"@!";
  constexpr std::size_t kShortestTitle = 2;
  if (!text.starts_with(kMark) || text.size() < kMark.size() + kShortestTitle) return std::nullopt;
  return text.substr(kMark.size());
}

}  // namespace

std::optional<ScriptLine> ParseScriptLine(std::wstring_view line) {
  ScriptLine parsed;
  parsed.text = TakeDelayPrefix(TrimBlanks(line), parsed.delayMs);
  if (parsed.text.empty()) return std::nullopt;
  parsed.isComment = parsed.text[0] == L'@' || parsed.text[0] == L'&';
  parsed.chapterTitle = ChapterTitle(parsed.text);
  return parsed;
}

}  // namespace troth
