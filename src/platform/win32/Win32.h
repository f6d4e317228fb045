// The one way to include the system's header here, and small helpers that every file of this folder needs.
#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <type_traits>

namespace troth {

// Owns a handle of the system and releases it: Unique<HFONT, DeleteObject>.
template <class Handle, auto Release>
struct HandleReleaser {
  using pointer = Handle;
  void operator()(Handle handle) const { static_cast<void>(Release(handle)); }
};
template <class Handle, auto Release>
using Unique = std::unique_ptr<std::remove_pointer_t<Handle>, HandleReleaser<Handle, Release>>;

using UniqueFont = Unique<HFONT, DeleteObject>;
using UniqueBitmap = Unique<HBITMAP, DeleteObject>;
using UniquePalette = Unique<HPALETTE, DeleteObject>;
using UniqueBrush = Unique<HBRUSH, DeleteObject>;
using UniqueSurface = Unique<HDC, DeleteDC>;
using UniqueKey = Unique<HKEY, RegCloseKey>;
using UniqueMenu = Unique<HMENU, DestroyMenu>;
using UniqueWindow = Unique<HWND, DestroyWindow>;
using UniqueFile = Unique<HANDLE, CloseHandle>;

// An inch has 1440 twips, and as many pixels as the window's DPI.
inline int ToPixels(int twips, UINT dpi) { return MulDiv(twips, static_cast<int>(dpi), 1440); }
inline int ToTwips(int pixels, UINT dpi) { return MulDiv(pixels, 1440, static_cast<int>(dpi)); }

// A function of a library that not every run needs: the system's shell alone loads a dozen further ones. The
// library is loaded from the system folder at the first call and stays.
template <class Function>
Function* LateFunction(const wchar_t* library, const char* name) {
  const HMODULE module = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

// Gives a window its name for tests and accessibility tools in other processes: the property
// "Trothline.Name", whose value is a global atom of the name. Windows lose it with ForgetName.
void GiveName(HWND window, const std::wstring& name);
void ForgetName(HWND window);

}  // namespace troth
