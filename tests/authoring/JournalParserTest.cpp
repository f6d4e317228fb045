#include "authoring/JournalParser.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "platform/headless/HeadlessServices.h"

namespace troth {
namespace {

std::optional<std::string> RowOf(const std::wstring& character, const std::string& line) {
  const HeadlessText text;
  std::string rows = "before";
  const bool spoke = JournalParser(character, text).AppendRow(line, rows);
  EXPECT_EQ(rows.substr(0, 6), "before");
  EXPECT_EQ(spoke, rows.size() > 6);
  if (!spoke) return std::nullopt;
  EXPECT_TRUE(rows.ends_with("\r\n"));
  return rows.substr(6, rows.size() - 8);
}

TEST(JournalParser, TakesWhatTheCharacterSays) {
  const struct {
    std::wstring character;
    std::string line;
    std::optional<std::string> row;
  } cases[] = {
      {L"anna", "Anna: Hello: dear friends", "Hello: dear friends"},
      {L" ANNA ", "anna: x", "x"},
      {L"Anna", "Anna:  two blanks  ", "two blanks"},
      {L"Anna", "Anna: \tx\t", "\tx\t"},
      {L"Anna", "Anna:    ", ""},
      {L"Anna", "Anna: ", std::nullopt},
      {L"Anna", "Anna:", std::nullopt},
      {L"Anna", "Anna", std::nullopt},
      {L"Anna", "", std::nullopt},
      {L"Anna", "Anna:x", std::nullopt},
      {L"Anna", ": Hello", std::nullopt},
      {L"Anna", " Anna: Hello", std::nullopt},
      {L"Anna", "Anna : Hello", std::nullopt},
      {L"Anna", "[12:01] Anna: Hello", std::nullopt},
      {L"Anna", "Hanna: Hello", std::nullopt},
      {L"Anna", "Anne: Hello", std::nullopt},
      {L"Anna", "Rowan: Anna: Hello", std::nullopt},
      {L"Anna", "Anna:: x", std::nullopt},
      {L"Anna:", "Anna:: x", "x"},
      {L"Anna: x", "Anna: x: y", std::nullopt},
      {L"Anna of the Moor", "anna of the moor: Hello", "Hello"},
      {L"Zo\xEB", "ZO\xCB: Hello", "Hello"},
      {L"\u20AC", "\x80: Hello", "Hello"},
      {L"\u03A9", "?: Hello", std::nullopt},
      {L"?", "?: Hello", "Hello"},
      {L"", ": Hello", std::nullopt},
      {L"Anna", "Anna: *kneels*", ": kneels"},
      {L"Anna", "Anna:  *kneels* ", ": kneels"},
      {L"Anna", "Anna: * kneels *", ":  kneels "},
      {L"Anna", "Anna: ***", ": *"},
      {L"Anna", "Anna: **", "**"},
      {L"Anna", "Anna: *", "*"},
      {L"Anna", "Anna: *kneels", "*kneels"},
      {L"Anna", "Anna: *kneels*.", "*kneels*."},
      {L"Anna", "Anna: @note", "@note"},
      {L"Anna", "Anna: \xFF\n\x01", "\xFF\n\x01"},
      {L"Anna", "Anna: " + std::string(1000000, 'x'), std::string(1000000, 'x')},
      {L"Anna", std::string(1000000, ':'), std::nullopt},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.line.substr(0, 40));
    EXPECT_EQ(RowOf(c.character, c.line), c.row);
  }
}

TEST(JournalParser, KnowsTheNameInEachSpelling) {
  const HeadlessText text;
  JournalParser parser(L"anna", text);
  std::string rows;
  for (const char* line : {"Anna: 1", "ANNA: 2", "Anne: no", "anna: 3", "Rose: no", "Anna: 4"})
    parser.AppendRow(line, rows);
  EXPECT_EQ(rows, "1\r\n2\r\n3\r\n4\r\n");
}

}  // namespace
}  // namespace troth
