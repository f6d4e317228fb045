// Names of screenshot files and of the folder of a run, and how a time of day reads in them and on a label.
#pragma once

#include <cstdint>
#include <string>

#include "platform/services/TimeService.h"

namespace troth {

// On the 12-hour clock: "9:05:03 PM". Midnight is 12 AM, noon 12 PM.
std::wstring ClockText(const LocalTime& time, wchar_t separator);

// The folder of a run whose first capture begins at `now`: "2001-06-15 9-05-03 PM".
std::wstring SessionName(const LocalTime& now);

// "TRLSS0007.bmp". From 10000 on the number has more than four digits.
std::wstring ScreenshotFileName(const std::wstring& baseName, std::int32_t number);

}  // namespace troth
