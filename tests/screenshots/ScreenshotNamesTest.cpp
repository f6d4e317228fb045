// File and folder names of screenshots.
#include "screenshots/ScreenshotNames.h"

#include <gtest/gtest.h>

namespace troth {

namespace {

TEST(ScreenshotNamesTest, FolderIsNamedAfterTheMomentOnTheTwelveHourClock) {
  const struct {
    LocalTime now;
    const wchar_t* name;
  } cases[] = {
      {{2001, 6, 15, 21, 5, 3, 5}, L"2001-06-15 9-05-03 PM"},
      {{2001, 6, 15, 0, 0, 0, 5}, L"2001-06-15 12-00-00 AM"},
      {{2001, 6, 15, 11, 59, 59, 5}, L"2001-06-15 11-59-59 AM"},
      {{2001, 6, 15, 12, 0, 0, 5}, L"2001-06-15 12-00-00 PM"},
      {{2001, 1, 2, 13, 10, 10, 2}, L"2001-01-02 1-10-10 PM"},
  };
  for (const auto& c : cases) EXPECT_EQ(SessionName(c.now), c.name);
}

TEST(ScreenshotNamesTest, NumberHasFourDigitsAtLeast) {
  EXPECT_EQ(ScreenshotFileName(L"TRLSS", 0), L"TRLSS0000.bmp");
  EXPECT_EQ(ScreenshotFileName(L"", 42), L"0042.bmp");
  EXPECT_EQ(ScreenshotFileName(L"Us ", 9999), L"Us 9999.bmp");
  EXPECT_EQ(ScreenshotFileName(L"Us ", 10000), L"Us 10000.bmp");
}

}  // namespace
}  // namespace troth
