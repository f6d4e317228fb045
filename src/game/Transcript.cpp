#include "game/Transcript.h"

#include <array>
#include <charconv>

namespace troth::game {
namespace {

template <typename Number>
void AppendNumber(std::string& text, Number number) {
  std::array<char, 24> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  text.append(digits.data(), end);
}

}  // namespace

bool Transcript::Open(const std::wstring& file) {
  const HANDLE handle =
      CreateFileW(file.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                  nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return false;
  file_.reset(handle);
  return true;
}

void Transcript::Add(WPARAM code, LPARAM second) {
  if (!file_) return;
  AppendNumber(unwritten_, code);
  unwritten_.push_back(' ');
  AppendNumber(unwritten_, second);
  unwritten_.push_back('\n');
}

bool Transcript::Flush() {
  if (unwritten_.empty()) return true;
  DWORD written = 0;
  const BOOL done =
      WriteFile(file_.get(), unwritten_.data(), static_cast<DWORD>(unwritten_.size()), &written, nullptr);
  const bool whole = done && written == unwritten_.size();
  unwritten_.clear();
  return whole;
}

}  // namespace troth::game
