// What a person does later, or while something modal is up: served by a timer of the thread, which every
// message loop dispatches, also those of the system's own boxes. No timer runs while nothing is planned, so
// that waits stay undisturbed.
#pragma once

#include <windows.h>

#include <functional>
#include <list>
#include <vector>

#include "tests/platform/conformance/DesktopUnderTest.h"

namespace troth {

class RealSchedule {
 public:
  using Act = DesktopUnderTest::Act;

  RealSchedule();
  ~RealSchedule();
  RealSchedule(const RealSchedule&) = delete;
  RealSchedule& operator=(const RealSchedule&) = delete;

  void Later(int ms, Act act);
  void WhenModal(Form& form, Act act);
  void NextBox(BoxAnswer answer, Act whileUp);
  void NextQuestion(Act answer);
  const std::vector<DesktopUnderTest::Box>& BoxesSeen() const { return boxesSeen_; }

 private:
  struct Planned {
    std::function<bool()> isDue;
    Act act;
    const void* group;  // acts of one group never run inside each other
  };
  void Plan(Planned planned);
  void ServeDue();
  void AnswerBox(BoxAnswer answer, const Act& whileUp);
  static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD);

  std::list<Planned> planned_;
  std::vector<const void*> busy_;
  std::vector<DesktopUnderTest::Box> boxesSeen_;
  UINT_PTR timer_ = 0;
};

}  // namespace troth
