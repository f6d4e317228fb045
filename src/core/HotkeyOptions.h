// What the dialog of hotkeys edits, as the run holds it: the three hotkeys and how screenshots are made.
// Filled from the settings at start-up, rewritten by the dialog's OK. Plain values.
#pragma once

#include <cstdint>
#include <string>

#include "platform/Geometry.h"
#include "platform/forms/Form.h"

namespace troth {

struct HotkeyRecord {
  bool enabled = false;
  bool control = false;
  bool shift = false;
  bool alt = false;
  std::int32_t key = 0;    // virtual key code
  std::uint16_t atom = 0;  // the number under which the desktop knows the hotkey
  // Whether the desktop has taken it; it refuses a combination that another program holds.
  bool isRegistered = false;

  // As the desktop takes and reports them.
  int Modifiers() const {
    return (control ? kHotkeyControl : 0) + (alt ? kHotkeyAlt : 0) + (shift ? kHotkeyShift : 0);
  }
  bool IsSameCombination(const HotkeyRecord& other) const {
    return key == other.key && Modifiers() == other.Modifiers();
  }
};

struct HotkeyRecords {
  HotkeyRecord Speech;
  HotkeyRecord Screenshot;
  HotkeyRecord EditBox;
};

struct ScreenshotOptions {
  bool includeLabel = false;
  bool includeNames = false;
  bool includeDate = false;
  bool includeCounselor = false;
  std::wstring counselorName;
  int labelPosition = 0;  // top left, top right, bottom left, bottom right
  Color textColor = 0;
  std::wstring baseFileName;
  bool showPreview = false;
  bool removeBorder = false;
};

}  // namespace troth
