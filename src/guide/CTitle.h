// One line of a credit: a name, or what somebody did. Made by CTitles; decides nothing.
#pragma once

#include <string>
#include <utility>

namespace troth {

class CTitle {
 public:
  void PTitle(std::wstring value) { title_ = std::move(value); }
  const std::wstring& PTitle() const { return title_; }

 private:
  std::wstring title_;
};

}  // namespace troth
