// Documents, commands, the registry and the old help viewer of the Windows backend.
#pragma once

#include "platform/services/ShellService.h"

namespace troth {

class Win32Shell final : public ShellService {
 public:
  bool Open(const std::wstring& file, const std::wstring& parameters, const std::wstring& folder) override;
  std::optional<std::wstring> FindProgramFor(const std::wstring& file) override;
  bool Start(const std::wstring& commandLine) override;
  std::optional<std::wstring> ReadRegistry(RegistryRoot root, const std::wstring& key,
                                           const std::wstring& valueName) override;
  bool ShowHelpFile(const std::wstring& helpFile, int topic) override;
  void CloseHelpFile(const std::wstring& helpFile) override;
};

}  // namespace troth
