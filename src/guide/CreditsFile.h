// The credits: one that is built in, and those of a file that comes with the program.
#pragma once

#include <string_view>

#include "guide/CCredits.h"

namespace troth {

class TextService;

// The credit that always stands first, alone.
CCredits BuiltInCredits();

// Appends what the bytes of Credits.dat hold. A line, without blanks at its ends, is
//
//   #Heading    opens a credit: the rest of the line is its heading
//   A name      a line of the credit opened last, which is that of the program at first
//
// A line of one character or none says nothing.
void AppendCredits(CCredits& credits, std::string_view bytes, const TextService& page);

}  // namespace troth
