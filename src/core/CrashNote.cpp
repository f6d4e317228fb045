#include "core/CrashNote.h"

#include <algorithm>
#include <string>

#include "core/modMain.h"
#include "platform/Platform.h"
#include "platform/services/FileService.h"
#include "script/MessageBoxes.h"
#include "script/ProgramTitle.h"

namespace troth {

namespace {

class Text {
 public:
  explicit Text(std::span<char> buffer) : buffer_(buffer) {}

  Text& operator<<(std::string_view text) {
    const std::size_t room = std::min(text.size(), buffer_.size() - length_);
    std::copy_n(text.begin(), room, buffer_.begin() + static_cast<std::ptrdiff_t>(length_));
    length_ += room;
    return *this;
  }

  Text& Number(std::uint64_t number, int base, std::size_t digits) {
    char reversed[20];
    std::size_t count = 0;
    for (; count < digits || number != 0; number /= static_cast<unsigned>(base))
      reversed[count++] = "0123456789ABCDEF"[number % static_cast<unsigned>(base)];
    while (count > 0) *this << std::string_view(&reversed[--count], 1);
    return *this;
  }

  Text& Decimal(int number, std::size_t digits) {
    return Number(static_cast<std::uint64_t>(number), 10, digits);
  }

  std::size_t Length() const { return length_; }

 private:
  std::span<char> buffer_;
  std::size_t length_ = 0;
};

}  // namespace

std::size_t ComposeCrashNote(std::span<char> buffer, const CrashDetails& details) {
  Text note(buffer);
  note << "Trothline " << details.version << " ended unexpectedly.\r\nWhen: ";
  note.Decimal(details.year, 4) << "-";
  note.Decimal(details.month, 2) << "-";
  note.Decimal(details.day, 2) << " ";
  note.Decimal(details.hour, 2) << ":";
  note.Decimal(details.minute, 2) << ":";
  note.Decimal(details.second, 2) << " UTC\r\nWhat: exception ";
  note.Number(details.exceptionCode, 16, 8) << "\r\nWhere: ";
  note << (details.module.empty() ? "no module" : details.module) << " + ";
  note.Number(details.offset, 16, 1) << "\r\n";
  return note.Length();
}

// A note that cannot be marked would be mentioned at every start.
void MentionCrash(const Platform& platform) {
  FileService& files = platform.files;
  const std::wstring note = files.LocalDataFolder() + kCrashNote;
  const std::wstring seen = files.LocalDataFolder() + kSeenCrashNote;
  if (!files.Exists(note)) return;
  files.Delete(seen);
  if (files.Rename(note, seen)) return;
  ShowBox(platform, BoxIcon::Information,
          std::wstring(kProgramTitle) +
              L" ended unexpectedly the last time.\n\nA note says where in the program that was. It contains "
              L"nothing of your texts:\n" +
              seen + L"\n\nIf it happens again, please send this file to " + kAuthorMail + L".");
}

}  // namespace troth
