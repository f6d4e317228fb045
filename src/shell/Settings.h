// Reading and writing what the program remembers between runs. Values are always text; a missing one reads as
// the caller's default, and a failed write is not looked at.
#pragma once

#include <string>

namespace troth {

struct Platform;

std::wstring GetSetting(const Platform& platform, const std::wstring& application,
                        const std::wstring& section, const std::wstring& key, const std::wstring& fallback);

void SaveSetting(const Platform& platform, const std::wstring& application, const std::wstring& section,
                 const std::wstring& key, const std::wstring& value);

// The application under which nearly all settings lie: the name of the running executable.
std::wstring MainApplication(const Platform& platform);

}  // namespace troth
