// Rows, counters and the title of the book window.
#include "book/BookText.h"

#include <gtest/gtest.h>

#include "platform/headless/HeadlessServices.h"

namespace troth {

namespace {

std::wstring TitleOf(std::vector<std::wstring> rows, const std::vector<bool>& ticks) {
  BookText text;
  text.SetRows(std::move(rows));
  return text.Title([&](int row) { return ticks.at(static_cast<std::size_t>(row)); });
}

TEST(BookTextTest, TitleCountsTickedRowsAndCharacters) {
  EXPECT_EQ(TitleOf({}, {}), L"KMBook (0 rows of 0, 0 characters of 0)");
  EXPECT_EQ(TitleOf({L"Hello there", L"", L"And a good day to you all."}, {true, false, false}),
            L"KMBook (1 row of 3, 12 characters of 40)");
  EXPECT_EQ(TitleOf({L"", L"x"}, {true, false}), L"KMBook (1 row of 2, 1 character of 3)");
}

TEST(BookTextTest, ReadsLinesAsTheOtherFilesDo) {
  const HeadlessText text;
  EXPECT_EQ(ReadBookLines("a\r\n\r\nb\rc\nd\r\n", text),
            (std::vector<std::wstring>{L"a", L"", L"b", L"c\nd"}));
  EXPECT_EQ(ReadBookLines("caf\xE9", text), (std::vector<std::wstring>{L"caf\x00E9"}));
  EXPECT_EQ(ReadBookLines("", text).size(), 0u);
}

TEST(BookTextTest, KeepsTheFirstTenThousandLines) {
  std::string bytes;
  for (int line = 1; line <= 10001; ++line) bytes += std::to_string(line) + "\r\n";
  const auto rows = ReadBookLines(bytes, HeadlessText());
  ASSERT_EQ(rows.size(), 10000u);
  EXPECT_EQ(rows.back(), L"10000");
}

}  // namespace
}  // namespace troth
