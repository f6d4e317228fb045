// One row of a script: a sentence, a command or a comment. Made by WeddingRows; decides nothing.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace troth {

class WeddingRow {
 public:
  // Number of the index entry under which the row falls, 0 before the first chapter comment, -1 until set.
  void IndexPointer(std::int32_t value) { indexPointer_ = value; }
  std::int32_t IndexPointer() const { return indexPointer_; }

  // Wait before this row in unattended speech, in ms, 0 to 30000.
  void Delay(std::int32_t valueMs) { delayMs_ = valueMs; }
  std::int32_t Delay() const { return delayMs_; }

  // The text as the file has it, without delay prefix.
  void OriginalText(std::wstring_view value);
  const std::wstring& OriginalText() const { return originalText_; }

  void IsComment(bool value) { isComment_ = value; }
  bool IsComment() const { return isComment_; }

  // True from the start; whether a row is spoken is held by its tick in the list.
  void IsEnabled(bool value) { isEnabled_ = value; }
  bool IsEnabled() const { return isEnabled_; }

  // The text after the marks of the user variables have been replaced.
  void WText(std::wstring value);
  const std::wstring& WText() const { return wText_ ? *wText_ : originalText_; }

 private:
  std::int32_t indexPointer_ = -1;
  std::int32_t delayMs_ = 0;
  bool isComment_ = false;
  bool isEnabled_ = true;
  std::wstring originalText_;

  // Held only where it differs from the original: most rows have no marks, and a script may have 32767 rows.
  std::optional<std::wstring> wText_;
};

inline void WeddingRow::OriginalText(std::wstring_view value) {
  if (WText() != value) {
    std::wstring original(value);
    if (!wText_) wText_ = std::move(originalText_);
    originalText_ = std::move(original);
  } else if (wText_) {
    originalText_ = *std::exchange(wText_, std::nullopt);
  }
}

inline void WeddingRow::WText(std::wstring value) {
  if (value == originalText_) {
    wText_.reset();
  } else {
    wText_ = std::move(value);
  }
}

}  // namespace troth
