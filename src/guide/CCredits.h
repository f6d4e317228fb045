// All credits, in the order in which they roll. Filled when the credits window opens and gone with it.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "guide/CCredit.h"
#include "script/KeyedCollection.h"

namespace troth {

class CCredits : public KeyedCollection<CCredit> {
 public:
  CCredit& Add(std::wstring heading, CTitles details, std::wstring_view key = {}) {
    auto credit = std::make_unique<CCredit>();
    credit->CreditTitle(std::move(heading));
    credit->CreditDetails(std::move(details));
    return Append(std::move(credit), key);
  }
};

}  // namespace troth
