#include "platform/win32/Win32Files.h"

#include <climits>

#include "platform/services/TimeService.h"
#include "platform/win32/TemporaryFile.h"
#include "platform/win32/Win32.h"

namespace troth {

namespace {

using UniqueSearch = Unique<HANDLE, FindClose>;

constexpr std::size_t kCopyBytes = 65536;

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

bool Has(const std::wstring& path, DWORD attribute) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & attribute) != 0;
}

bool IsFolder(const std::wstring& path) { return Has(path, FILE_ATTRIBUTE_DIRECTORY); }

// Wine replaces and deletes read-only files, so they are recognised by their attributes.
bool IsProtected(const std::wstring& path) {
  return Has(path, FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY);
}

class Reader final : public FileReader {
 public:
  explicit Reader(UniqueFile file) : file_(std::move(file)) {}

  std::optional<std::size_t> Read(std::span<char> buffer) override {
    const auto wanted = static_cast<DWORD>(std::min<std::size_t>(buffer.size(), INT_MAX));
    DWORD count = 0;
    if (!ReadFile(file_.get(), buffer.data(), wanted, &count, nullptr)) return std::nullopt;
    return count;
  }

 private:
  UniqueFile file_;
};

class Writer final : public FileWriter {
 public:
  explicit Writer(UniqueFile file) : file_(std::move(file)) {}

  bool Append(std::string_view bytes) override { return file_ && WriteBytes(file_.get(), bytes); }

  bool Close() override {
    const bool isFlushed = file_ && FlushFileBuffers(file_.get());
    file_.reset();
    return isFlushed;
  }

 private:
  UniqueFile file_;
};

// Other programs may go on writing to the file, as the game does to its journal.
UniqueFile OpenForReading(const std::wstring& path) {
  return Opened(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                            OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
}

bool CopyBytes(HANDLE from, HANDLE to) {
  std::string buffer(kCopyBytes, '\0');
  for (;;) {
    DWORD count = 0;
    if (!ReadFile(from, buffer.data(), static_cast<DWORD>(buffer.size()), &count, nullptr)) return false;
    if (count == 0) return true;
    if (!WriteBytes(to, std::string_view(buffer).substr(0, count))) return false;
  }
}

std::wstring ErrorText(DWORD error) {
  wchar_t* text = nullptr;
  const DWORD length = FormatMessageW(
      FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
      error, 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
  const Unique<wchar_t*, LocalFree> owner(text);
  if (length == 0) return L"Error " + std::to_wstring(error);
  const std::wstring_view line(text, length);
  return std::wstring(line.substr(0, line.find_last_not_of(L"\r\n ") + 1));
}

}  // namespace

std::wstring Win32Files::ProgramFolder() const { return FolderOf(ExecutablePath()); }

std::wstring Win32Files::ExecutableName() const {
  const std::wstring path = ExecutablePath();
  const std::wstring file = path.substr(path.find_last_of(L'\\') + 1);
  return file.substr(0, file.find_last_of(L'.'));
}

std::wstring Win32Files::TemporaryFolder() const {
  wchar_t folder[MAX_PATH + 1];
  std::wstring path(folder, GetTempPathW(MAX_PATH + 1, folder));
  if (path.ends_with(L'\\')) path.pop_back();
  return path;
}

std::wstring Win32Files::LocalDataFolder() const {
  std::wstring folder(GetEnvironmentVariableW(L"LOCALAPPDATA", nullptr, 0), L'\0');
  folder.resize(GetEnvironmentVariableW(L"LOCALAPPDATA", folder.data(), static_cast<DWORD>(folder.size())));
  return folder;
}

bool Win32Files::Exists(const std::wstring& path) const {
  return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES && !IsFolder(path);
}

std::optional<std::uint64_t> Win32Files::Size(const std::wstring& path) const {
  WIN32_FILE_ATTRIBUTE_DATA data;
  if (!GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data) ||
      (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
    return std::nullopt;
  return (std::uint64_t{data.nFileSizeHigh} << 32) | data.nFileSizeLow;
}

std::vector<FileEntry> Win32Files::List(const std::wstring& folder) const {
  std::vector<FileEntry> found;
  WIN32_FIND_DATAW data;
  const HANDLE first = FindFirstFileW((folder + L"\\*").c_str(), &data);
  if (first == INVALID_HANDLE_VALUE) return found;
  const UniqueSearch search(first);
  do {
    const std::wstring_view name = data.cFileName;
    if (name != L"." && name != L"..")
      found.push_back(
          {.name = std::wstring(name), .isFolder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0});
  } while (FindNextFileW(search.get(), &data));
  return found;
}

std::optional<std::string> Win32Files::Read(const std::wstring& path) const {
  const UniqueFile file = OpenForReading(path);
  LARGE_INTEGER size;
  if (!file || !GetFileSizeEx(file.get(), &size) || size.QuadPart > INT_MAX) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
  DWORD count = 0;
  if (!ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr))
    return std::nullopt;
  bytes.resize(count);
  return bytes;
}

std::unique_ptr<FileReader> Win32Files::Open(const std::wstring& path) const {
  UniqueFile file = OpenForReading(path);
  return file ? std::make_unique<Reader>(std::move(file)) : nullptr;
}

std::unique_ptr<FileWriter> Win32Files::Create(const std::wstring& path) {
  if (!HasUsableName(path) || IsProtected(path)) return nullptr;
  UniqueFile file = Opened(CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS,
                                       FILE_ATTRIBUTE_NORMAL, nullptr));
  return file ? std::make_unique<Writer>(std::move(file)) : nullptr;
}

bool Win32Files::Write(const std::wstring& path, const std::string& bytes) {
  if (!HasUsableName(path) || IsProtected(path)) return false;
  TemporaryFile file(FolderOf(path));
  return file.Handle() && WriteBytes(file.Handle(), bytes) &&
         file.TakePlaceOf(path, MOVEFILE_REPLACE_EXISTING, time_);
}

CopyOutcome Win32Files::Copy(const std::wstring& from, const std::wstring& to, IfExists existing) {
  if (GetFileAttributesW(from.c_str()) == INVALID_FILE_ATTRIBUTES) return CopyOutcome::SourceMissing;
  const UniqueFile source = OpenForReading(from);
  if (!source) return CopyOutcome::Failed;
  if (!HasUsableName(to) || !IsFolder(FolderOf(to))) return CopyOutcome::PathNotFound;
  const bool mayReplace = existing == IfExists::Replace;
  if (IsProtected(to) || (!mayReplace && Exists(to))) return CopyOutcome::Failed;
  TemporaryFile file(FolderOf(to));
  const bool isDone = file.Handle() && CopyBytes(source.get(), file.Handle()) &&
                      file.TakePlaceOf(to, mayReplace ? MOVEFILE_REPLACE_EXISTING : 0, time_);
  return isDone ? CopyOutcome::Done : CopyOutcome::Failed;
}

std::optional<std::wstring> Win32Files::Rename(const std::wstring& from, const std::wstring& to) {
  if (!HasUsableName(to)) return ErrorText(ERROR_INVALID_NAME);
  if (IsFolder(from)) return ErrorText(ERROR_FILE_NOT_FOUND);
  if (MoveFileExW(from.c_str(), to.c_str(), 0)) return std::nullopt;
  return ErrorText(GetLastError());
}

bool Win32Files::Delete(const std::wstring& path) { return !IsProtected(path) && DeleteFileW(path.c_str()); }

bool Win32Files::CreateFolder(const std::wstring& path) {
  return CreateDirectoryW(path.c_str(), nullptr) || IsFolder(path);
}

}  // namespace troth
