#include "script/Directives.h"

#include <cstdint>
#include <string_view>

#include "script/CustVars.h"
#include "script/Text.h"

namespace troth {
namespace {

// Cuts the word off the command, if something follows it.
bool TakeWord(std::wstring_view& command, std::wstring_view word) {
  if (command.size() <= word.size() || !EqualsNoCase(command.substr(0, word.size()), word)) return false;
  command.remove_prefix(word.size());
  return true;
}

// False if the definition has no comma, or nothing at one side of it.
bool Define(std::wstring_view definition, CustVars& vars) {
  const auto comma = definition.find(L',');
  if (comma == std::wstring_view::npos || comma == 0 || comma + 1 == definition.size()) return false;
  const std::wstring name = ToUpper(TrimBlanks(definition.substr(0, comma)));
  const std::wstring value(TrimBlanks(definition.substr(comma + 1)));
  if (CustVar* known = vars.Item(vars.NumberOf(name)))
    known->VarValue(value);
  else
    vars.Add(name, value, name);
  return true;
}

// False if there is no name.
bool Undefine(std::wstring_view name, CustVars& vars) {
  name = TrimBlanks(name);
  if (name.empty()) return false;
  if (const std::int32_t number = vars.NumberOf(name)) vars.Remove(number);
  return true;
}

}  // namespace

void CarryOutDirective(std::wstring_view comment, CustVars& dynamicVars, const DirectiveActions& actions) {
  if (comment.size() < 4 || comment.front() != L'{' || comment.back() != L'}') return;
  // The caller's row may be gone after a popup.
  const std::wstring whole(comment);
  auto command = std::wstring_view(whole).substr(1, whole.size() - 2);

  if (EqualsNoCase(command, L"T0")) return actions.setTranslation(false);
  if (EqualsNoCase(command, L"T1")) return actions.setTranslation(true);
  if (EqualsNoCase(command, L"SS")) return actions.takeScreenshot();
  // What follows "def" is looked at for "undef" as well: "{defundef ring}" complains and removes.
  if (TakeWord(command, L"DEF") && !Define(command, dynamicVars))
    actions.showPopup(L"Syntax error in !def command: " + whole);
  if (TakeWord(command, L"UNDEF") && !Undefine(command, dynamicVars))
    actions.showPopup(L"Invalid variable name in !undef command: " + whole);
}

}  // namespace troth
