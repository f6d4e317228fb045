#include "platform/win32/Win32.h"

namespace troth {

namespace {
constexpr wchar_t kNameProperty[] = L"Trothline.Name";
}

void GiveName(HWND window, const std::wstring& name) {
  if (name.empty()) return;
  const ATOM atom = GlobalAddAtomW(name.c_str());
  SetPropW(window, kNameProperty, reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(atom)));
}

void ForgetName(HWND window) {
  const HANDLE value = RemovePropW(window, kNameProperty);
  if (value) GlobalDeleteAtom(static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(value)));
}

}  // namespace troth
