// Every setting: where it lies, what holds while nothing is stored, and how it is read whatever is stored.
#include "core/SettingsTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "core/Settings.h"
#include "tests/shell/RunRig.h"

namespace troth {

namespace {

using namespace settings;

constexpr std::int64_t kMost = 2147483647;

enum class Kind { Text, Number, Place };

struct Expected {
  Setting setting;
  const wchar_t* section;
  const wchar_t* key;
  const wchar_t* fallback;
  Kind kind = Kind::Number;
  std::int64_t lowest = -kMost - 1;
  std::int64_t highest = kMost;
  const wchar_t* application = L"Troth";
};

const std::vector<Expected>& Table() {
  static const std::vector<Expected> table{
      {LastInstalledVersion, L"Options", L"Last Installed Version", L"", Kind::Text},
      {LastUsedVersion, L"Options", L"Last Used Version", L"3.0.0", Kind::Text},
      {LastScript, L"Options", L"Last Script", L"", Kind::Text},
      {SpeechInterval, L"Options", L"Speech Interval", L"5000", Kind::Number, 1000, 30000},
      {OnTop, L"Options", L"On Top", L"1"},
      {VerticalLayout, L"Options", L"Vertical Layout", L"0"},
      {PopupMessages, L"Options", L"Popup Messages", L"1"},
      {Autoterminate, L"Options", L"Autoterminate Pending Speech", L"1"},
      {SkipEmote, L"Options", L"Skip Emote", L"0"},
      {SkipPartyCommands, L"Options", L"Skip Party Commands", L"0"},
      {XPosition, L"Options", L"X Position", L"0", Kind::Place},
      {YPosition, L"Options", L"Y Position", L"0", Kind::Place},
      {IndexXPosition, L"Options", L"Index X Position", L"0", Kind::Place, -32768, 32767},
      {IndexYPosition, L"Options", L"Index Y Position", L"0", Kind::Place, -32768, 32767},
      {IndexVisible, L"Options", L"Index Visible", L"1"},
      {ShowTipsAtStartup, L"Options", L"Show Tips at Startup", L"1"},
      {PopupXPosition, L"Options", L"Popup X Position", L"0", Kind::Place},
      {PopupYPosition, L"Options", L"Popup Y Position", L"0", Kind::Place},
      {HotkeyEnabled, L"Hotkey", L"Enabled", L"0"},
      {HotkeyControl, L"Hotkey", L"Control", L"0"},
      {HotkeyAlt, L"Hotkey", L"Alt", L"0"},
      {HotkeyShift, L"Hotkey", L"Shift", L"0"},
      {HotkeyKey, L"Hotkey", L"Key", L"123"},
      {EditBoxEnabled, L"Edit Box", L"Enabled", L"0"},
      {EditBoxControl, L"Edit Box", L"Control", L"0"},
      {EditBoxAlt, L"Edit Box", L"Alt", L"0"},
      {EditBoxShift, L"Edit Box", L"Shift", L"0"},
      {EditBoxKey, L"Edit Box", L"Key", L"123"},
      {EditBoxSticky, L"Edit Box", L"Sticky", L"1"},
      {EditBoxXPosition, L"Edit Box", L"X Position", L"-1", Kind::Place},
      {EditBoxYPosition, L"Edit Box", L"Y Position", L"-1", Kind::Place},
      {ScreenshotHotkeyEnabled, L"Screenshot", L"Hotkey Enabled", L"0"},
      {ScreenshotControl, L"Screenshot", L"Control", L"0"},
      {ScreenshotAlt, L"Screenshot", L"Alt", L"0"},
      {ScreenshotShift, L"Screenshot", L"Shift", L"0"},
      {ScreenshotKey, L"Screenshot", L"Key", L"123"},
      {IncludeLabel, L"Screenshot", L"Include Label", L"1"},
      {ShowPreview, L"Screenshot", L"Show Preview", L"0"},
      {RemoveBorder, L"Screenshot", L"Remove Border", L"0"},
      {IncludeNames, L"Screenshot", L"Include Names", L"1"},
      {IncludeDate, L"Screenshot", L"Include Date", L"1"},
      {IncludeCounselor, L"Screenshot", L"Include Counselor", L"0"},
      {CounselorName, L"Screenshot", L"Counselor Name", L"Counselor", Kind::Text},
      {BaseFileName, L"Screenshot", L"Base FileName", L"TRLSS", Kind::Text},
      {LabelPosition, L"Screenshot", L"Label Position", L"0", Kind::Number, 0, 3},
      {TextColor, L"Screenshot", L"Text Color", L"65535"},
      {ButtonBarVisible, L"Button Bar", L"Visible", L"0"},
      {ButtonBarXPosition, L"Button Bar", L"X Position", L"-1", Kind::Place},
      {ButtonBarYPosition, L"Button Bar", L"Y Position", L"-1", Kind::Place},
      {ButtonBarLayout, L"Button Bar", L"Layout", L"1"},
      {ButtonTexts[0], L"Button Bar", L"Button 0", L": smiles", Kind::Text},
      {ButtonTexts[1], L"Button Bar", L"Button 1", L": grins", Kind::Text},
      {ButtonTexts[2], L"Button Bar", L"Button 2", L": cough", Kind::Text},
      {ButtonTexts[3], L"Button Bar", L"Button 3", L": clears throat", Kind::Text},
      {ButtonTexts[4], L"Button Bar", L"Button 4", L": looks around", Kind::Text},
      {ButtonTexts[5], L"Button Bar", L"Button 5", L": claps", Kind::Text},
      {ButtonTexts[6], L"Button Bar", L"Button 6", L": applauds", Kind::Text},
      {ButtonTexts[7], L"Button Bar", L"Button 7", L": smiles broadly", Kind::Text},
      {ButtonTexts[8], L"Button Bar", L"Button 8", L": Ahemm", Kind::Text},
      {ButtonTexts[9], L"Button Bar", L"Button 9", L"Congratulations!", Kind::Text},
      {GestureBarVisible, L"Gesture Bar", L"Visible", L"0"},
      {GestureBarXPosition, L"Gesture Bar", L"X Position", L"-1", Kind::Place},
      {GestureBarYPosition, L"Gesture Bar", L"Y Position", L"-1", Kind::Place},
      {KMBookXPosition, L"KMBook", L"X Position", L"-1", Kind::Place},
      {KMBookYPosition, L"KMBook", L"Y Position", L"-1", Kind::Place},
      {PatchFrequency, L"Options", L"PatchFrequency", L"-10", Kind::Number, -32768, 365, L"TrothAutoPatch"},
      {PatchConnectionType, L"Options", L"ConnectionType", L"0", Kind::Number, -32768, 32767,
       L"TrothAutoPatch"},
      {PatchProxyName, L"Options", L"ProxyName", L"", Kind::Text, 0, 0, L"TrothAutoPatch"},
      {LastPatchDate, L"Patch Information", L"Last Patch Date", L"0", Kind::Number, -kMost - 1, kMost,
       L"TrothAutoPatch"},
  };
  return table;
}

// A stored text as a number: rounded, and as a place, whose fraction is dropped.
const struct {
  std::wstring text;
  std::int64_t number;
  std::int64_t place;
} kReadings[] = {
    {L"", 0, 0},
    {L"text", 0, 0},
    {L"1", 1, 1},
    {L"-1", -1, -1},
    {L"-", 0, 0},
    {L"2.5", 2, 2},
    {L"3.5 s", 4, 3},
    {L"-1.9", -2, -1},
    {L".75", 1, 0},
    {L"  7 apples", 7, 7},
    {L"7 8", 7, 7},
    {L"0x10", 0, 0},
    {L"2147483648", kMost, kMost},
    {L"-99999999999", -kMost - 1, -kMost - 1},
    {std::wstring(10000, L'x'), 0, 0},
    {std::wstring(10000, L'9'), kMost, kMost},
    {L"-" + std::wstring(10000, L'9'), -kMost - 1, -kMost - 1},
};

class SettingsTableTest : public RunTest {};

TEST_F(SettingsTableTest, AnEmptyStoreGivesEveryDefault) {
  for (const Expected& row : Table()) {
    SCOPED_TRACE(HeadlessJournal::Readable(row.section + std::wstring(L" ") + row.key));
    EXPECT_EQ(ReadText(platform, row.setting), row.fallback);
    if (row.kind != Kind::Text) {
      EXPECT_EQ(std::to_wstring(ReadWhole(platform, row.setting)), row.fallback);
    }
  }
}

TEST_F(SettingsTableTest, AStoredTextIsReadByTheKindOfItsRow) {
  for (const Expected& row : Table()) {
    SCOPED_TRACE(HeadlessJournal::Readable(row.section + std::wstring(L" ") + row.key));
    for (const auto& reading : kReadings) {
      SCOPED_TRACE(HeadlessJournal::Readable(reading.text.substr(0, 20)));
      desktop.settings.Write(row.application, row.section, row.key, reading.text);
      EXPECT_EQ(ReadText(platform, row.setting), reading.text);
      if (row.kind == Kind::Text) continue;
      const std::int64_t value = row.kind == Kind::Place ? reading.place : reading.number;
      EXPECT_EQ(ReadWhole(platform, row.setting), std::clamp(value, row.lowest, row.highest));
    }
  }
}

TEST_F(SettingsTableTest, AFlagIsOnForAnyNumberButZero) {
  const struct {
    const wchar_t* text;
    bool isOn;
  } readings[] = {{L"1", true},     {L"0", false},  {L"-1", true},         {L"2", true},
                  {L"00", false},   {L"", false},   {L"True", false},      {L" 1", true},
                  {L"1 yes", true}, {L"-0", false}, {L"99999999999", true}};
  for (const auto& reading : readings) {
    Store(L"Skip Emote", reading.text);
    EXPECT_EQ(ReadFlag(platform, SkipEmote), reading.isOn) << HeadlessJournal::Readable(reading.text);
  }
}

TEST_F(SettingsTableTest, WritesPlainTexts) {
  WriteFlag(platform, OnTop, true);
  WriteFlag(platform, SkipEmote, false);
  WriteWhole(platform, XPosition, 1234567);
  WriteWhole(platform, YPosition, -15);
  const std::wstring odd = L"Trau & \"Treu\"\r\n\t=\\ \x17E\x20AC" + std::wstring(9000, L'w');
  WriteText(platform, CounselorName, odd);
  EXPECT_EQ(ReadText(platform, CounselorName), odd);
  Story story = TakeStory();
  story.pop_back();
  EXPECT_EQ(story, (Story{"save Troth\\Options\\On Top=1", "save Troth\\Options\\Skip Emote=0",
                          "save Troth\\Options\\X Position=1234567", "save Troth\\Options\\Y Position=-15"}));
}

TEST_F(SettingsTableTest, LiesUnderTheNameOfTheExecutableAndTwoFixedOnes) {
  files.executableName = L"Wedding2";
  for (const Expected& row : Table()) {
    SCOPED_TRACE(HeadlessJournal::Readable(row.section + std::wstring(L" ") + row.key));
    const bool isFixed =
        std::wstring(row.key) == L"Last Used Version" || std::wstring(row.application) == L"TrothAutoPatch";
    desktop.settings.Write(L"Troth", row.section, row.key, L"1");
    desktop.settings.Write(L"TrothAutoPatch", row.section, row.key, L"2");
    desktop.settings.Write(L"Wedding2", row.section, row.key, L"3");
    const std::wstring fixed = std::wstring(row.application) == L"Troth" ? L"1" : L"2";
    EXPECT_EQ(ReadText(platform, row.setting), isFixed ? fixed : L"3");
  }
  WriteText(platform, LastUsedVersion, L"3.1.0");
  WriteFlag(platform, OnTop, true);
  EXPECT_EQ(TakeStory(),
            (Story{"save Troth\\Options\\Last Used Version=3.1.0", "save Wedding2\\Options\\On Top=1"}));
}

TEST_F(SettingsTableTest, NamesCompareWithoutRegardToCase) {
  desktop.settings.Write(L"TROTH", L"options", L"last used version", L"3.0.7");
  desktop.settings.Write(L"tROTH", L"OPTIONS", L"SPEECH interval", L"7000");
  desktop.settings.Write(L"TROTHAUTOPATCH", L"patch information", L"LAST PATCH DATE", L"38000");
  EXPECT_EQ(ReadText(platform, LastUsedVersion), L"3.0.7");
  EXPECT_EQ(ReadWhole(platform, SpeechInterval), 7000);
  EXPECT_EQ(ReadWhole(platform, LastPatchDate), 38000);
  files.executableName = L"TROTH";
  EXPECT_EQ(ReadWhole(platform, SpeechInterval), 7000);
}

}  // namespace
}  // namespace troth
