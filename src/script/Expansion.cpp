#include "script/Expansion.h"

#include <cstddef>
#include <optional>

#include "script/CustVars.h"
#include "script/Text.h"
#include "script/WeddingScript.h"

namespace troth {
namespace {

struct Mark {
  std::size_t begin;  // of its first "#"
  std::size_t end;    // after its second
  std::wstring_view name;
};

std::optional<Mark> NextMark(std::wstring_view text, std::size_t from) {
  const auto first = text.find(L'#', from);
  if (first == std::wstring_view::npos) return std::nullopt;
  const auto second = text.find(L'#', first + 1);
  if (second == std::wstring_view::npos) return std::nullopt;
  return Mark{first, second + 1, text.substr(first + 1, second - first - 1)};
}

std::wstring WithUserVars(std::wstring_view text, const CustVars& userVars) {
  std::wstring result;
  std::size_t done = 0;
  std::size_t scan = 0;
  while (const auto mark = NextMark(text, scan)) {
    scan = mark->end;
    const CustVar* variable = userVars.Item(mark->name);
    if (!variable) continue;
    result.append(text, done, mark->begin - done).append(variable->VarValue());
    done = mark->end;
  }
  return result.append(text, done);
}

}  // namespace

void modScript::ApplyUserVars(WeddingScript& script, const CustVars& userVars) {
  if (script.sFileName().empty() || !script.Rows()) return;
  for (WeddingRow& row : *script.Rows()) {
    row.WText(row.IsComment() ? row.OriginalText() : WithUserVars(row.OriginalText(), userVars));
  }
}

std::wstring ExpandVariables(std::wstring_view text, const CustVars& dynamicVars) {
  std::wstring result;
  if (dynamicVars.Count() == 0) return result.append(text);
  std::size_t done = 0;
  while (const auto mark = NextMark(text, done)) {
    if (mark->name.empty()) break;
    const auto name = TrimBlanks(mark->name);
    const CustVar* variable = dynamicVars.Item(dynamicVars.NumberOf(name));
    result.append(text, done, mark->begin - done);
    if (variable)
      result.append(variable->VarValue());
    else
      result.append(1, L'#').append(name).append(1, L'#');
    done = mark->end;
  }
  return result.append(text, done);
}

}  // namespace troth
