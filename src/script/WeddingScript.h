// The script as a whole: the one that is live, refilled at each load. Plain values; the loader, the speech
// driver and the main window read and set them.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "script/WeddingRows.h"

namespace troth {

class WeddingScript {
 public:
  // A row's delay was learned and has not been saved.
  void Dirty(bool value) { dirty_ = value; }
  bool Dirty() const { return dirty_; }

  // Full path of the file, empty when no script is loaded.
  void sFileName(std::wstring value) { fileName_ = std::move(value); }
  const std::wstring& sFileName() const { return fileName_; }

  // The file has more rows than a script can hold, and the user has not been warned yet.
  void IsTruncated(bool value) { isTruncated_ = value; }
  bool IsTruncated() const { return isTruncated_; }

  // Number of the row selected in the main list, from 1; 0 when none is.
  void CurrentRow(std::int32_t value) { currentRow_ = value; }
  std::int32_t CurrentRow() const { return currentRow_; }

  // Null when no script is loaded. Setting destroys the rows that were there.
  void Rows(std::unique_ptr<WeddingRows> value) {
    rows_ = std::move(value);
    ++loads_;
  }
  WeddingRows* Rows() { return rows_.get(); }
  const WeddingRows* Rows() const { return rows_.get(); }
  // How often rows were set: the same number before and after a wait means the same script.
  std::int32_t Loads() const { return loads_; }

  // The file's name up to its first ".TXT", as shown to the user.
  void LanguageString(std::wstring value) { languageString_ = std::move(value); }
  const std::wstring& LanguageString() const { return languageString_; }

 private:
  bool dirty_ = false;
  bool isTruncated_ = false;
  std::wstring fileName_;
  std::int32_t currentRow_ = 0;
  std::int32_t loads_ = 0;
  std::unique_ptr<WeddingRows> rows_;
  std::wstring languageString_;
};

}  // namespace troth
