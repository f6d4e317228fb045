// Reading and writing what the program remembers between runs. A value is always text; a missing one reads as
// its default, text that is no number reads as 0, and a failed write is not looked at.
#pragma once

#include <cstdint>
#include <string>

#include "core/SettingsTable.h"

namespace troth {

struct Platform;

// Any value of the store, for those whose rows are not in the table.
std::wstring GetSetting(const Platform& platform, const std::wstring& application,
                        const std::wstring& section, const std::wstring& key, const std::wstring& fallback);
void SaveSetting(const Platform& platform, const std::wstring& application, const std::wstring& section,
                 const std::wstring& key, const std::wstring& value);

// The rows of the table.
std::wstring ReadText(const Platform& platform, const Setting& setting);
std::int32_t ReadWhole(const Platform& platform, const Setting& setting);
bool ReadFlag(const Platform& platform, const Setting& setting);  // any number but 0 is on
void WriteText(const Platform& platform, const Setting& setting, const std::wstring& value);
void WriteWhole(const Platform& platform, const Setting& setting, std::int32_t value);
void WriteFlag(const Platform& platform, const Setting& setting, bool value);  // "1" or "0"

}  // namespace troth
