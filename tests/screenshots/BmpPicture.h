// Reads a bitmap file as other programs do, from its bytes alone: what the tests know of the format, they
// know from here and not from the program.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace troth {

class BmpPicture {
 public:
  explicit BmpPicture(std::string bytes) : bytes_(std::move(bytes)) {
    if (bytes_.size() < 54 || bytes_.substr(0, 2) != "BM") throw std::runtime_error("not a bitmap file");
    width = static_cast<int>(Number(18, 4));
    height = static_cast<int>(Number(22, 4));
    pixels_ = Number(10, 4);
    const std::uint32_t bits = Number(28, 2);
    if (bits != 24 || Number(30, 4) != 0) throw std::runtime_error("not plain colours");
    rowBytes_ = (static_cast<std::size_t>(width) * 3 + 3) / 4 * 4;
    if (bytes_.size() != pixels_ + rowBytes_ * static_cast<std::size_t>(height) ||
        bytes_.size() != Number(2, 4))
      throw std::runtime_error("the sizes do not agree");
  }

  // 0x00BBGGRR.
  std::uint32_t At(int left, int top) const {
    const std::size_t place =
        pixels_ + rowBytes_ * static_cast<std::size_t>(height - 1 - top) + static_cast<std::size_t>(left) * 3;
    return Byte(place) << 16 | Byte(place + 1) << 8 | Byte(place + 2);
  }

  int width = 0;
  int height = 0;

 private:
  std::uint32_t Byte(std::size_t place) const { return static_cast<unsigned char>(bytes_.at(place)); }
  std::uint32_t Number(std::size_t place, int bytes) const {
    std::uint32_t number = 0;
    for (int i = bytes - 1; i >= 0; --i) number = number << 8 | Byte(place + static_cast<std::size_t>(i));
    return number;
  }

  std::string bytes_;
  std::size_t pixels_ = 0;
  std::size_t rowBytes_ = 0;
};

}  // namespace troth
