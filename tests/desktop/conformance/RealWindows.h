// Finds the real windows behind forms and controls by their names, and reads what they show.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "tests/platform/conformance/DesktopUnderTest.h"

namespace troth {

// Throws with the name if there is no such window. A form's is searched among the windows of this thread.
HWND WindowOf(const Form& form);
HWND WindowOf(const Control& control);
// Null if the form is not loaded.
HWND FindWindowOf(const Form& form);

std::wstring TextOf(HWND window);
// From the topmost to the lowest, of all programs.
std::vector<HWND> StackingOrder();
// The message box that is up on this thread, or null.
HWND FindMessageBox();
// The window that asks for a text on this thread, or null.
HWND FindQuestion();
std::wstring ToolTipOf(HWND control);

// Where an item stands in the real menus.
struct MenuPlace {
  HWND form = nullptr;
  HMENU menu = nullptr;
  UINT position = 0;
  bool reachable = true;  // neither it nor a menu above it is grey
};
// No menu in it if the item is not shown.
MenuPlace PlaceOf(const MenuItem& item);
MENUITEMINFOW InfoAt(HMENU menu, UINT position, std::wstring& text);

}  // namespace troth
