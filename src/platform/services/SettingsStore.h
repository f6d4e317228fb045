// What the program remembers between runs: texts under application, section and key, per user.
// Names compare without regard to case. On Windows they are in the registry under the user's own key.
#pragma once

#include <optional>
#include <string>

namespace troth {

class SettingsStore {
 public:
  virtual ~SettingsStore() = default;

  // Nothing if no such value is stored or it cannot be read.
  virtual std::optional<std::wstring> Read(const std::wstring& application, const std::wstring& section,
                                           const std::wstring& key) const = 0;

  // Creates application, section and key as needed. A failed write is ignored: the old value stays.
  virtual void Write(const std::wstring& application, const std::wstring& section, const std::wstring& key,
                     const std::wstring& value) = 0;
};

}  // namespace troth
