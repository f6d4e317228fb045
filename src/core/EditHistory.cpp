#include "core/EditHistory.h"

#include <utility>

namespace troth {

namespace {

int Around(int number) {
  if (number > EditHistory::kEntries) return 1;
  return number < 1 ? EditHistory::kEntries : number;
}

}  // namespace

void EditHistory::Remember(std::wstring sentence) {
  if (next_ < 1) next_ = 1;
  Entry(next_) = std::move(sentence);
  next_ = Around(next_ + 1);
  Entry(next_).clear();
  pos_ = next_;
}

const std::wstring* EditHistory::Browse(int step) {
  if (IsEmpty()) return nullptr;
  const int number = Around(pos_ + step);
  if (Entry(number).empty()) return nullptr;
  pos_ = number;
  return &Entry(number);
}

}  // namespace troth
