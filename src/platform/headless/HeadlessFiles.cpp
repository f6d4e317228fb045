#include "platform/headless/HeadlessFiles.h"

#include <algorithm>

#include "platform/headless/CaseFolding.h"

namespace troth {

namespace {

std::string Readable(const std::wstring& path) { return HeadlessJournal::Readable(path); }

}  // namespace

class HeadlessFiles::Reader final : public FileReader {
 public:
  // `fails`: at the end of the bytes, instead of ending there.
  Reader(std::string bytes, bool fails) : bytes_(std::move(bytes)), fails_(fails) {}

  std::optional<std::size_t> Read(std::span<char> buffer) override {
    const std::size_t count = bytes_.copy(buffer.data(), buffer.size(), next_);
    next_ += count;
    if (fails_ && count == 0) return std::nullopt;
    return count;
  }

 private:
  std::string bytes_;
  bool fails_;
  std::size_t next_ = 0;
};

class HeadlessFiles::Writer final : public FileWriter {
 public:
  Writer(HeadlessFiles& disk, std::wstring key) : disk_(disk), key_(std::move(key)) {}

  bool Append(std::string_view bytes) override {
    const auto found = disk_.entries_.find(key_);
    if (isClosed_ || found == disk_.entries_.end()) return false;
    const std::size_t count = std::min(bytes.size(), disk_.room_);
    found->second.bytes += bytes.substr(0, count);
    disk_.room_ -= count;
    return count == bytes.size();
  }

  bool Close() override {
    isClosed_ = true;
    return true;
  }

