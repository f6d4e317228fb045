// Every setting that the program ever reads or writes, one row each: where it lies, what holds while nothing
// is stored, and how far a number may go. Readers and writers name the row; no default stands anywhere else.
#pragma once

#include <array>
#include <cstdint>
#include <limits>

#include "script/NumberReader.h"

namespace troth {

// The application under which a row lies.
enum class SettingOwner {
  Program,       // the name of the running executable
  Release,       // fixed: what outlives a renamed executable
  PatchProgram,  // belongs to the patch program; only read here
};

struct Setting {
  const wchar_t* section;
  const wchar_t* key;
  const wchar_t* fallback;
  // For rows that are read as numbers. A number outside is brought to the nearer end.
  std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
  std::int32_t highest = std::numeric_limits<std::int32_t>::max();
  Fraction fraction = Fraction::Rounded;
  SettingOwner owner = SettingOwner::Program;
};

namespace settings {

// A place on the screen in twips; it may be stored with a fraction.
constexpr Setting Position(const wchar_t* section, const wchar_t* key, const wchar_t* fallback) {
  return {.section = section, .key = key, .fallback = fallback, .fraction = Fraction::Dropped};
}

constexpr Setting Short(Setting setting, std::int32_t highest = 32767) {
  setting.lowest = -32768;
  setting.highest = highest;
  return setting;
}

constexpr Setting OfPatchProgram(Setting setting) {
  setting.owner = SettingOwner::PatchProgram;
  return setting;
}

inline constexpr Setting LastInstalledVersion{L"Options", L"Last Installed Version", L""};
inline constexpr Setting LastUsedVersion{
    .section = L"Options", .key = L"Last Used Version", .fallback = L"3.0.0", .owner = SettingOwner::Release};
inline constexpr Setting LastScript{L"Options", L"Last Script", L""};
inline constexpr Setting SpeechInterval{L"Options", L"Speech Interval", L"5000", 1000, 30000};  // ms
inline constexpr Setting OnTop{L"Options", L"On Top", L"1"};
inline constexpr Setting VerticalLayout{L"Options", L"Vertical Layout", L"0"};
inline constexpr Setting PopupMessages{L"Options", L"Popup Messages", L"1"};
inline constexpr Setting Autoterminate{L"Options", L"Autoterminate Pending Speech", L"1"};
inline constexpr Setting SkipEmote{L"Options", L"Skip Emote", L"0"};
inline constexpr Setting SkipPartyCommands{L"Options", L"Skip Party Commands", L"0"};
inline constexpr Setting XPosition = Position(L"Options", L"X Position", L"0");
inline constexpr Setting YPosition = Position(L"Options", L"Y Position", L"0");
inline constexpr Setting IndexXPosition = Short(Position(L"Options", L"Index X Position", L"0"));
inline constexpr Setting IndexYPosition = Short(Position(L"Options", L"Index Y Position", L"0"));
inline constexpr Setting IndexVisible{L"Options", L"Index Visible", L"1"};
inline constexpr Setting ShowTipsAtStartup{L"Options", L"Show Tips at Startup", L"1"};
inline constexpr Setting PopupXPosition = Position(L"Options", L"Popup X Position", L"0");
inline constexpr Setting PopupYPosition = Position(L"Options", L"Popup Y Position", L"0");

inline constexpr Setting HotkeyEnabled{L"Hotkey", L"Enabled", L"0"};
inline constexpr Setting HotkeyControl{L"Hotkey", L"Control", L"0"};
inline constexpr Setting HotkeyAlt{L"Hotkey", L"Alt", L"0"};
inline constexpr Setting HotkeyShift{L"Hotkey", L"Shift", L"0"};
inline constexpr Setting HotkeyKey{L"Hotkey", L"Key", L"123"};  // virtual key code; 123 is F12

inline constexpr Setting EditBoxEnabled{L"Edit Box", L"Enabled", L"0"};
inline constexpr Setting EditBoxControl{L"Edit Box", L"Control", L"0"};
inline constexpr Setting EditBoxAlt{L"Edit Box", L"Alt", L"0"};
inline constexpr Setting EditBoxShift{L"Edit Box", L"Shift", L"0"};
inline constexpr Setting EditBoxKey{L"Edit Box", L"Key", L"123"};
inline constexpr Setting EditBoxSticky{L"Edit Box", L"Sticky", L"1"};
inline constexpr Setting EditBoxXPosition = Position(L"Edit Box", L"X Position", L"-1");
inline constexpr Setting EditBoxYPosition = Position(L"Edit Box", L"Y Position", L"-1");

inline constexpr Setting ScreenshotHotkeyEnabled{L"Screenshot", L"Hotkey Enabled", L"0"};
inline constexpr Setting ScreenshotControl{L"Screenshot", L"Control", L"0"};
inline constexpr Setting ScreenshotAlt{L"Screenshot", L"Alt", L"0"};
inline constexpr Setting ScreenshotShift{L"Screenshot", L"Shift", L"0"};
inline constexpr Setting ScreenshotKey{L"Screenshot", L"Key", L"123"};
inline constexpr Setting IncludeLabel{L"Screenshot", L"Include Label", L"1"};
inline constexpr Setting ShowPreview{L"Screenshot", L"Show Preview", L"0"};
inline constexpr Setting RemoveBorder{L"Screenshot", L"Remove Border", L"0"};
inline constexpr Setting IncludeNames{L"Screenshot", L"Include Names", L"1"};
inline constexpr Setting IncludeDate{L"Screenshot", L"Include Date", L"1"};
inline constexpr Setting IncludeCounselor{L"Screenshot", L"Include Counselor", L"0"};
inline constexpr Setting CounselorName{L"Screenshot", L"Counselor Name", L"Counselor"};
inline constexpr Setting BaseFileName{L"Screenshot", L"Base FileName", L"TRLSS"};
inline constexpr Setting LabelPosition{L"Screenshot", L"Label Position", L"0"};
inline constexpr Setting TextColor{L"Screenshot", L"Text Color", L"65535"};

inline constexpr Setting ButtonBarVisible{L"Button Bar", L"Visible", L"0"};
inline constexpr Setting ButtonBarXPosition = Position(L"Button Bar", L"X Position", L"-1");
inline constexpr Setting ButtonBarYPosition = Position(L"Button Bar", L"Y Position", L"-1");
inline constexpr Setting ButtonBarLayout{L"Button Bar", L"Layout", L"1"};
inline constexpr std::array<Setting, 10> ButtonTexts{{
    {L"Button Bar", L"Button 0", L": smiles"},
    {L"Button Bar", L"Button 1", L": grins"},
    {L"Button Bar", L"Button 2", L": cough"},
    {L"Button Bar", L"Button 3", L": clears throat"},
    {L"Button Bar", L"Button 4", L": looks around"},
    {L"Button Bar", L"Button 5", L": claps"},
    {L"Button Bar", L"Button 6", L": applauds"},
    {L"Button Bar", L"Button 7", L": smiles broadly"},
    {L"Button Bar", L"Button 8", L": Ahemm"},
    {L"Button Bar", L"Button 9", L"Congratulations!"},
}};

inline constexpr Setting GestureBarVisible{L"Gesture Bar", L"Visible", L"0"};
inline constexpr Setting GestureBarXPosition = Position(L"Gesture Bar", L"X Position", L"-1");
inline constexpr Setting GestureBarYPosition = Position(L"Gesture Bar", L"Y Position", L"-1");
inline constexpr Setting KMBookXPosition = Position(L"KMBook", L"X Position", L"-1");
inline constexpr Setting KMBookYPosition = Position(L"KMBook", L"Y Position", L"-1");

inline constexpr Setting PatchFrequency = OfPatchProgram(Short({L"Options", L"PatchFrequency", L"-10"}, 365));
inline constexpr Setting PatchConnectionType = OfPatchProgram(Short({L"Options", L"ConnectionType", L"0"}));
inline constexpr Setting PatchProxyName = OfPatchProgram({L"Options", L"ProxyName", L""});
inline constexpr Setting LastPatchDate = OfPatchProgram({L"Patch Information", L"Last Patch Date", L"0"});

}  // namespace settings
}  // namespace troth
