#include "script/NumberReader.h"

#include <algorithm>
#include <limits>

namespace troth {
namespace {

// Cuts the leading digits off the text and returns them.
std::wstring_view TakeDigits(std::wstring_view& text) {
  const auto count = std::min(text.find_first_not_of(L"0123456789"), text.size());
  const auto digits = text.substr(0, count);
  text.remove_prefix(count);
  return digits;
}

// A value past 32 bits stays past them, however many digits follow.
std::int64_t WholePart(std::wstring_view digits) {
  constexpr std::int64_t kEnough = std::int64_t{1} << 32;
  std::int64_t value = 0;
  for (const wchar_t digit : digits) value = std::min(value * 10 + (digit - L'0'), kEnough);
  return value;
}

// Works on the digits, since a half is an exact half only in decimal.
bool RoundsUp(std::int64_t whole, std::wstring_view fraction) {
  if (fraction.empty() || fraction[0] < L'5') return false;
  const bool isExactHalf =
      fraction[0] == L'5' && fraction.find_first_not_of(L'0', 1) == std::wstring_view::npos;
  return !isExactHalf || whole % 2 != 0;
}

// Cuts blanks and sign off the text.
bool TakeSign(std::wstring_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(L' '), text.size()));
  const bool isNegative = text.starts_with(L'-');
  if (isNegative || text.starts_with(L'+')) text.remove_prefix(1);
  return isNegative;
}

}  // namespace

std::int32_t ReadNumber(std::wstring_view text, Fraction fraction) {
  const bool isNegative = TakeSign(text);
  std::int64_t value = WholePart(TakeDigits(text));
  if (fraction == Fraction::Rounded && text.starts_with(L'.')) {
    text.remove_prefix(1);
    if (RoundsUp(value, TakeDigits(text))) ++value;
  }
  using Limits = std::numeric_limits<std::int32_t>;
  return static_cast<std::int32_t>(
      std::clamp<std::int64_t>(isNegative ? -value : value, Limits::min(), Limits::max()));
}

double ReadReal(std::wstring_view text) {
  const bool isNegative = TakeSign(text);
  double value = 0;
  for (const wchar_t digit : TakeDigits(text)) value = value * 10 + (digit - L'0');
  if (text.starts_with(L'.')) {
    text.remove_prefix(1);
    double place = 1;
    for (const wchar_t digit : TakeDigits(text)) value += (digit - L'0') * (place /= 10);
  }
  return isNegative ? -value : value;
}

}  // namespace troth
