// One variable of the user or of a running ceremony: a name and what stands in place of its marks. Made by
// CustVars; decides nothing.
#pragma once

#include <string>
#include <utility>

namespace troth {

class CustVar {
 public:
  void VarValue(std::wstring value) { value_ = std::move(value); }
  const std::wstring& VarValue() const { return value_; }

  // In the case in which it was first defined.
  void VarName(std::wstring value) { name_ = std::move(value); }
  const std::wstring& VarName() const { return name_; }

 private:
  std::wstring value_;
  std::wstring name_;
};

}  // namespace troth
