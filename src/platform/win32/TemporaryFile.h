// A file under construction: it has a name of its own beside its target until it is complete.
#pragma once

#include <string>
#include <string_view>

#include "platform/win32/Win32.h"

namespace troth {

class TimeService;

// Null for INVALID_HANDLE_VALUE.
UniqueFile Opened(HANDLE file);

// False if the disk did not take all the bytes.
bool WriteBytes(HANDLE file, std::string_view bytes);

class TemporaryFile {
 public:
  // Creates it under a name that no file in the folder has.
  explicit TemporaryFile(const std::wstring& folder);
  // Deletes it unless it took the place of its target.
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  // Null if it could not be created.
  HANDLE Handle() const { return file_.get(); }

  // Flushes and closes it and renames it to the target, which is in the same folder. `flags` are those of
  // MoveFileEx. A virus scanner or an indexer may hold either file for a moment, so a refusal is retried for
  // up to FileService::kPatienceMs.
  bool TakePlaceOf(const std::wstring& target, DWORD flags, TimeService& time);

 private:
  std::wstring path_;  // empty if there is nothing to delete
  UniqueFile file_;
};

}  // namespace troth
