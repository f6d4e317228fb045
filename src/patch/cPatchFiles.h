// One file of a patch and the collection of them, in the form that the patch program exchanges. Agreed names;
// unused in this program.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "script/KeyedCollection.h"

namespace troth {

class cPatchFile {
 public:
  void DestinationPath(std::wstring value) { destinationPath_ = std::move(value); }
  const std::wstring& DestinationPath() const { return destinationPath_; }

  void ServerPath(std::wstring value) { serverPath_ = std::move(value); }
  const std::wstring& ServerPath() const { return serverPath_; }

  void DownloadPath(std::wstring value) { downloadPath_ = std::move(value); }
  const std::wstring& DownloadPath() const { return downloadPath_; }

  // In bytes.
  void FileSize(std::int32_t value) { fileSize_ = value; }
  std::int32_t FileSize() const { return fileSize_; }

  void FileName(std::wstring value) { fileName_ = std::move(value); }
  const std::wstring& FileName() const { return fileName_; }

 private:
  std::wstring destinationPath_;
  std::wstring serverPath_;
  std::wstring downloadPath_;
  std::int32_t fileSize_ = 0;
  std::wstring fileName_;
};

class cPatchFiles : public KeyedCollection<cPatchFile> {
 public:
  cPatchFile& Add(std::wstring fileName, std::int32_t fileSize, std::wstring downloadPath,
                  std::wstring serverPath, std::wstring destinationPath, std::wstring_view key) {
    auto file = std::make_unique<cPatchFile>();
    file->FileName(std::move(fileName));
    file->FileSize(fileSize);
    file->DownloadPath(std::move(downloadPath));
    file->ServerPath(std::move(serverPath));
    file->DestinationPath(std::move(destinationPath));
    return Append(std::move(file), key);
  }
};

}  // namespace troth
