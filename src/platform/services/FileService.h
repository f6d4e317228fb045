// Files as the program sees them: whole contents in and out, paths written with "\".
// Called by everything that loads or keeps data. Never shows a message and never throws: failure is a value.
#pragma once

#include <optional>
#include <string>

namespace troth {

class FileService {
 public:
  virtual ~FileService() = default;

  // The folder of the executable, without a trailing separator.
  virtual std::wstring ProgramFolder() const = 0;

  // The executable's file name without folder and extension: "Troth".
  virtual std::wstring ExecutableName() const = 0;

  // True for a file, false for a folder and for everything that is not there.
  virtual bool Exists(const std::wstring& path) const = 0;

  // The whole content, or nothing if the file cannot be opened or read to its end.
  virtual std::optional<std::string> Read(const std::wstring& path) const = 0;

  // The user's folder for files that live for a moment, without a trailing separator.
  virtual std::wstring TemporaryFolder() const = 0;

  // Each of these three is done whole or not at all, and says whether it was done. A file that is replaced
  // stays as it was until the new one stands, so that a full disk or a killed process loses nothing.
  virtual bool Write(const std::wstring& path, const std::string& bytes) = 0;
  virtual bool Copy(const std::wstring& from, const std::wstring& to) = 0;
  virtual bool Delete(const std::wstring& path) = 0;

  // True if the folder is there afterwards, new or not. The folder around it must be there.
  virtual bool CreateFolder(const std::wstring& path) = 0;
};

}  // namespace troth
