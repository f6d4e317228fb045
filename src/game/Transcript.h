// The record of all character messages, one line each: "code second-parameter". Another process reads the
// file while it grows, so lines go out in order and whole.
#pragma once

#include <windows.h>

#include <string>

#include "game/WinHandles.h"

namespace troth::game {

class Transcript {
 public:
  // False: the file cannot be opened for appending. A transcript that was never opened takes notes and
  // forgets them.
  bool Open(const std::wstring& file);

  // Cheap; the line waits in memory for Flush.
  void Note(WPARAM code, LPARAM second);
  // False: not everything could be written.
  bool Flush();

 private:
  KernelHandle file_;
  std::string unwritten_;
};

}  // namespace troth::game
