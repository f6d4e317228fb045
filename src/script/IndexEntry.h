// One paragraph of a script, opened by a chapter comment. Made by IndexEntries; decides nothing.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace troth {

class IndexEntry {
 public:
  // Place in the main list of the paragraph's first row, from 0; 0 until the list is filled.
  void ListPointer(std::int32_t value) { listPointer_ = value; }
  std::int32_t ListPointer() const { return listPointer_; }

  // Number of the chapter comment's row, from 1.
  void ScriptPointer(std::int32_t value) { scriptPointer_ = value; }
  std::int32_t ScriptPointer() const { return scriptPointer_; }

  // The title.
  void IText(std::wstring value) { text_ = std::move(value); }
  const std::wstring& IText() const { return text_; }

 private:
  std::int32_t listPointer_ = 0;
  std::int32_t scriptPointer_ = 0;
  std::wstring text_;
};

}  // namespace troth
