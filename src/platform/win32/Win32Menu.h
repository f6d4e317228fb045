// The menu bar of a form. Built from the items that are visible; answers other processes about its items,
// since menus of another process cannot be read.
#pragma once

#include <map>
#include <vector>

#include "platform/forms/MenuItem.h"
#include "platform/win32/Win32.h"

namespace troth {

class Win32Menu {
 public:
  // The menu for a window that is about to be made; null if no item is visible.
  HMENU Build(const std::vector<MenuItem*>& topLevel);
  // The window that was made with it.
  void Attach(HWND window) { window_ = window; }
  void Refresh(const MenuItem& item);
  bool IsShown() const { return menu_ != nullptr; }
  MenuItem* ItemOf(WORD id) const;

  // Shows the children of `menu` as a popup menu of `window` until the user has chosen or closed it; null if
  // nothing was chosen.
  static MenuItem* TrackPopup(HWND window, POINT place, const MenuItem& menu);

  // The registered message "Trothline.MenuItem". `wParam` is a global atom of the item's name; `lParam` 0
  // asks (bit 0 known, bit 1 checked, bit 2 enabled, bit 3 visible), 1 chooses the item by a posted command.
  static UINT QuestionMessage();
  LRESULT Answer(HWND window, WPARAM wParam, LPARAM lParam) const;

 private:
  void Rebuild();
  UniqueMenu Make();
  void Append(HMENU menu, MenuItem& item);
  WORD IdAt(std::vector<MenuItem*>::const_iterator place) const;

  HWND window_ = nullptr;
  std::vector<MenuItem*> topLevel_;
  std::map<const MenuItem*, bool> shown_;  // whether the item stands in the menu as built
  std::vector<MenuItem*> items_;           // those that do, in the order of their ids
  UniqueMenu menu_;
};

}  // namespace troth
