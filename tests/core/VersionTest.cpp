// The version of the program and the record of the highest one that has run.
#include "core/Version.h"

#include "tests/shell/RunRig.h"

namespace troth {

namespace {

class VersionTest : public RunTest {};

TEST_F(VersionTest, IsThreeNumbersWithoutLeadingZeros) {
  EXPECT_EQ(RunningVersion().Text(), L"3.1.0");
  EXPECT_EQ((Version{10, 0, 203}.Text()), L"10.0.203");
}

TEST_F(VersionTest, RecordKeepsTheHighestVersionThatHasRun) {
  const Story written{"save Troth\\Options\\Last Used Version=3.1.0"};
  const Story error{"box stop Trothline: Version Error"};
  const Story kept;
  const struct {
    const wchar_t* stored;
    const Story& story;
  } cases[] = {
      {nullptr, written},
      {L"3.0.0", written},
      {L"3.0.99", written},
      {L"2.9.9", written},
      {L"0.0.0", written},
      {L"-1.0.0", written},
      {L"3.1.0", kept},
      {L"3.1.1", kept},
      {L"3.2.0", kept},
      {L"4.0.0", kept},
      {L"3.10.0", kept},
      {L"2147483647.0.0", kept},
      // Not of the form: overwritten.
      {L"", written},
      {L"3", written},
      {L"abc", written},
      {L".", written},
      {L"3.", written},
      {L"3.0", written},
      {L"3.0.", written},
      {L"3..0", written},
      {L".3.0", written},
      {L"3. ", written},
      // Of the form, but not plain: reported, and left alone.
      {L"3.01.0", error},
      {L"03.1.0", error},
      {L"3.1.00", error},
      {L" 3.0.0", error},
      {L"3.0.0 ", error},
      {L"3.0.0.0", error},
      {L"3.0.0beta", error},
      {L"a.b.c", error},
      {L"3.-.0", error},
      {L"+3.0.0", error},
      {L"99999999999.0.0", error},
      {L"3.1.-99999999999", error},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.stored ? HeadlessJournal::Readable(each.stored) : "nothing stored");
    if (each.stored) Store(L"Last Used Version", each.stored);
    RecordVersion(platform);
    EXPECT_EQ(TakeStory(), each.story);
    EXPECT_EQ(Stored(L"Last Used Version"), &each.story == &written ? L"3.1.0" : each.stored);
  }
}

TEST_F(VersionTest, RecordDoesNotFollowARenamedExecutable) {
  files.executableName = L"Wedding";
  Store(L"Last Used Version", L"3.0.5");
  desktop.settings.Write(L"Wedding", L"Options", L"Last Used Version", L"9.9.9");
  RecordVersion(platform);
  EXPECT_EQ(TakeStory(), (Story{"save Troth\\Options\\Last Used Version=3.1.0"}));
}

// A version that nobody can read is reported once a start, and the program goes on.
TEST_F(VersionTest, ErrorDoesNotStopTheStart) {
  Store(L"Last Used Version", L"3.01.0");
  RunMain([&] {
    EXPECT_EQ(TakeStory(), (Story{"box stop Trothline: Version Error"}));
    EXPECT_EQ(Shown(), (Story{"frmTroth"}));
  });
  EXPECT_EQ(Stored(L"Last Used Version"), L"3.01.0");
}

}  // namespace
}  // namespace troth
