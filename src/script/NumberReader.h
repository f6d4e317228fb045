// The one way in which the program reads a number from text: delays, settings, boxes that the user fills in.
#pragma once

#include <cstdint>
#include <string_view>

namespace troth {

// A number is blanks, a sign, digits, a decimal point and digits, each of which may be missing; it ends at
// the first character that does not fit, and what follows does not matter. No digits give 0. A number beyond
// 32 bits gives the nearest one that fits. The decimal point is "." in every locale.
//
// A fraction is rounded to the nearest whole number, an exact half to the even neighbour: "2.5" gives 2 and
// "3.5 s" gives 4. Where the caller says so it is dropped: "3.5 s" gives 3.
enum class Fraction { Rounded, Dropped };
std::int32_t ReadNumber(std::wstring_view text, Fraction fraction = Fraction::Rounded);

// The same number with its fraction.
double ReadReal(std::wstring_view text);

}  // namespace troth
