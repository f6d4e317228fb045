// The key of an item that is known by its number: plain decimal digits, made and read without memory of its
// own.
#pragma once

#include <cstdint>
#include <limits>
#include <string_view>

namespace troth {

class DecimalKey {
 public:
  // `number` is 1 or more.
  explicit DecimalKey(std::int32_t number) {
    for (; number > 0; number /= 10) digits_[--first_] = static_cast<wchar_t>(L'0' + number % 10);
  }

  operator std::wstring_view() const { return {digits_ + first_, digits_ + kLongest}; }

  // The number that a key is the plain decimal of, or 0: for "7", but neither for "07" nor for "7 ".
  static std::int32_t NumberOf(std::wstring_view key) {
    if (key.empty() || key.size() >= kLongest || key[0] == L'0') return 0;
    std::int32_t number = 0;
    for (const wchar_t digit : key) {
      if (digit < L'0' || digit > L'9') return 0;
      number = number * 10 + (digit - L'0');
    }
    return number;
  }

 private:
  static constexpr int kLongest = std::numeric_limits<std::int32_t>::digits10 + 1;

  int first_ = kLongest;
  wchar_t digits_[kLongest];
};

}  // namespace troth
