#include "platform/win32/TemporaryFile.h"

#include <algorithm>
#include <climits>
#include <cwchar>

#include "platform/services/FileService.h"
#include "platform/services/TimeService.h"

namespace troth {

namespace {

constexpr int kMostNames = 1000;
constexpr int kRetryMs = 20;

// A counter alone would meet the files of another instance; these differ from call to call.
std::uint32_t FirstNumber() {
  LARGE_INTEGER now;
  QueryPerformanceCounter(&now);
  return static_cast<std::uint32_t>(now.QuadPart) ^ (GetCurrentProcessId() << 16);
}

// Not the target's own name with something appended: that could be too long, or a file of the user's.
std::wstring NameOf(std::uint32_t number) {
  wchar_t name[16];
  std::swprintf(name, std::size(name), L"~%08X.tmp", static_cast<unsigned>(number));
  return name;
}

bool IsHeldByOthers(DWORD error) {
  return error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED || error == ERROR_LOCK_VIOLATION;
}

}  // namespace

UniqueFile Opened(HANDLE file) { return UniqueFile(file == INVALID_HANDLE_VALUE ? nullptr : file); }

bool WriteBytes(HANDLE file, std::string_view bytes) {
  while (!bytes.empty()) {
    DWORD written = 0;
    const auto size = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), INT_MAX));
    if (!WriteFile(file, bytes.data(), size, &written, nullptr) || written == 0) return false;
    bytes.remove_prefix(written);
  }
  return true;
}

TemporaryFile::TemporaryFile(const std::wstring& folder) {
  const std::uint32_t first = FirstNumber();
  for (std::uint32_t attempt = 0; attempt < kMostNames; ++attempt) {
    path_ = folder + L'\\' + NameOf(first + attempt);
    file_ = Opened(
        CreateFileW(path_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (file_) return;
    if (GetLastError() != ERROR_FILE_EXISTS) break;
  }
  path_.clear();
}

TemporaryFile::~TemporaryFile() {
  file_.reset();
  if (!path_.empty()) DeleteFileW(path_.c_str());
}

bool TemporaryFile::TakePlaceOf(const std::wstring& target, DWORD flags, TimeService& time) {
  if (!FlushFileBuffers(file_.get())) return false;
  file_.reset();
  const std::uint32_t start = time.TickCount();
  for (;;) {
    if (MoveFileExW(path_.c_str(), target.c_str(), flags | MOVEFILE_WRITE_THROUGH)) {
      path_.clear();
      return true;
    }
    const bool hasTime = time.TickCount() - start < static_cast<std::uint32_t>(FileService::kPatienceMs);
    if (!IsHeldByOthers(GetLastError()) || !hasTime) return false;
    time.Sleep(kRetryMs);
  }
}

}  // namespace troth
