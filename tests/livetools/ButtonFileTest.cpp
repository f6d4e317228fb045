// The files of the two bars.
#include "livetools/ButtonFile.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "livetools/GestureFile.h"
#include "platform/headless/HeadlessServices.h"

namespace troth {
namespace {

using Texts = std::vector<std::wstring>;

std::string LineOfEach(char first, int count) {
  std::string bytes;
  for (int i = 0; i < count; ++i) bytes += static_cast<char>(first + i) + std::string("\r\n");
  return bytes;
}

TEST(ButtonFile, IsOneTextALine) {
  const HeadlessText page;
  const struct {
    std::string bytes;
    Texts texts;
  } cases[] = {
      {"", {}},
      {": smiles", {L": smiles"}},
      {"one\rtwo\r\nthree\n3", {L"one", L"two", L"three\n3"}},
      {"\r\n  a b \r\n\r\n", {L"", L"  a b ", L""}},
      {"#x\r\n\"y\"\r\n;z=", {L"#x", L"\"y\"", L";z="}},
      {"\x80 \xE9", {L"\u20AC \u00E9"}},
      {LineOfEach('a', 12), {L"a", L"b", L"c", L"d", L"e", L"f", L"g", L"h", L"i", L"j"}},
  };
  for (const auto& [bytes, texts] : cases)
    EXPECT_EQ(ReadButtonFile(bytes, page), texts) << testing::PrintToString(bytes);
}

TEST(ButtonFile, GivesBackWhatWasWritten) {
  const HeadlessText page;
  const Texts texts{L": smiles", L"", L" caf\u00E9 ", std::wstring(100'000, L'x'), L"&\t\"", L"", L"", L"",
                    L"",         L""};
  const std::string bytes = WriteButtonFile(texts, page);
  EXPECT_TRUE(bytes.starts_with(": smiles\r\n\r\n caf\xE9 \r\n"));
  EXPECT_EQ(ReadButtonFile(bytes, page), texts);
}

TEST(GestureFile, IsOneTrimmedNameALine) {
  const HeadlessText page;
  EXPECT_EQ(ReadGestures("  bow \r\n\r\n\tcurtsy\r\n[wave]=x", page),
            (Texts{L"bow", L"", L"\tcurtsy", L"[wave]=x"}));
  EXPECT_EQ(ReadGestures("", page), Texts{});
  std::string many;
  for (int i = 0; i < 1000; ++i) many += std::to_string(i) + "\r\n";
  const Texts names = ReadGestures(many, page);
  ASSERT_EQ(names.size(), 28U);
  EXPECT_EQ(names.back(), L"27");
}

}  // namespace
}  // namespace troth
