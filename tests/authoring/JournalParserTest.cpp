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
      {L"Anna", "Anna: ", std::nullopt},
      {L"Anna", "Anna:", std::nullopt},
      {L"Anna", "Anna", std::nullopt},
      {L"Anna", " Anna: Hello", std::nullopt},
      {L"Anna", "Hanna: Hello", std::nullopt},
      {L"Anna", "Anne: Hello", std::nullopt},
      {L"Anna", "Rowan: Anna: Hello", std::nullopt},
      {L"Anna:", "Anna:: x", "x"},
      {L"Anna of the Moor", "anna of the moor: Hello", "Hello"},
      {L"Zo\xEB", "ZO\xCB: Hello", "Hello"},
      {L"\u20AC", "\x80: Hello", "Hello"},
      {L"\u03A9", "?: Hello", std::nullopt},
      {L"", ": Hello", std::nullopt},
      {L"Anna", "Anna: *kneels*", ": kneels"},
      {L"Anna", "Anna:  *kneels* ", ": kneels"},
      {L"Anna", "Anna: ***", ": *"},
      {L"Anna", "Anna: **", "**"},
      {L"Anna", "Anna: *kneels", "*kneels"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.line.substr(0, 40));
    EXPECT_EQ(RowOf(c.character, c.line), c.row);
  }
}

}  // namespace
}  // namespace troth
