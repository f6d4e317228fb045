// The bytes of a bitmap file, by hand.
#include "platform/services/BmpFile.h"

#include <gtest/gtest.h>

#include "platform/headless/HeadlessGraphics.h"

namespace troth {

namespace {

TEST(BmpFileTest, HoldsTheRowsFromTheBottomUpBlueFirstAndFilledUp) {
  HeadlessBitmap bitmap({2, 3});
  bitmap.Set({0, 0}, 0x030201);  // red 1, green 2, blue 3
  bitmap.Set({1, 0}, 0x060504);
  bitmap.Set({0, 2}, 0x0000FF);

  const std::string expected(
      "BM\x4E\0\0\0\0\0\0\0\x36\0\0\0"
      "\x28\0\0\0\x02\0\0\0\x03\0\0\0\x01\0\x18\0\0\0\0\0\x18\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
      "\0\0\xFF\0\0\0\0\0"
      "\0\0\0\0\0\0\0\0"
      "\x03\x02\x01\x06\x05\x04\0\0",
      54 + 24);
  EXPECT_EQ(BmpFile(bitmap), expected);
}

TEST(BmpFileTest, IsNothingWhenThePixelsCannotBeRead) {
  class Unreadable final : public Bitmap {
    PixelSize Size() const override { return {1, 1}; }
    bool ReadRows(std::span<char>) const override { return false; }
  };
  EXPECT_EQ(BmpFile(Unreadable()), std::nullopt);
}

}  // namespace
}  // namespace troth
