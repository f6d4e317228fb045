// Turns a picture into the bytes of a bitmap file. Writes no file.
#pragma once

#include <optional>
#include <string>

namespace troth {

class Bitmap;

// Nothing if the pixels cannot be read.
std::optional<std::string> BmpFile(const Bitmap& bitmap);

}  // namespace troth
