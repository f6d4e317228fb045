#include "screenshots/ScreenshotLabel.h"

#include "screenshots/ScreenshotNames.h"
#include "script/Text.h"

namespace troth {

namespace {

// The margin on the right is twice that on the other sides.
constexpr int kMargin = 5;
constexpr int kRightMargin = 10;

std::wstring MomentText(const TimeService& time) {
  const LocalTime now = time.Now();
  return time.DayName(now.dayOfWeek) + L", " + time.MonthName(now.month) + L' ' + std::to_wstring(now.day) +
         L", " + std::to_wstring(now.year) + L" - " + ClockText(now, L':');
}

}  // namespace

std::wstring LabelText(const ScreenshotOptions& options, const std::wstring& groom, const std::wstring& bride,
                       const TimeService& time) {
  std::wstring text;
  bool hasText = false;
  const auto add = [&](const std::wstring& piece) {
    if (hasText) text += L" - ";
    text += piece;
    hasText = true;
  };
  if (options.includeNames) add(std::wstring(TrimBlanks(groom)) + L" and " + std::wstring(TrimBlanks(bride)));
  if (options.includeDate) add(MomentText(time));
  if (options.includeCounselor) add(options.counselorName);
  return text;
}

std::optional<LabelPlace> PlaceLabel(int position, PixelSize picture, int topMargin, int textHeight) {
  if (position < 0 || position > 3) return std::nullopt;
  const bool isAtBottom = position >= 2;
  const bool isOnRight = position % 2 == 1;
  const int top = isAtBottom ? picture.height - kMargin - textHeight : topMargin + kMargin;
  return LabelPlace{.rect = {kMargin, top, picture.width - kRightMargin, top + textHeight},
                    .side = isOnRight ? TextSide::Right : TextSide::Left};
}

}  // namespace troth
