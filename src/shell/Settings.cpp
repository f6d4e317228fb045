#include "shell/Settings.h"

#include "platform/FileService.h"
#include "platform/Platform.h"
#include "platform/SettingsStore.h"

namespace troth {

std::wstring GetSetting(const Platform& platform, const std::wstring& application,
                        const std::wstring& section, const std::wstring& key, const std::wstring& fallback) {
  return platform.settings.Read(application, section, key).value_or(fallback);
}

void SaveSetting(const Platform& platform, const std::wstring& application, const std::wstring& section,
                 const std::wstring& key, const std::wstring& value) {
  platform.settings.Write(application, section, key, value);
}

std::wstring MainApplication(const Platform& platform) { return platform.files.ExecutableName(); }

}  // namespace troth
