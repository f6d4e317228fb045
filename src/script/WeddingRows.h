// The rows of one script, in file order; row n has the key n in decimal digits. Filled by the loader.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "script/KeyedCollection.h"
#include "script/WeddingRow.h"

namespace troth {

// The main list counts its entries in 16 bits.
inline constexpr std::int32_t kMaxRows = 32767;

class WeddingRows : public KeyedCollection<WeddingRow> {
 public:
  WeddingRow& Add(std::wstring text, bool isEnabled, bool isComment, std::wstring_view key) {
    auto row = std::make_unique<WeddingRow>();
    row->WText(std::move(text));
    row->IsEnabled(isEnabled);
    row->IsComment(isComment);
    return Append(std::move(row), key);
  }
};

}  // namespace troth
