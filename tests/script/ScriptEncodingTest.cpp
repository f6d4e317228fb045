// Which scripts are converted on loading, and to which bytes.
#include "script/ScriptEncoding.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/headless/HeadlessServices.h"

namespace troth {

namespace {

TEST(ScriptEncoding, ConvertsUtf8AndBareLineFeedsAndNothingElse) {
  const struct {
    const char* why;
    std::string bytes;
    std::string converted;  // "-" where nothing is to be done
    bool wasUtf8 = false;
    bool hadBareLineFeeds = false;
    bool losesLetters = false;
  } cases[] = {{"empty", "", "-"},
               {"plain", "One\r\nTwo", "-"},
               {"ends in CR alone", "One\rTwo\r", "-"},
               {"letters of the code page", "Fran\xE7ois\r\n", "-"},
               {"code page, looks like UTF-8 at first", "\xC3\xA9 and \xE9\r\n", "-"},
               {"UTF-8 cut off in the last letter", "caf\xC3", "-"},
               {"a longer form than needed", "\xC0\xAF", "-"},
               {"half of a pair", "\xED\xA0\x80", "-"},
               {"beyond the last character", "\xF4\x90\x80\x80", "-"},
               {"signature alone", "\xEF\xBB\xBF", "", true},
               {"signature and ASCII", "\xEF\xBB\xBFOne\r\n", "One\r\n", true},
               {"signature, but no UTF-8 behind it", "\xEF\xBB\xBF\xE9\r\n", "-"},
               {"letters of two and three bytes", "caf\xC3\xA9 \xE2\x80\x9Cyes\xE2\x80\x9D\r\n",
                "caf\xE9 \x93yes\x94\r\n", true},
               {"letters that the code page lacks", "\xE2\x86\x92 caf\xC3\xA9\r\n", "? caf\xE9\r\n", true,
                false, true},
               {"line feeds alone", "One\nTwo\n\nThree", "One\r\nTwo\r\n\r\nThree", false, true},
               {"a line feed within a line", "One\r\nTwo\nThree", "-"},
               {"line feeds and letters of the code page", "\xE9\n", "\xE9\r\n", false, true},
               {"both", "\xEF\xBB\xBF\xC3\xA9\n", "\xE9\r\n", true, true}};
  const HeadlessText text;
  for (const auto& c : cases) {
    SCOPED_TRACE(c.why);
    const auto conversion = ConvertScript(c.bytes, text);
    EXPECT_EQ(conversion ? conversion->bytes : "-", c.converted);
    if (!conversion) continue;
    EXPECT_EQ(conversion->wasUtf8, c.wasUtf8);
    EXPECT_EQ(conversion->hadBareLineFeeds, c.hadBareLineFeeds);
    EXPECT_EQ(conversion->losesLetters, c.losesLetters);
    // What was converted is left alone the next time, unless "?" came of it: that is plain ASCII.
    EXPECT_FALSE(ConvertScript(conversion->bytes, text));
  }
}

}  // namespace

}  // namespace troth
