// The global hotkeys of the program, one row each: everything that is done for each of them - registering,
// acting, storing, showing - follows from this table. A new hotkey is a row here, a record in HotkeyRecords
// and a tab of the dialog at the same number.
#pragma once

#include <array>
#include <functional>

#include "core/HotkeyOptions.h"
#include "core/SettingsTable.h"

namespace troth {

struct HotkeyActions {
  std::function<void()> speakOrStop;
  std::function<void()> takeScreenshot;
  std::function<void()> showEditBox;
};

struct HotkeyKind {
  HotkeyRecord HotkeyRecords::*record;
  const wchar_t* command;   // as the dialog calls it
  const wchar_t* atomName;  // an agreed name
  std::function<void()> HotkeyActions::*action;
  const Setting& enabled;
  const Setting& control;
  const Setting& alt;
  const Setting& shift;
  const Setting& key;
};

// In the order in which they are registered and acted on, which is that of the tabs.
inline constexpr std::array<HotkeyKind, 3> kHotkeyTable{
    {{&HotkeyRecords::Speech, L"speech", L"TrothlineHotkey", &HotkeyActions::speakOrStop,
      settings::HotkeyEnabled, settings::HotkeyControl, settings::HotkeyAlt, settings::HotkeyShift,
      settings::HotkeyKey},
     {&HotkeyRecords::Screenshot, L"screenshot", L"TrothlineScreenshot", &HotkeyActions::takeScreenshot,
      settings::ScreenshotHotkeyEnabled, settings::ScreenshotControl, settings::ScreenshotAlt,
      settings::ScreenshotShift, settings::ScreenshotKey},
     {&HotkeyRecords::EditBox, L"edit box", L"TrothlineEditBox", &HotkeyActions::showEditBox,
      settings::EditBoxEnabled, settings::EditBoxControl, settings::EditBoxAlt, settings::EditBoxShift,
      settings::EditBoxKey}}};

}  // namespace troth
