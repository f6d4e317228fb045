// Any bytes as the file of the variables and, behind the first NUL, as a text that uses them: what is loaded
// keeps its rules and comes back from its own file, and marks go where they should.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "Require.h"
#include "platform/headless/HeadlessDesktop.h"
#include "script/CustVars.h"
#include "script/Directives.h"
#include "script/Expansion.h"
#include "script/Text.h"
#include "script/UserVarsFile.h"
#include "script/WeddingScript.h"

namespace troth {
namespace {

bool IsTrimmed(const std::wstring& text) { return TrimBlanks(text).size() == text.size(); }

void CheckLoaded(const CustVars& vars) {
  Require(vars.Count() >= 2 && vars.Item(1)->VarName() == L"groom" && vars.Item(2)->VarName() == L"bride",
          "the couple comes first");
  for (const CustVar& variable : vars) {
    const std::wstring& name = variable.VarName();
    Require(!name.empty() && IsTrimmed(name), "a variable has a name without blanks at its ends");
    Require(name.find_first_of(L"=\r") == std::wstring::npos, "a name ends at the first sign");
    Require(IsTrimmed(variable.VarValue()), "a value has no blanks at its ends");
    Require(variable.VarValue().find_first_of(L"#\r") == std::wstring::npos, "a value leads to no other");
    Require(vars.Item(name) == &variable, "a name is there once and leads to its variable");
  }
}

// What is written is read again as it was, without a word.
void CheckFile(const CustVars& vars) {
  HeadlessDesktop desktop;
  CustVars again;
  Require(modScript::SaveUserVars(vars, desktop.platform), "the file is written");
  modScript::LoadUserVars(again, vars.Item(1)->VarValue(), vars.Item(2)->VarValue(), desktop.platform);
  Require(desktop.journal.Lines().empty(), "a written file raises no message");
  Require(again.Count() == vars.Count(), "all variables come back");
  for (std::int32_t number = 1; number <= vars.Count(); ++number) {
    Require(again.Item(number)->VarName() == vars.Item(number)->VarName(), "a name comes back");
    Require(again.Item(number)->VarValue() == vars.Item(number)->VarValue(), "a value comes back");
  }
}

std::wstring Applied(const std::wstring& text, const CustVars& vars) {
  WeddingScript script;
  script.sFileName(L"vows.txt");
  script.Rows(std::make_unique<WeddingRows>());
  script.Rows()->Add(L"", true, false, {}).OriginalText(text);
  modScript::ApplyUserVars(script, vars);
  return script.Rows()->Item(1).WText();
}

std::wstring WithoutBlanks(std::wstring text) {
  std::erase(text, L' ');
  return text;
}

// Variables that stand for their own marks leave a text as it is; so do marks of no variable.
void CheckMarks(const std::wstring& text, CustVars vars) {
  for (CustVar& variable : vars) variable.VarValue(L'#' + variable.VarName() + L'#');
  Require(EqualsNoCase(Applied(text, vars), text), "a mark that stands for itself changes nothing");
  Require(Applied(text, CustVars{}) == text, "marks of no variable stay");
  Require(ExpandVariables(text, CustVars{}) == text, "without variables a text is that very text");
  Require(EqualsNoCase(WithoutBlanks(ExpandVariables(text, vars)), WithoutBlanks(text)),
          "a mark that stands for itself loses nothing but blanks");
}

void CheckDirective(const std::wstring& text, CustVars& vars) {
  const std::int32_t before = vars.Count();
  int popups = 0;
  CarryOutDirective(
      TrimBlanks(text), vars,
      {.setTranslation = {}, .takeScreenshot = {}, .showPopup = [&](const auto&) { ++popups; }});
  Require(std::abs(vars.Count() - before) <= 1, "a directive is about one variable");
  Require(popups <= 2, "a directive complains of each of its words once");
  if (vars.Count() <= before) return;
  const CustVar& added = *vars.Item(vars.Count());
  Require(ToUpper(added.VarName()) == added.VarName() && IsTrimmed(added.VarName()),
          "a defined name is in upper case and trimmed");
  Require(IsTrimmed(added.VarValue()), "a defined value is trimmed");
}

}  // namespace
}  // namespace troth

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace troth;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const auto end = bytes.find('\0');
  HeadlessDesktop desktop;
  desktop.files.Put(L"C:\\Games\\Trothline\\Vars.txt", bytes.substr(0, end));
  const std::wstring text = end == std::string::npos ? L"" : desktop.text.Decode(bytes.substr(end + 1));

  CustVars vars;
  modScript::LoadUserVars(vars, L"Rowan", L"Anna", desktop.platform);
  CheckLoaded(vars);
  CheckFile(vars);
  CheckDirective(text, vars);
  CheckMarks(text, std::move(vars));
  return 0;
}
