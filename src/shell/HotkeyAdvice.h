// Whether a combination of keys can be a global hotkey now, and which one to take instead. Asked by the
// dialog of hotkeys at every change. Decides by what the caller knows and tries out; registers nothing
// itself.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/HotkeyOptions.h"

namespace troth {

// Whether the desktop would take the combination of this record from this program at this moment.
using HotkeyTrial = std::function<bool(const HotkeyRecord&)>;

// What to show beside the hotkey `chosen`: empty while it is off, that it is free, or why it will not work
// and the nearest combination that would. `others` are the program's other hotkeys as they stand in the
// dialog.
std::wstring HotkeyAdvice(const HotkeyRecord& chosen, const std::vector<HotkeyRecord>& others,
                          const HotkeyTrial& works);

}  // namespace troth
