#include "tests/desktop/conformance/RealSchedule.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <exception>

#include "platform/forms/Form.h"
#include "tests/desktop/conformance/RealWindows.h"

namespace troth {

namespace {

constexpr int kMessageBoxText = 0xFFFF;

// One instance at a time: a timer procedure has no data of its own.
RealSchedule* current = nullptr;

int ButtonOf(BoxAnswer answer) {
  switch (answer) {
    case BoxAnswer::Ok:
      return IDOK;
    case BoxAnswer::Yes:
      return IDYES;
    case BoxAnswer::No:
      return IDNO;
    case BoxAnswer::Cancel:
      break;
  }
  return IDCANCEL;
}

}  // namespace

RealSchedule::RealSchedule() { current = this; }

RealSchedule::~RealSchedule() {
  if (timer_) KillTimer(nullptr, timer_);
  current = nullptr;
}

void RealSchedule::Later(int ms, Act act) {
  const ULONGLONG due = GetTickCount64() + static_cast<ULONGLONG>(ms);
  Plan({[due] { return GetTickCount64() >= due; }, std::move(act), nullptr});
}

void RealSchedule::WhenModal(Form& form, Act act) {
  const auto isUp = [&form] {
    const HWND window = form.Visible() ? FindWindowOf(form) : nullptr;
    return window && IsWindowVisible(window) && GetActiveWindow() == window;
  };
  const auto guarded = [&form, act] {
    try {
      act();
    } catch (const std::exception& failure) {
      ADD_FAILURE() << failure.what();
      form.Hide();  // or the test would hang in its loop
    }
  };
  Plan({isUp, guarded, &form});
}

void RealSchedule::NextBox(BoxAnswer answer, Act whileUp) {
  Plan({[] { return FindMessageBox() != nullptr; }, [this, answer, whileUp] { AnswerBox(answer, whileUp); },
        &boxesSeen_});
}

void RealSchedule::NextQuestion(Act answer) {
  const auto isUp = [] {
    const HWND window = FindQuestion();
    return window && GetActiveWindow() == window;
  };
  Plan({isUp, std::move(answer), &boxesSeen_});
}

void RealSchedule::Plan(Planned planned) {
  planned_.push_back(std::move(planned));
  if (!timer_) timer_ = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, &RealSchedule::Tick);
}

void CALLBACK RealSchedule::Tick(HWND, UINT, UINT_PTR, DWORD) {
  if (!current) return;
  try {
    current->ServeDue();
  } catch (const std::exception& failure) {
    ADD_FAILURE() << failure.what();
  }
}

void RealSchedule::ServeDue() {
  const auto next = std::find_if(planned_.begin(), planned_.end(), [this](const Planned& planned) {
    const bool waits = planned.group && std::find(busy_.begin(), busy_.end(), planned.group) != busy_.end();
    return !waits && planned.isDue();
  });
  if (next == planned_.end()) return;
  const Planned due = std::move(*next);
  planned_.erase(next);
  if (planned_.empty() && timer_) {
    KillTimer(nullptr, timer_);
    timer_ = 0;
  }
  busy_.push_back(due.group);
  due.act();
  busy_.erase(std::find(busy_.begin(), busy_.end(), due.group));
}

void RealSchedule::AnswerBox(BoxAnswer answer, const Act& whileUp) {
  const HWND box = FindMessageBox();
  boxesSeen_.push_back({TextOf(box), TextOf(GetDlgItem(box, kMessageBoxText))});
  if (whileUp) whileUp();
  HWND button = GetDlgItem(box, ButtonOf(answer));
  if (!button) button = GetDlgItem(box, IDCANCEL);  // the number of a lone OK
  SendMessageW(button, BM_CLICK, 0, 0);
}

}  // namespace troth
