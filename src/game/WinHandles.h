// Owners of the few system handles that the game holds. They close what they own and do nothing else.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace troth::game {

struct CloseKernelHandle {
  using pointer = HANDLE;
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};

struct DeleteGdiObject {
  template <typename Handle>
  void operator()(Handle handle) const {
    DeleteObject(handle);
  }
};

struct DeleteDeviceContext {
  void operator()(HDC device) const { DeleteDC(device); }
};

using KernelHandle = std::unique_ptr<void, CloseKernelHandle>;
using FontHandle = std::unique_ptr<std::remove_pointer_t<HFONT>, DeleteGdiObject>;
using BitmapHandle = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeleteGdiObject>;
using DeviceContext = std::unique_ptr<std::remove_pointer_t<HDC>, DeleteDeviceContext>;

}  // namespace troth::game
