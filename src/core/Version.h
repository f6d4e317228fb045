// The version of the running program, and the highest one that has run under this user.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace troth {

struct Platform;

struct Version {
  std::int32_t major = 0;
  std::int32_t minor = 0;
  std::int32_t revision = 0;
  friend auto operator<=>(const Version&, const Version&) = default;

  // The numbers joined with "."; no leading zeros.
  std::wstring Text() const;
};

Version RunningVersion();

// The comment line of the version record: the disclaimer.
std::wstring VersionComments();

// Three numbers with a "." between them, each piece at least one character long; nothing for any other form.
std::optional<Version> ReadVersion(std::wstring_view text);

// Keeps the setting "Last Used Version" at the highest version that has run. A stored version that is not in
// its plain form, such as "3.01.0", is reported and left alone.
void RecordVersion(const Platform& platform);

}  // namespace troth
