#include "core/Version.h"

#include "core/Settings.h"
#include "core/VersionRecord.h"
#include "platform/Platform.h"
#include "script/MessageBoxes.h"
#include "script/NumberReader.h"

namespace troth {

namespace {

// Cuts the text at its first "."; nothing if a side would be empty.
std::optional<std::wstring_view> TakePiece(std::wstring_view& text) {
  const auto dot = text.find(L'.');
  if (dot == std::wstring_view::npos || dot == 0 || dot + 1 == text.size()) return std::nullopt;
  const std::wstring_view piece = text.substr(0, dot);
  text.remove_prefix(dot + 1);
  return piece;
}

}  // namespace

std::wstring Version::Text() const {
  return std::to_wstring(major) + L'.' + std::to_wstring(minor) + L'.' + std::to_wstring(revision);
}

Version RunningVersion() { return {TROTH_MAJOR, TROTH_MINOR, TROTH_REVISION}; }

std::wstring VersionComments() {
  constexpr std::string_view comments = TROTH_COMMENTS;
  return {comments.begin(), comments.end()};
}

std::optional<Version> ReadVersion(std::wstring_view text) {
  const auto major = TakePiece(text);
  const auto minor = major ? TakePiece(text) : std::nullopt;
  if (!minor) return std::nullopt;
  return Version{ReadNumber(*major), ReadNumber(*minor), ReadNumber(text)};
}

void RecordVersion(const Platform& platform) {
  const std::wstring text = ReadText(platform, settings::LastUsedVersion);
  if (const auto stored = ReadVersion(text)) {
    if (stored->Text() != text) {
      ShowBox(platform, BoxIcon::Stop, L"Version Error");
      return;
    }
    if (RunningVersion() <= *stored) return;
  }
  WriteText(platform, settings::LastUsedVersion, RunningVersion().Text());
}

}  // namespace troth
