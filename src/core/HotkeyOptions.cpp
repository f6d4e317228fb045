#include "core/HotkeyOptions.h"

#include "platform/forms/Form.h"
#include "core/Settings.h"

namespace troth {

namespace {

using namespace settings;

struct HotkeyRows {
  HotkeyRecord HotkeyRecords::*record;
  const Setting& enabled;
  const Setting& control;
  const Setting& alt;
  const Setting& shift;
  const Setting& key;
};

// In the order in which they are stored.
constexpr HotkeyRows kHotkeys[] = {
    {&HotkeyRecords::Speech, HotkeyEnabled, HotkeyControl, HotkeyAlt, HotkeyShift, HotkeyKey},
    {&HotkeyRecords::EditBox, EditBoxEnabled, EditBoxControl, EditBoxAlt, EditBoxShift, EditBoxKey},
    {&HotkeyRecords::Screenshot, ScreenshotHotkeyEnabled, ScreenshotControl, ScreenshotAlt, ScreenshotShift,
     ScreenshotKey},
};

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

int HotkeyRecord::Modifiers() const {
  return (control ? kHotkeyControl : 0) + (alt ? kHotkeyAlt : 0) + (shift ? kHotkeyShift : 0);
}

void ReadHotkeyOptions(const Platform& platform, HotkeyRecords& hotkeys, ScreenshotOptions& screenshots) {
  for (const HotkeyRows& rows : kHotkeys) {
    HotkeyRecord& record = hotkeys.*rows.record;
    record.enabled = ReadFlag(platform, rows.enabled);
    record.control = ReadFlag(platform, rows.control);
    record.alt = ReadFlag(platform, rows.alt);
    record.shift = ReadFlag(platform, rows.shift);
    record.key = ReadWhole(platform, rows.key);
  }
  for (const FlagRow& row : kScreenshotFlags) screenshots.*row.flag = ReadFlag(platform, row.setting);
  screenshots.counselorName = ReadText(platform, CounselorName);
  screenshots.baseFileName = ReadText(platform, BaseFileName);
  screenshots.labelPosition = ReadWhole(platform, LabelPosition);
  screenshots.textColor = static_cast<Color>(ReadWhole(platform, TextColor));
}

void StoreHotkeyOptions(const Platform& platform, const HotkeyRecords& hotkeys,
                        const ScreenshotOptions& screenshots) {
  for (const HotkeyRows& rows : kHotkeys) {
    const HotkeyRecord& record = hotkeys.*rows.record;
    WriteFlag(platform, rows.enabled, record.enabled);
    WriteFlag(platform, rows.control, record.control);
    WriteFlag(platform, rows.alt, record.alt);
    WriteFlag(platform, rows.shift, record.shift);
    WriteWhole(platform, rows.key, record.key);
  }
  for (const FlagRow& row : kScreenshotFlags) WriteFlag(platform, row.setting, screenshots.*row.flag);
  WriteText(platform, CounselorName, screenshots.counselorName);
  WriteText(platform, BaseFileName, screenshots.baseFileName);
  WriteWhole(platform, LabelPosition, screenshots.labelPosition);
  WriteWhole(platform, TextColor, static_cast<std::int32_t>(screenshots.textColor));
}

}  // namespace troth
