#include "shell/HotkeySettings.h"

#include "core/Settings.h"
#include "shell/HotkeyTable.h"

namespace troth {

namespace {

using namespace settings;

struct FlagRow {
  bool ScreenshotOptions::*flag;
  const Setting& setting;
};

constexpr FlagRow kScreenshotFlags[] = {
    {&ScreenshotOptions::includeLabel, IncludeLabel},
    {&ScreenshotOptions::showPreview, ShowPreview},
    {&ScreenshotOptions::removeBorder, RemoveBorder},
    {&ScreenshotOptions::includeNames, IncludeNames},
    {&ScreenshotOptions::includeDate, IncludeDate},
    {&ScreenshotOptions::includeCounselor, IncludeCounselor},
};

}  // namespace

void ReadHotkeyOptions(const Platform& platform, HotkeyRecords& hotkeys, ScreenshotOptions& screenshots) {
  for (const HotkeyKind& kind : kHotkeyTable) {
    HotkeyRecord& record = hotkeys.*kind.record;
    record.enabled = ReadFlag(platform, kind.enabled);
    record.control = ReadFlag(platform, kind.control);
    record.alt = ReadFlag(platform, kind.alt);
    record.shift = ReadFlag(platform, kind.shift);
    record.key = ReadWhole(platform, kind.key);
  }
  for (const FlagRow& row : kScreenshotFlags) screenshots.*row.flag = ReadFlag(platform, row.setting);
  screenshots.counselorName = ReadText(platform, CounselorName);
  screenshots.baseFileName = ReadText(platform, BaseFileName);
  screenshots.labelPosition = ReadWhole(platform, LabelPosition);
  screenshots.textColor = static_cast<Color>(ReadWhole(platform, TextColor));
}

void StoreHotkeyOptions(const Platform& platform, const HotkeyRecords& hotkeys,
                        const ScreenshotOptions& screenshots) {
  for (const HotkeyKind& kind : kHotkeyTable) {
    const HotkeyRecord& record = hotkeys.*kind.record;
    WriteFlag(platform, kind.enabled, record.enabled);
    WriteFlag(platform, kind.control, record.control);
    WriteFlag(platform, kind.alt, record.alt);
    WriteFlag(platform, kind.shift, record.shift);
    WriteWhole(platform, kind.key, record.key);
  }
  for (const FlagRow& row : kScreenshotFlags) WriteFlag(platform, row.setting, screenshots.*row.flag);
  WriteText(platform, CounselorName, screenshots.counselorName);
  WriteText(platform, BaseFileName, screenshots.baseFileName);
  WriteWhole(platform, LabelPosition, screenshots.labelPosition);
  WriteWhole(platform, TextColor, static_cast<std::int32_t>(screenshots.textColor));
}

}  // namespace troth
