// What the dialog of hotkeys edits, as the run holds it: the three hotkeys and how screenshots are made.
// Filled from the settings at start-up, rewritten by the dialog's OK. Knows nothing of the desktop's hotkeys.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/Geometry.h"

namespace troth {

struct Platform;

struct HotkeyRecord {
  bool enabled = false;
  bool control = false;
  bool shift = false;
  bool alt = false;
  std::int32_t key = 0;    // virtual key code
  std::uint16_t atom = 0;  // the number under which the desktop knows the hotkey
  // The desktop did not take it, as when another program holds the combination.
  bool isRefused = false;

  // As the desktop takes and reports them.
  int Modifiers() const;
};

struct HotkeyRecords {
  HotkeyRecord Speech;
  HotkeyRecord Screenshot;
  HotkeyRecord EditBox;

  // In which they are registered and taken back.
  std::array<HotkeyRecord*, 3> InOrder() { return {&Speech, &Screenshot, &EditBox}; }
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

// Between the settings and the run. Atoms and refusals are left as they are.
void ReadHotkeyOptions(const Platform& platform, HotkeyRecords& hotkeys, ScreenshotOptions& screenshots);
void StoreHotkeyOptions(const Platform& platform, const HotkeyRecords& hotkeys,
                        const ScreenshotOptions& screenshots);

}  // namespace troth
