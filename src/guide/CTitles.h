// The lines of a credit, in the order in which they are shown.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "guide/CTitle.h"
#include "script/KeyedCollection.h"

namespace troth {

class CTitles : public KeyedCollection<CTitle> {
 public:
  CTitle& Add(std::wstring line, std::wstring_view key = {}) {
    auto title = std::make_unique<CTitle>();
    title->PTitle(std::move(line));
    return Append(std::move(title), key);
  }
};

}  // namespace troth
