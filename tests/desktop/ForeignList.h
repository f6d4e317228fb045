// Reads the system's list in another process: its messages carry pointers, which must lead into the memory
// of the process that owns the list.
#pragma once

#include <windows.h>

#include <string>

#include "tests/desktop/Driver.h"

namespace troth::desktop {

class ForeignList {
 public:
  ForeignList(const Process& owner, HWND list) : owner_(owner.Handle()), list_(list) {}

  int Count() const;
  // The selected row, 0-based, or -1.
  int Index() const;
  // What the list shows of the row: the system cuts longer texts.
  std::wstring Text(int row) const;
  bool Ticked(int row) const;
  void SetTicked(int row, bool ticked) const;
  // All rows, each with a ";" after it and the selected one with a "*" before it.
  std::wstring Rows() const;

  // Points of the screen; the row is scrolled into view. TickOf throws where the row has no tick box.
  POINT TickOf(int row) const;
  POINT LabelOf(int row) const;

 private:
  RECT Bounds(int row) const;

  HANDLE owner_;
  HWND list_;
};

}  // namespace troth::desktop
