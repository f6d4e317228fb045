// Presses keys for whatever window has the keyboard.
#pragma once

#include "platform/services/KeyboardService.h"

namespace troth {

class Win32Keyboard final : public KeyboardService {
 public:
  void TypeKeys(std::wstring_view notation) override;
  std::uint16_t AddGlobalAtom(const std::wstring& name) override;
  void DeleteGlobalAtom(std::uint16_t atom) override;
};

}  // namespace troth
