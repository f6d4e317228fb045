#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "script/WeddingRows.h"

namespace troth {
namespace {

std::vector<std::wstring> TextsOf(const WeddingRows& rows) {
  std::vector<std::wstring> texts;
  for (const WeddingRow& row : rows) texts.push_back(row.WText());
  return texts;
}

WeddingRows RowsWithKeys(const std::vector<std::wstring>& keys) {
  WeddingRows rows;
  for (const std::wstring& key : keys) rows.Add(L"row " + key, true, false, key);
  return rows;
}

// Keys that are the items' own numbers are stored in another way: every rule is tested on both.
TEST(WeddingRows, FindsItemsByNumberAndByKeyWhateverTheKeysAre) {
  const std::vector<std::vector<std::wstring>> keyLists = {
      {L"1", L"2", L"3"}, {L"2", L"1", L"3"}, {L"1", L"2", L"Groom"}, {L"1", L"", L"3"}, {L"", L"02", L""}};
  for (const auto& keys : keyLists) {
    SCOPED_TRACE(testing::PrintToString(keys));
    const WeddingRows rows = RowsWithKeys(keys);
    ASSERT_EQ(rows.Count(), 3);
    for (std::int32_t number = 1; number <= 3; ++number) {
      const std::wstring& key = keys[static_cast<std::size_t>(number) - 1];
      EXPECT_EQ(rows.Item(number).WText(), L"row " + key);
      if (key.empty()) continue;
      EXPECT_EQ(rows.Find(key), &rows.Item(number));
    }
    for (const std::int32_t number : {-1, 0, 4}) {
      EXPECT_EQ(rows.Find(number), nullptr);
      EXPECT_THROW(rows.Item(number), std::out_of_range);
    }
    for (const std::wstring key : {L"", L"0", L"4", L"01", L"1 ", L"+1", L"-1", L"4294967297", L"groo"}) {
      EXPECT_EQ(rows.Find(key), nullptr) << testing::PrintToString(key);
      EXPECT_THROW(rows.Item(key), std::out_of_range);
    }
  }
}

TEST(WeddingRows, KeysCompareWithoutRegardToCase) {
  WeddingRows rows = RowsWithKeys({L"Groom", L"J\u00F6rg"});
  EXPECT_EQ(rows.Find(L"GROOM"), &rows.Item(1));
  EXPECT_EQ(rows.Find(L"j\u00D6RG"), &rows.Item(2));
}

TEST(WeddingRows, RefuseAKeyThatIsTaken) {
  for (const std::vector<std::wstring>& keys : {std::vector<std::wstring>{L"1", L"2"}, {L"1", L"a"}}) {
    WeddingRows rows = RowsWithKeys(keys);
    EXPECT_THROW(rows.Add(L"again", true, false, L"1"), std::invalid_argument);
    EXPECT_EQ(rows.Count(), 2);
    EXPECT_EQ(rows.Item(L"1").WText(), L"row 1");
    rows.Add(L"next", true, false, L"3");
    EXPECT_EQ(rows.Item(3).WText(), L"next");
  }
}

TEST(WeddingRows, RemovingMovesLaterItemsUpAndTheyKeepTheirKeys) {
  WeddingRows rows = RowsWithKeys({L"1", L"2", L"3", L"4"});
  const WeddingRow* third = &rows.Item(3);
  rows.Remove(4);
  rows.Remove(L"2");
  EXPECT_EQ(TextsOf(rows), (std::vector<std::wstring>{L"row 1", L"row 3"}));
  EXPECT_EQ(&rows.Item(2), third);
  EXPECT_EQ(&rows.Item(L"3"), third);
  EXPECT_EQ(rows.Find(L"2"), nullptr);
  EXPECT_THROW(rows.Remove(3), std::out_of_range);
  EXPECT_THROW(rows.Remove(L"2"), std::out_of_range);
  rows.Add(L"new", true, false, L"2");
  EXPECT_EQ(&rows.Item(L"2"), &rows.Item(3));
}

// The row holds one text as long as both are the same, and must not show it.
TEST(WeddingRow, ItsTwoTextsAreValuesOfTheirOwn) {
  WeddingRow row;
  row.WText(L"one");
  EXPECT_EQ(row.OriginalText(), L"");
  row.OriginalText(L"one");
  EXPECT_EQ(row.WText(), L"one");
  row.OriginalText(L"two");
  EXPECT_EQ(row.WText(), L"one");
  EXPECT_EQ(row.OriginalText(), L"two");
  row.WText(row.OriginalText());
  row.WText(L"three");
  EXPECT_EQ(row.OriginalText(), L"two");
  row.OriginalText(row.WText());
  EXPECT_EQ(row.OriginalText(), L"three");
  row.OriginalText(row.OriginalText().substr(1));
  EXPECT_EQ(row.OriginalText(), L"hree");
  EXPECT_EQ(row.WText(), L"three");
}

}  // namespace
}  // namespace troth
