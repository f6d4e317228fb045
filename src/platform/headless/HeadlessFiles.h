// An in-memory disk that refuses what a real one refuses: a file needs its folder, a name is either a file or
// a folder, names compare without regard to case. A test puts files on it and makes it fail.
#pragma once

#include <map>
#include <set>
#include <string>

#include "platform/headless/HeadlessJournal.h"
#include "platform/services/FileService.h"

namespace troth {

class HeadlessFiles : public FileService {
 public:
  HeadlessFiles();

  std::wstring ProgramFolder() const override { return L"C:\\Games\\Trothline"; }
  std::wstring ExecutableName() const override { return executableName; }
  std::wstring TemporaryFolder() const override { return L"C:\\Users\\Officiant\\Temp"; }
  std::wstring LocalDataFolder() const override { return L"C:\\Users\\Officiant\\Local"; }
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

  // --- For tests. ---

  std::wstring executableName = L"Troth";

  // From now on each change is a line of the journal, with " (failed)" at its end if it failed: "write PATH",
  // "create PATH", "copy PATH to PATH", "rename PATH to PATH", "delete PATH", "folder PATH".
  void RecordIn(HeadlessJournal& journal) { journal_ = &journal; }

  // Puts a file or folder on the disk, whatever is refused, with the folders around it.
  void Put(const std::wstring& path, std::string bytes);
  void PutFolder(const std::wstring& path);
  // Takes a file, or a folder with all that is in it, off the disk.
  void Remove(const std::wstring& path);

  // The file or folder is there, but it cannot be opened, read or listed.
  void RefuseReading(const std::wstring& path);
  // The file can be opened, but reading it fails after so many bytes.
  void FailReadingAfter(const std::wstring& path, std::size_t bytes);
  // A file can be read, but not written, renamed or deleted; in a folder nothing can be.
  void RefuseWriting(const std::wstring& path);
  void Refuse(const std::wstring& path);
  // So many more bytes fit on the disk.
  void LeaveRoomFor(std::size_t bytes) { room_ = bytes; }

 private:
  class Reader;
  class Writer;
  struct Entry {
    std::wstring name;
    bool isFolder = false;
    std::string bytes;
  };
  using Entries = std::map<std::wstring, Entry>;  // by the path in capitals

  static std::wstring Key(const std::wstring& path);
  const Entry* Find(const std::wstring& path) const;
  bool IsFolder(const std::wstring& path) const;
  bool RefusesWriting(const std::wstring& path) const;
  bool CanHoldFile(const std::wstring& path) const;
  bool Store(const std::wstring& path, const std::string& bytes);
  CopyOutcome TryCopy(const std::wstring& from, const std::wstring& to, IfExists existing);
  std::optional<std::wstring> TryRename(const std::wstring& from, const std::wstring& to);
  // Passes `isDone` on.
  bool Record(const std::string& act, bool isDone);

  Entries entries_;
  std::set<std::wstring> unreadable_;
  std::map<std::wstring, std::size_t> readableBytes_;  // of files whose reading fails then
  std::set<std::wstring> unwritable_;
  std::size_t room_ = static_cast<std::size_t>(-1) / 2;  // deleting files makes it grow
  HeadlessJournal* journal_ = nullptr;
};

}  // namespace troth
