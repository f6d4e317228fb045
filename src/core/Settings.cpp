#include "core/Settings.h"

#include <algorithm>

#include "platform/Platform.h"
#include "platform/services/FileService.h"
#include "platform/services/SettingsStore.h"

namespace troth {

namespace {

std::wstring ApplicationOf(const Platform& platform, const Setting& setting) {
  switch (setting.owner) {
    case SettingOwner::Release:
      return L"Troth";
    case SettingOwner::PatchProgram:
      return L"TrothAutoPatch";
    case SettingOwner::Program:
      break;
  }
  return platform.files.ExecutableName();
}

}  // namespace

std::wstring GetSetting(const Platform& platform, const std::wstring& application,
                        const std::wstring& section, const std::wstring& key, const std::wstring& fallback) {
  return platform.settings.Read(application, section, key).value_or(fallback);
}

void SaveSetting(const Platform& platform, const std::wstring& application, const std::wstring& section,
                 const std::wstring& key, const std::wstring& value) {
  platform.settings.Write(application, section, key, value);
}

std::wstring ReadText(const Platform& platform, const Setting& setting) {
  return GetSetting(platform, ApplicationOf(platform, setting), setting.section, setting.key,
                    setting.fallback);
}

std::int32_t ReadWhole(const Platform& platform, const Setting& setting) {
  const std::int32_t value = ReadNumber(ReadText(platform, setting), setting.fraction);
  return std::clamp(value, setting.lowest, setting.highest);
}

bool ReadFlag(const Platform& platform, const Setting& setting) { return ReadWhole(platform, setting) != 0; }

void WriteText(const Platform& platform, const Setting& setting, const std::wstring& value) {
  SaveSetting(platform, ApplicationOf(platform, setting), setting.section, setting.key, value);
}

void WriteWhole(const Platform& platform, const Setting& setting, std::int32_t value) {
  WriteText(platform, setting, std::to_wstring(value));
}

void WriteFlag(const Platform& platform, const Setting& setting, bool value) {
  WriteText(platform, setting, value ? L"1" : L"0");
}

}  // namespace troth
