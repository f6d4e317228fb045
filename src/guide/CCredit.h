// One credit: a heading and the lines that are shown one by one below it. Made by CCredits; decides nothing.
#pragma once

#include <string>
#include <utility>

#include "guide/CTitles.h"

namespace troth {

class CCredit {
 public:
  void CreditTitle(std::wstring value) { title_ = std::move(value); }
  const std::wstring& CreditTitle() const { return title_; }

  void CreditDetails(CTitles value) { details_ = std::move(value); }
  CTitles& CreditDetails() { return details_; }
  const CTitles& CreditDetails() const { return details_; }

 private:
  std::wstring title_;
  CTitles details_;
};

}  // namespace troth
