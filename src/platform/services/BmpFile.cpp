#include "platform/services/BmpFile.h"

#include <cstdint>
#include <span>

#include "platform/services/GraphicsService.h"

namespace troth {

namespace {

constexpr std::size_t kHeaderBytes = 14 + 40;
constexpr unsigned kBitsAPixel = 24;

class LittleEndianWriter {
 public:
  explicit LittleEndianWriter(std::string& bytes) : bytes_(bytes) {}
  void Put(unsigned value, int width) {
    for (int byte = 0; byte < width; ++byte) bytes_[at_++] = static_cast<char>(value >> (8 * byte) & 0xFF);
  }

 private:
  std::string& bytes_;
  std::size_t at_ = 0;
};

}  // namespace

// A file header (mark, size, two unused numbers, where the pixels start) and an information header (its own
// size, width, height, planes, bits a pixel, no compression, size of the pixels, and four unused numbers).
std::optional<std::string> BmpFile(const Bitmap& bitmap) {
  const PixelSize size = bitmap.Size();
  const auto width = static_cast<std::uint32_t>(size.width);
  const auto height = static_cast<std::uint32_t>(size.height);
  const std::uint32_t pixelBytes = (width * 3 + 3) / 4 * 4 * height;

  std::string bytes(kHeaderBytes + pixelBytes, '\0');
  LittleEndianWriter header(bytes);
  header.Put('B' | 'M' << 8, 2);
  header.Put(static_cast<std::uint32_t>(bytes.size()), 4);
  header.Put(0, 4);
  header.Put(kHeaderBytes, 4);
  header.Put(40, 4);
  header.Put(width, 4);
  header.Put(height, 4);
  header.Put(1, 2);
  header.Put(kBitsAPixel, 2);
  header.Put(0, 4);
  header.Put(pixelBytes, 4);
  if (!bitmap.ReadRows(std::span(bytes).subspan(kHeaderBytes))) return std::nullopt;
  return bytes;
}

}  // namespace troth
