// The files of the real system.
#pragma once

#include "platform/services/FileService.h"

namespace troth {

class TimeService;

class Win32Files final : public FileService {
 public:
  explicit Win32Files(TimeService& time) : time_(time) {}
  std::wstring ProgramFolder() const override;
  std::wstring ExecutableName() const override;
  std::wstring TemporaryFolder() const override;
  std::wstring LocalDataFolder() const override;
  bool Exists(const std::wstring& path) const override;
  std::optional<std::uint64_t> Size(const std::wstring& path) const override;
  std::vector<FileEntry> List(const std::wstring& folder) const override;
  std::optional<std::string> Read(const std::wstring& path) const override;
  std::unique_ptr<FileReader> Open(const std::wstring& path) const override;
  std::unique_ptr<FileWriter> Create(const std::wstring& path) override;
  bool Write(const std::wstring& path, const std::string& bytes) override;
  CopyOutcome Copy(const std::wstring& from, const std::wstring& to, IfExists existing) override;
  std::optional<std::wstring> Rename(const std::wstring& from, const std::wstring& to) override;
  bool Delete(const std::wstring& path) override;
  bool CreateFolder(const std::wstring& path) override;

 private:
  TimeService& time_;
};

}  // namespace troth
