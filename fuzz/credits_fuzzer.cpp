// Any bytes as Credits.dat: the built-in credit stays first, no text is shorter than the rules allow, and
// headings and names together are as many as the lines that count.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "Require.h"
#include "guide/CreditsFile.h"
#include "platform/headless/HeadlessServices.h"
#include "script/LineReader.h"
#include "script/Text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace troth;
  const HeadlessText page;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  std::int32_t lines = 0;
  LineReader reader{bytes};
  while (const auto line = reader.Next())
    if (TrimBlanks(page.Decode(*line)).size() > 1) ++lines;

  const std::int32_t builtInLines = BuiltInCredits().Item(1).CreditDetails().Count();
  CCredits credits = BuiltInCredits();
  AppendCredits(credits, bytes, page);
  Require(credits.Item(1).CreditTitle() == L"Design and Programming", "the built-in credit comes first");
  std::int32_t shown = credits.Count() - 1 - builtInLines;
  for (const CCredit& credit : credits) {
    Require(!credit.CreditTitle().empty(), "a credit has a heading");
    for (const CTitle& title : credit.CreditDetails()) {
      Require(title.PTitle().size() > 1 && title.PTitle()[0] != L'#', "a name is no heading");
      ++shown;
    }
  }
  Require(shown == lines, "each line that counts is shown once");
  return 0;
}
