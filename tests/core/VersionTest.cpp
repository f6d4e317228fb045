// The version of the program and the record of the highest one that has run.
#include "core/Version.h"

#include "tests/shell/RunRig.h"

namespace troth {

namespace {

class VersionTest : public RunTest {};

TEST_F(VersionTest, IsWrittenAsThreeNumbersWithoutLeadingZeros) {
  EXPECT_EQ((Version{10, 0, 203}.Text()), L"10.0.203");
}

TEST_F(VersionTest, RecordKeepsTheHighestVersionThatHasRun) {
  const Version now = RunningVersion();
  const Story written{"save Troth\\Options\\Last Used Version=" + HeadlessJournal::Readable(version)};
  const Story error{"box stop Trothline: Version Error"};
  const Story kept;
  const struct {
    std::optional<std::wstring> stored;
    const Story& story;
  } cases[] = {
      {std::nullopt, written},
      {L"3.0.0", written},
      {Version{now.major, now.minor - 1, 99}.Text(), written},
      {Version{now.major - 1, now.minor + 1, 99}.Text(), written},
      {L"0.0.0", written},
      {L"-1.0.0", written},
      {version, kept},
      {Version{now.major, now.minor, now.revision + 1}.Text(), kept},
      {Version{now.major, now.minor + 9, 0}.Text(), kept},
      {Version{now.major + 1, 0, 0}.Text(), kept},
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
    SCOPED_TRACE(HeadlessJournal::Readable(each.stored.value_or(L"nothing stored")));
    if (each.stored) Store(L"Last Used Version", *each.stored);
    RecordVersion(platform);
    EXPECT_EQ(TakeStory(), each.story);
    EXPECT_EQ(Stored(L"Last Used Version"), &each.story == &written ? version : each.stored);
  }
}

TEST_F(VersionTest, RecordDoesNotFollowARenamedExecutable) {
  files.executableName = L"Wedding";
  Store(L"Last Used Version", L"3.0.5");
  desktop.settings.Write(L"Wedding", L"Options", L"Last Used Version", L"9.9.9");
  RecordVersion(platform);
  EXPECT_EQ(Stored(L"Last Used Version"), version);
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
