#include "script/UnicodeTable.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/headless/HeadlessServices.h"

namespace troth {
namespace {

TEST(UnicodeTable, ReplacesCharactersThatHaveAnEntry) {
  const HeadlessText page;
  const std::wstring text = L"caf\u00E9 \u20AC5 Stra\u00DFe [x] \u0101";
  const struct {
    std::string file;
    std::wstring translated;
  } cases[] = {
      {"", text},
      {"\xE9=e\r\n\xDF=ss\r\x80 EUR ", L"cafe EUR5 Strasse [x] \u0101"},
      {"  \xE9:e=\r\nc=\r\n\r\nf", L"cafe= \u20AC5 Stra\u00DFe [x] \u0101"},
      {"\xE9=one\r\n[two]\r\n;=x\r\n\xE9=\xE9\xE9", L"caf\u00E9\u00E9 \u20AC5 Stra\u00DFe wo]x] \u0101"},
      {"?=!\na\n", L"caf\u00E9 \u20AC5 Stra\u00DFe [x] !\na\n"},
  };
  UnicodeTable table;
  EXPECT_EQ(table.Translate(text, page), text);
  for (const auto& c : cases) {
    table.LoadFrom(c.file, page);
    EXPECT_EQ(table.Translate(text, page), c.translated) << testing::PrintToString(c.file);
  }
}

// An East Asian page, where "A" takes two bytes.
struct WidePage final : TextService {
  std::wstring Decode(std::string_view bytes) const override {
    return bytes == "\x82\x60" ? L"A" : std::wstring(bytes.begin(), bytes.end());
  }
  std::string Encode(std::wstring_view text) const override {
    return text == L"A" ? "\x82\x60" : std::string(text.begin(), text.end());
  }
};

TEST(UnicodeTable, HasNoEntryForACharacterOfTwoBytes) {
  UnicodeTable table;
  table.LoadFrom("A=b\r\nx=A", WidePage());
  EXPECT_EQ(table.Translate(L"Ax=", WidePage()), L"AA=");
}

}  // namespace
}  // namespace troth
