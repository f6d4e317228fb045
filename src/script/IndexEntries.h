// The paragraphs of the live script, in script order. Filled by the loader, completed when the main list is
// filled; an entry's number is what IndexPointer of a row holds.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "script/IndexEntry.h"
#include "script/KeyedCollection.h"

namespace troth {

class IndexEntries : public KeyedCollection<IndexEntry> {
 public:
  IndexEntry& Add(std::wstring text, std::int32_t scriptPointer, std::int32_t listPointer,
                  std::wstring_view key) {
    auto entry = std::make_unique<IndexEntry>();
    entry->IText(std::move(text));
    entry->ScriptPointer(scriptPointer);
    entry->ListPointer(listPointer);
    return Append(std::move(entry), key);
  }
};

}  // namespace troth
