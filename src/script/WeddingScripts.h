// A collection of scripts. An agreed name; the program has a single script and makes none of these.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "script/KeyedCollection.h"
#include "script/WeddingScript.h"

namespace troth {

class WeddingScripts : public KeyedCollection<WeddingScript> {
 public:
  WeddingScript& Add(std::wstring languageString, std::wstring_view key) {
    auto script = std::make_unique<WeddingScript>();
    script->LanguageString(std::move(languageString));
    return Append(std::move(script), key);
  }
};

}  // namespace troth
