// How settings are read, whatever is stored, and where they lie.
#include "core/Settings.h"

#include <limits>

#include "tests/shell/RunRig.h"

namespace troth {

namespace {

using namespace settings;

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();

class SettingsTest : public RunTest {};

// As a plain number, as a place, whose fraction is dropped, and as numbers with limits of their own.
TEST_F(SettingsTest, AreReadByTheKindOfTheirRow) {
  const struct {
    std::wstring text;
    std::int32_t number;
    std::int32_t place;
    std::int32_t shortPlace;
    std::int32_t interval;
    std::int32_t frequency;
  } readings[] = {
      {L"", 0, 0, 0, 1000, 0},
      {L"-1.9", -2, -1, -1, 1000, -2},
      {L"3.5 s", 4, 3, 3, 1000, 4},
      {L"  700 apples", 700, 700, 700, 1000, 365},
      {L"40000", 40000, 40000, 32767, 30000, 365},
      {L"2147483648", kMost, kMost, 32767, 30000, 365},
      {L"-" + std::wstring(10000, L'9'), kLeast, kLeast, -32768, 1000, -32768},
  };
  const Setting rows[] = {TextColor, XPosition, IndexXPosition, SpeechInterval, PatchFrequency};
  for (const auto& reading : readings) {
    SCOPED_TRACE(Readable(reading.text.substr(0, 20)));
    const std::int32_t expected[] = {reading.number, reading.place, reading.shortPlace, reading.interval,
                                     reading.frequency};
    for (std::size_t i = 0; i < std::size(rows); ++i) {
      const wchar_t* application = rows[i].owner == SettingOwner::PatchProgram ? L"TrothAutoPatch" : L"Troth";
      desktop.settings.Put(application, rows[i].section, rows[i].key, reading.text);
      EXPECT_EQ(ReadWhole(platform, rows[i]), expected[i]) << i;
      EXPECT_EQ(ReadText(platform, rows[i]), reading.text);
    }
  }
}

TEST_F(SettingsTest, AFlagIsOnForAnyNumberButZero) {
  const std::pair<const wchar_t*, bool> readings[] = {
      {L"1", true}, {L"0", false}, {L"-1", true},  {L"2", true},     {L"00", false},
      {L"", false}, {L" 1", true}, {L"-0", false}, {L"True", false}, {L"99999999999", true}};
  for (const auto& [text, isOn] : readings) {
    Store(L"Skip Emote", text);
    EXPECT_EQ(ReadFlag(platform, SkipEmote), isOn) << Readable(text);
  }
}

TEST_F(SettingsTest, AreWrittenAsPlainTextsUnderTheNameOfTheExecutable) {
  files.executableName = L"Wedding2";
  WriteFlag(platform, OnTop, true);
  WriteFlag(platform, SkipEmote, false);
  WriteWhole(platform, YPosition, -15);
  WriteText(platform, CounselorName, L"Trau & \"Treu\"\t=\\ \x20AC");
  WriteText(platform, LastUsedVersion, L"3.0.5");
  EXPECT_EQ(ReadText(platform, CounselorName), L"Trau & \"Treu\"\t=\\ \x20AC");
  Lines story = TakeStory();
  story.erase(story.begin() + 3);
  EXPECT_EQ(story, (Lines{"save Wedding2\\Options\\On Top=1", "save Wedding2\\Options\\Skip Emote=0",
                          "save Wedding2\\Options\\Y Position=-15",
                          "save Troth\\Options\\Last Used Version=3.0.5"}));
}

}  // namespace
}  // namespace troth
