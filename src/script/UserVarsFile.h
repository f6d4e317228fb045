// The file in which the user keeps variables from one run to the next. Read at start-up, written by the
// dialog of the variables. Messages to the user are shown in boxes; no window is touched.
#pragma once

#include <string_view>

namespace troth {

class CustVars;
struct Platform;

// Vars.txt in the program folder, one variable a line:
//
//   name = value    blanks around both are passed over; the first "=" counts, further ones are the value's
//
// A line without "=", or with nothing before it, is passed over. There are no comments: "; note = x"
// defines a variable "; note". A value must not hold "#", so that no variable can lead to another.
namespace modScript {

// Empties the variables and fills them: "groom" and "bride", with the texts given, are always the first two,
// those of the file follow. A name that the file has twice, or one of the first two, takes the
// later value at its first place. A file that is not there, or cannot be opened, has none, silently;
// of one that cannot be read to its end the lines up to there count, and a message says so.
void LoadUserVars(CustVars& vars, std::wstring_view groom, std::wstring_view bride, Platform& platform);

// Writes all but the first two. The file is replaced whole, or stays as it was: then a message says so, and
// the result is false.
bool SaveUserVars(const CustVars& vars, Platform& platform);

}  // namespace modScript
}  // namespace troth
