// The small commands that a comment row can hold, carried out when the advance passes the row. What they do
// beyond the dynamic variables is done by the caller's actions; no window is known here.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace troth {

class CustVars;

// All are mandatory.
struct DirectiveActions {
  // Special character translation on or off, with its flag.
  std::function<void(bool)> setTranslation;
  std::function<void()> takeScreenshot;
  // Shows a complaint modally, whether or not popup messages are wanted; other handlers can run meanwhile.
  std::function<void(const std::wstring&)> showPopup;
};

// `comment` is the row's text without its mark and without blanks around it. In any case of letters:
//
//   {T0}  {T1}          translation off, on
//   {SS}                a screenshot
//   {def name, value}   defines or changes a dynamic variable; only the first comma counts
//   {undef name}        removes it; a name that is not defined is no mistake
//
// Names are kept in upper case. Anything else is a comment and asks for nothing.
void CarryOutDirective(std::wstring_view comment, CustVars& dynamicVars, const DirectiveActions& actions);

}  // namespace troth
