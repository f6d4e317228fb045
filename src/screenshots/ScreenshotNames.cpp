#include "screenshots/ScreenshotNames.h"

namespace troth {

namespace {

std::wstring Padded(std::int32_t number, std::size_t digits) {
  const std::wstring text = std::to_wstring(number);
  return text.size() < digits ? std::wstring(digits - text.size(), L'0') + text : text;
}

}  // namespace

std::wstring ClockText(const LocalTime& time, wchar_t separator) {
  const int hour = time.hour % 12 == 0 ? 12 : time.hour % 12;
  return std::to_wstring(hour) + separator + Padded(time.minute, 2) + separator + Padded(time.second, 2) +
         (time.hour < 12 ? L" AM" : L" PM");
}

std::wstring SessionName(const LocalTime& now) {
  return Padded(now.year, 4) + L'-' + Padded(now.month, 2) + L'-' + Padded(now.day, 2) + L' ' +
         ClockText(now, L'-');
}

std::wstring ScreenshotFileName(const std::wstring& baseName, std::int32_t number) {
  return baseName + Padded(number, 4) + L".bmp";
}

}  // namespace troth
