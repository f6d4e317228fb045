// Takes the forms in the topmost band out of it while a modal form is up that is not in it: they would cover
// it, and are locked and cannot be moved out of the way. Used by Win32Form.
#pragma once

#include <windows.h>

#include <vector>

namespace troth {

class Win32Loop;

bool IsTopMost(HWND window);

// For SetWindowPos: changes the stacking order and nothing else.
inline constexpr UINT kStackingOnly = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;

class StepDown {
 public:
  explicit StepDown(const Win32Loop& loop);
  ~StepDown();
  StepDown(const StepDown&) = delete;
  StepDown& operator=(const StepDown&) = delete;

 private:
  std::vector<HWND> forms_;
};

}  // namespace troth
