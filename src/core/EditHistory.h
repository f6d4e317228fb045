// What was said from the edit window: a ring of sentences that outlives the window, and the place in it at
// which the officiant browses. The entry that the next sentence goes to is always empty, so that browsing
// stops there instead of running around the ring.
#pragma once

#include <array>
#include <string>

namespace troth {

class EditHistory {
 public:
  static constexpr int kEntries = 30;

  // Numbers from 1 on, -1 until the first sentence: the entry that the next sentence goes to, and the one
  // that browsing stands on.
  int HistoryNext() const { return next_; }
  int HistoryPos() const { return pos_; }

  bool IsEmpty() const { return next_ < 0; }

  void StopBrowsing() { pos_ = next_; }

  void Remember(std::wstring sentence);

  // One entry forward (1) or back (-1). Null where there is no sentence: browsing stays where it is.
  const std::wstring* Browse(int step);

 private:
  std::wstring& Entry(int number) { return entries_[static_cast<std::size_t>(number - 1)]; }

  std::array<std::wstring, kEntries> entries_;
  int next_ = -1;
  int pos_ = -1;
};

}  // namespace troth
