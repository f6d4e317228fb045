// Puts the values of variables in place of their marks. Called when a script is loaded or a user variable has
// changed, and when a sentence is built. Touches no window and defines no variable.
#pragma once

#include <string>
#include <string_view>

namespace troth {

class CustVars;
class WeddingScript;

// A mark is a name between two "#". Both stages replace from left to right, pair by pair; a value is not
// looked at again, and a "#" without a partner is just that. They differ in these points:
//
//                     user variables            dynamic variables
//   the name          as it stands              its blanks trimmed
//   an unknown one    stays as it is            stays, without those blanks
//   "##"              is passed over            ends the replacing

namespace modScript {

// Builds the WText of all rows again from their original text; comments keep theirs. Nothing if no file is
// loaded.
void ApplyUserVars(WeddingScript& script, const CustVars& userVars);

}  // namespace modScript

// The text with the dynamic variables in it; as long as there are none, the very text.
std::wstring ExpandVariables(std::wstring_view text, const CustVars& dynamicVars);

}  // namespace troth
