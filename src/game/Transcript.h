// The record of all character messages, one line each: "code second-parameter". Another process reads the
// file while it grows, so only whole lines are written, in order.
#pragma once

#include <windows.h>

#include <string>

#include "game/WinHandles.h"

namespace troth::game {

class Transcript {
 public:
  // False: the file cannot be opened for appending. A transcript that was never opened
  // discards its lines.
  bool Open(const std::wstring& file);

  // Cheap; the line is buffered until Flush.
  void Add(WPARAM code, LPARAM second);
  // False: not everything could be written.
  bool Flush();

 private:
  KernelHandle file_;
  std::string unwritten_;
};

}  // namespace troth::game
