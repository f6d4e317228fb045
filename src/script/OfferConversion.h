// Asks the user whether a script that the loader would garble is to be converted. Every way in which the user
// opens a script passes here first.
#pragma once

#include <string>

namespace troth {

struct Platform;

// Says nothing about a file that is read as it was meant, or that cannot be read at all. After Yes the file
// is replaced as a whole; if it cannot be written, a message says so and it stays as it is.
void OfferConversion(const Platform& platform, const std::wstring& path);

}  // namespace troth
