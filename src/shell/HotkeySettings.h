// What the dialog of hotkeys edits, between the settings and the run: read at start-up, stored by the
// dialog's OK. Atoms and refusals of the records are left as they are.
#pragma once

#include "core/HotkeyOptions.h"

namespace troth {

struct Platform;

void ReadHotkeyOptions(const Platform& platform, HotkeyRecords& hotkeys, ScreenshotOptions& screenshots);
void StoreHotkeyOptions(const Platform& platform, const HotkeyRecords& hotkeys,
                        const ScreenshotOptions& screenshots);

}  // namespace troth
