// Files as the program sees them: whole contents, streams and folders; paths written with "\".
// Called by everything that loads or keeps data. Never shows a message and never throws: failure is a value.
// Names compare without regard to case. A name with one of the characters < > : " / | ? * or a control
// character is refused in every path that is written to.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace troth {

struct FileEntry {
  std::wstring name;  // without its folder
  bool isFolder = false;
};

enum class IfExists { Refuse, Replace };

// PathNotFound: the folder of the new file is missing, or the new name has characters that no name may have.
// Failed: everything else, such as an existing file, a full disk or a missing right.
enum class CopyOutcome { Done, SourceMissing, PathNotFound, Failed };

// A file that is written piece by piece. What was written stays on the disk, whatever happens later.
class FileWriter {
 public:
  virtual ~FileWriter() = default;

  // Hands the bytes to the system at once, so join small pieces. False if the disk did not take them all.
  virtual bool Append(std::string_view bytes) = 0;

  // Flushes and closes the file; false if that failed. The destructor closes a file that is still open.
  virtual bool Close() = 0;
};

// A file that is read piece by piece.
class FileReader {
 public:
  virtual ~FileReader() = default;

  // The number of bytes that were read: as many as `buffer` holds until the end is near, 0 at the end.
  // Nothing if the file cannot be read.
  virtual std::optional<std::size_t> Read(std::span<char> buffer) = 0;
};

class FileService {
 public:
  virtual ~FileService() = default;

  // The folder of the executable, without a trailing separator.
  virtual std::wstring ProgramFolder() const = 0;

  // The executable's file name without folder and extension: "Troth".
  virtual std::wstring ExecutableName() const = 0;

  // The user's folder for temporary files, without a trailing separator.
  virtual std::wstring TemporaryFolder() const = 0;

  // The user's folder for data that belongs to this computer, without a trailing separator.
  virtual std::wstring LocalDataFolder() const = 0;

  // True for a file, false for a folder and for everything that is not there.
  virtual bool Exists(const std::wstring& path) const = 0;

  // In bytes. Nothing for a folder and for everything that is not there.
  virtual std::optional<std::uint64_t> Size(const std::wstring& path) const = 0;

  // The files and folders in a folder, in the order of the system, including hidden and read-only ones, but
  // without "." and "..". Empty if the folder cannot be listed.
  virtual std::vector<FileEntry> List(const std::wstring& folder) const = 0;

  // The whole content, or nothing if the file cannot be opened or read to its end. At most 2 GB.
  virtual std::optional<std::string> Read(const std::wstring& path) const = 0;

  // A long file for reading from its start, or null if it cannot be opened.
  virtual std::unique_ptr<FileReader> Open(const std::wstring& path) const = 0;

  // An empty file for writing, which replaces an existing one at once. Null if it cannot be created. For
  // files that must not be lost use Write.
  virtual std::unique_ptr<FileWriter> Create(const std::wstring& path) = 0;

  // Write and Copy are done whole or not at all: the bytes go to a temporary file beside the target, under a
  // name that no file has, which then takes the target's place. A full disk or a killed process leaves an
  // existing target unchanged. A read-only target is refused. While another program holds the target they try
  // again for up to kPatienceMs; no handler runs meanwhile.
  virtual bool Write(const std::wstring& path, const std::string& bytes) = 0;
  virtual CopyOutcome Copy(const std::wstring& from, const std::wstring& to,
                           IfExists existing = IfExists::Refuse) = 0;

  // Gives a file another path on the same disk and never replaces one. Nothing on success, otherwise the
  // system's own description of the error, in the user's language and without a line end.
  virtual std::optional<std::wstring> Rename(const std::wstring& from, const std::wstring& to) = 0;

  // False if the file is not there, is read-only or is held by another program.
  virtual bool Delete(const std::wstring& path) = 0;

  // True if the folder is there afterwards, new or not. The folder around it must exist.
  virtual bool CreateFolder(const std::wstring& path) = 0;

  static constexpr int kPatienceMs = 1000;

 protected:
  // Whether the last part of the path holds only characters that a name may have.
  static bool HasUsableName(std::wstring_view path);

  // The folder of a file, without a trailing separator.
  static std::wstring FolderOf(const std::wstring& path);
};

}  // namespace troth
