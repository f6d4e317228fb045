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
  const Lines written{"save Troth\\Options\\Last Used Version=" + Readable(version)};
  const Lines error{"box stop Trothline: Version Error"};
  const Lines kept;
  const struct {
    std::optional<std::wstring> stored;
    const Lines& story;
  } cases[] = {
      {std::nullopt, written},
      {L"3.0.0", written},
      {Version{now.major, now.minor - 1, 99}.Text(), written},
      {Version{now.major - 1, now.minor + 1, 99}.Text(), written},
      {L"-1.0.0", written},
      {version, kept},
      {Version{now.major, now.minor, now.revision + 1}.Text(), kept},
      {Version{now.major, now.minor + 9, 0}.Text(), kept},
      {Version{now.major + 1, 0, 0}.Text(), kept},
      // Not of the form: overwritten.
      {L"", written},
      {L"3", written},
      {L"3.", written},
      {L"3.0.", written},
      {L"3. ", written},
      // Of the form, but not plain: reported, and left alone.
      {L"3.01.0", error},
      {L" 3.0.0", error},
      {L"3.0.0beta", error},
      {L"3.-.0", error},
      {L"3.1.-99999999999", error},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(Readable(each.stored.value_or(L"nothing stored")));
    if (each.stored) Store(L"Last Used Version", *each.stored);
    RecordVersion(platform);
    EXPECT_EQ(TakeStory(), each.story);
    EXPECT_EQ(Stored(L"Last Used Version"), &each.story == &written ? version : each.stored);
  }
}

// A version that nobody can read is reported once a start, and the program goes on.
TEST_F(VersionTest, ErrorDoesNotStopTheStart) {
  Store(L"Last Used Version", L"3.01.0");
  RunMain([&] {
    EXPECT_EQ(TakeStory(), (Lines{"box stop Trothline: Version Error"}));
    EXPECT_EQ(Windows(), (Lines{"frmTroth"}));
  });
  EXPECT_EQ(Stored(L"Last Used Version"), L"3.01.0");
}

}  // namespace
}  // namespace troth
