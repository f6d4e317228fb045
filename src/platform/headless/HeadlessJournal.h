// What the program did to the outside world, in order: one line of text for each action, for tests to
// compare. "raise CLASS", "restore CLASS", "topmost CLASS", "not topmost CLASS", "post CODE", "keys
// NOTATION", "sleep MS", "box ICON TITLE: TEXT", "ask TITLE: PROMPT [PRESET]", "beep", "end CODE".
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace troth {

// A test asked for something that no user or program could do, or left a modal window open. The message
// names the window or control.
class HeadlessFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class HeadlessJournal {
 public:
  void Add(std::string line) { lines_.push_back(std::move(line)); }
  const std::vector<std::string>& Lines() const { return lines_; }
  void Clear() { lines_.clear(); }

  // Wide text as readable ASCII; other characters as \xHEX.
  static std::string Readable(std::wstring_view text);

 private:
  std::vector<std::string> lines_;
};

}  // namespace troth
