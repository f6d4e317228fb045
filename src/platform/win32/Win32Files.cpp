#include <climits>

#include "platform/win32/Win32.h"
#include "platform/win32/Win32Services.h"

namespace troth {

namespace {

std::wstring ExecutablePath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

// A file under construction, which is deleted unless it takes the place of the target.
class NewFile {
 public:
  explicit NewFile(const std::wstring& target) : target_(target), path_(target + L".new") {}
  ~NewFile() {
    if (!inPlace_) DeleteFileW(path_.c_str());
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  const wchar_t* Path() const { return path_.c_str(); }

  bool TakePlace() {
    inPlace_ =
        MoveFileExW(path_.c_str(), target_.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    return inPlace_;
  }

 private:
  std::wstring target_;
  std::wstring path_;
  bool inPlace_ = false;
};

bool WriteAll(const wchar_t* path, const std::string& bytes) {
  const HANDLE opened =
      CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (opened == INVALID_HANDLE_VALUE) return false;
  const UniqueFile file(opened);
  const auto size = static_cast<DWORD>(bytes.size());
  DWORD written = 0;
  return WriteFile(file.get(), bytes.data(), size, &written, nullptr) && written == size &&
         FlushFileBuffers(file.get());
}

}  // namespace

std::wstring Win32Files::ProgramFolder() const {
  const std::wstring path = ExecutablePath();
  return path.substr(0, path.find_last_of(L'\\'));
}

std::wstring Win32Files::ExecutableName() const {
  const std::wstring path = ExecutablePath();
  const std::wstring file = path.substr(path.find_last_of(L'\\') + 1);
  return file.substr(0, file.find_last_of(L'.'));
}

bool Win32Files::Exists(const std::wstring& path) const {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

std::optional<std::string> Win32Files::Read(const std::wstring& path) const {
  const HANDLE opened = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
  if (opened == INVALID_HANDLE_VALUE) return std::nullopt;
  const UniqueFile file(opened);
  LARGE_INTEGER size;
  if (!GetFileSizeEx(file.get(), &size) || size.QuadPart > INT_MAX) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
  DWORD read = 0;
  if (!ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr))
    return std::nullopt;
  bytes.resize(read);
  return bytes;
}

std::wstring Win32Files::TemporaryFolder() const {
  wchar_t folder[MAX_PATH + 1];
  std::wstring path(folder, GetTempPathW(MAX_PATH + 1, folder));
  if (path.ends_with(L'\\')) path.pop_back();
  return path;
}

bool Win32Files::Write(const std::wstring& path, const std::string& bytes) {
  NewFile file(path);
  return bytes.size() <= INT_MAX && WriteAll(file.Path(), bytes) && file.TakePlace();
}

bool Win32Files::Copy(const std::wstring& from, const std::wstring& to) {
  NewFile file(to);
  return CopyFileW(from.c_str(), file.Path(), FALSE) && file.TakePlace();
}

bool Win32Files::CreateFolder(const std::wstring& path) {
  if (CreateDirectoryW(path.c_str(), nullptr)) return true;
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool Win32Files::Delete(const std::wstring& path) { return DeleteFileW(path.c_str()) != 0; }

}  // namespace troth
