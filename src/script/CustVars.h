// The variables of one kind, in the order of their definition: those that the user keeps, or those that a
// ceremony sets as it goes. Filled by loaders, directives and dialogs, read when sentences are built.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "script/CustVar.h"
#include "script/KeyedCollection.h"
#include "script/Text.h"

namespace troth {

// Scripts ask for variables that nobody has defined, so here, other than in the collections of the program's
// own things, a missing item is none and no error: the base and its throwing `Item` stay hidden.
class CustVars : KeyedCollection<CustVar> {
 public:
  // A key that is taken throws std::invalid_argument. Writers give the name as the key.
  CustVar& Add(std::wstring_view name, std::wstring_view value, std::wstring_view key) {
    auto variable = std::make_unique<CustVar>();
    variable->VarName(std::wstring(name));
    variable->VarValue(std::wstring(value));
    return Append(std::move(variable), key);
  }

  // By number from 1 or by key, in a time that does not grow with the number of variables. Null if there is
  // none.
  CustVar* Item(const auto& which) { return Find(which); }
  const CustVar* Item(const auto& which) const { return Find(which); }

  using KeyedCollection::begin;
  using KeyedCollection::Count;
  using KeyedCollection::end;
  using KeyedCollection::NewEnum;
  using KeyedCollection::Remove;

  // The number of the first variable of that name without regard to case, or 0. A directive can define an
  // empty name, which no key leads to: hence the walk.
  std::int32_t NumberOf(std::wstring_view name) const {
    std::int32_t number = 0;
    for (const CustVar& variable : *this) {
      ++number;
      if (EqualsNoCase(variable.VarName(), name)) return number;
    }
    return 0;
  }
};

}  // namespace troth