 private:
  HeadlessFiles& disk_;
  std::wstring key_;
  bool isClosed_ = false;
};

HeadlessFiles::HeadlessFiles() {
  PutFolder(ProgramFolder());
  PutFolder(TemporaryFolder());
}

std::wstring HeadlessFiles::Key(const std::wstring& path) { return CaseFolded(path); }

const HeadlessFiles::Entry* HeadlessFiles::Find(const std::wstring& path) const {
  const auto found = entries_.find(Key(path));
  return found == entries_.end() ? nullptr : &found->second;
}

bool HeadlessFiles::IsFolder(const std::wstring& path) const {
  const Entry* entry = Find(path);
  return entry && entry->isFolder;
}

bool HeadlessFiles::RefusesWriting(const std::wstring& path) const {
  return unwritable_.contains(Key(path)) || unwritable_.contains(Key(FolderOf(path)));
}

bool HeadlessFiles::CanHoldFile(const std::wstring& path) const {
  return HasUsableName(path) && IsFolder(FolderOf(path)) && !IsFolder(path) && !RefusesWriting(path);
}

bool HeadlessFiles::Exists(const std::wstring& path) const {
  const Entry* entry = Find(path);
  return entry && !entry->isFolder;
}

std::optional<std::uint64_t> HeadlessFiles::Size(const std::wstring& path) const {
  const Entry* entry = Find(path);
  if (!entry || entry->isFolder) return std::nullopt;
  return entry->bytes.size();
}

std::vector<FileEntry> HeadlessFiles::List(const std::wstring& folder) const {
  std::vector<FileEntry> found;
  if (unreadable_.contains(Key(folder))) return found;
  const std::wstring start = Key(folder) + L'\\';
  for (auto entry = entries_.lower_bound(start); entry != entries_.end(); ++entry) {
    if (!entry->first.starts_with(start)) break;
    if (entry->first.find(L'\\', start.size()) == std::wstring::npos)
      found.push_back({.name = entry->second.name, .isFolder = entry->second.isFolder});
  }
  return found;
}

std::optional<std::string> HeadlessFiles::Read(const std::wstring& path) const {
  const Entry* entry = Find(path);
  if (!entry || entry->isFolder || unreadable_.contains(Key(path)) || readableBytes_.contains(Key(path)))
    return std::nullopt;
  return entry->bytes;
}

std::unique_ptr<FileReader> HeadlessFiles::Open(const std::wstring& path) const {
  const Entry* entry = Find(path);
  if (!entry || entry->isFolder || unreadable_.contains(Key(path))) return nullptr;
  const auto failing = readableBytes_.find(Key(path));
  const bool fails = failing != readableBytes_.end();
  return std::make_unique<Reader>(fails ? entry->bytes.substr(0, failing->second) : entry->bytes, fails);
}

std::unique_ptr<FileWriter> HeadlessFiles::Create(const std::wstring& path) {
  if (!Record("create " + Readable(path), CanHoldFile(path))) return nullptr;
  room_ += Size(path).value_or(0);
  Put(path, "");
  return std::make_unique<Writer>(*this, Key(path));
}

bool HeadlessFiles::Write(const std::wstring& path, const std::string& bytes) {
  return Record("write " + Readable(path), CanHoldFile(path) && Store(path, bytes));
}

// The old file keeps its bytes until the new one is complete.
bool HeadlessFiles::Store(const std::wstring& path, const std::string& bytes) {
  if (bytes.size() > room_) return false;
  room_ += Size(path).value_or(0) - bytes.size();
  Put(path, bytes);
  return true;
}

CopyOutcome HeadlessFiles::Copy(const std::wstring& from, const std::wstring& to, IfExists existing) {
  const CopyOutcome outcome = TryCopy(from, to, existing);
  Record("copy " + Readable(from) + " to " + Readable(to), outcome == CopyOutcome::Done);
  return outcome;
}

CopyOutcome HeadlessFiles::TryCopy(const std::wstring& from, const std::wstring& to, IfExists existing) {
  if (!Find(from)) return CopyOutcome::SourceMissing;
  const auto bytes = Read(from);
  if (!bytes) return CopyOutcome::Failed;
  if (!HasUsableName(to) || !IsFolder(FolderOf(to))) return CopyOutcome::PathNotFound;
  const bool mayReplace = existing == IfExists::Replace || !Find(to);
  return mayReplace && CanHoldFile(to) && Store(to, *bytes) ? CopyOutcome::Done : CopyOutcome::Failed;
}

std::optional<std::wstring> HeadlessFiles::Rename(const std::wstring& from, const std::wstring& to) {
  const auto error = TryRename(from, to);
  Record("rename " + Readable(from) + " to " + Readable(to), !error);
  return error;
}

std::optional<std::wstring> HeadlessFiles::TryRename(const std::wstring& from, const std::wstring& to) {
  const auto found = entries_.find(Key(from));
  if (found == entries_.end() || found->second.isFolder) return L"The system cannot find the file specified.";
  if (!HasUsableName(to)) return L"The filename, directory name, or volume label syntax is incorrect.";
  if (!IsFolder(FolderOf(to))) return L"The system cannot find the path specified.";
  if (Find(to) && Key(to) != Key(from)) return L"Cannot create a file when that file already exists.";
  if (RefusesWriting(from) || RefusesWriting(to)) return L"Access is denied.";
  std::string bytes = std::move(found->second.bytes);
  entries_.erase(found);
  Put(to, std::move(bytes));
  return std::nullopt;
}

bool HeadlessFiles::Delete(const std::wstring& path) {
  const auto size = Size(path);
  const bool isDone = size && !RefusesWriting(path);
  if (isDone) {
    room_ += *size;
    entries_.erase(Key(path));
  }
  return Record("delete " + Readable(path), isDone);
}

bool HeadlessFiles::CreateFolder(const std::wstring& path) {
  const bool isNew = !Find(path) && HasUsableName(path) && IsFolder(FolderOf(path)) && !RefusesWriting(path);
  if (isNew) PutFolder(path);
  return Record("folder " + Readable(path), isNew || IsFolder(path));
}

void HeadlessFiles::Put(const std::wstring& path, std::string bytes) {
  PutFolder(FolderOf(path));
  Entry& entry = entries_[Key(path)];
  if (entry.name.empty()) entry.name = path.substr(path.find_last_of(L'\\') + 1);
  entry.bytes = std::move(bytes);
}

void HeadlessFiles::PutFolder(const std::wstring& path) {
  if (path.empty()) return;
  PutFolder(FolderOf(path));
  entries_.try_emplace(
      Key(path), Entry{.name = path.substr(path.find_last_of(L'\\') + 1), .isFolder = true, .bytes = {}});
}

void HeadlessFiles::Remove(const std::wstring& path) {
  entries_.erase(Key(path));
  std::erase_if(entries_,
                [start = Key(path) + L'\\'](const auto& entry) { return entry.first.starts_with(start); });
}

void HeadlessFiles::RefuseReading(const std::wstring& path) { unreadable_.insert(Key(path)); }
void HeadlessFiles::RefuseWriting(const std::wstring& path) { unwritable_.insert(Key(path)); }
void HeadlessFiles::FailReadingAfter(const std::wstring& path, std::size_t bytes) {
  readableBytes_[Key(path)] = bytes;
}

void HeadlessFiles::Refuse(const std::wstring& path) {
  RefuseReading(path);
  RefuseWriting(path);
}

bool HeadlessFiles::Record(const std::string& act, bool isDone) {
  if (journal_) journal_->Add(isDone ? act : act + " (failed)");
  return isDone;
}

}  // namespace troth
