#include "shell/Hotkeys.h"

#include <utility>

#include "core/MainWindow.h"
#include "core/Program.h"
#include "platform/services/KeyboardService.h"

namespace troth {

namespace {

// A sentence serves messages during the pause after its leading Enter, so a press in that pause speaks inside
// it, and a press in that one's pause inside that. A limit far above what fingers can do keeps the stack
// bounded where a system repeats the hotkey of a held key.
constexpr int kDeepest = 1000;

}  // namespace

Hotkeys::Hotkeys(Program& program, MainWindow& window, HotkeyActions actions)
    : program_(program), window_(window), actions_(std::move(actions)) {
  window.OnHotkey = [this](int modifiers, int keyCode) { HotkeyWindowProc(modifiers, keyCode); };
}

void Hotkeys::PutInPlace() {
  for (const HotkeyKind& kind : kHotkeyTable)
    (program_.Hotkeys.*kind.record).atom = program_.platform.keyboard.AddGlobalAtom(kind.atomName);
  RegisterHotkeys();
  SetHotkeyHook(true);
  isInPlace_ = true;
}

void Hotkeys::TakeDown() {
  if (!isInPlace_) return;
  isInPlace_ = false;
  SetHotkeyHook(false);
  UnregisterHotkeys();
  for (const HotkeyKind& kind : kHotkeyTable)
    program_.platform.keyboard.DeleteGlobalAtom((program_.Hotkeys.*kind.record).atom);
}

void Hotkeys::RegisterHotkeys() {
  for (const HotkeyKind& kind : kHotkeyTable) {
    HotkeyRecord& record = program_.Hotkeys.*kind.record;
    record.isRegistered =
        record.enabled && window_.RegisterHotkey(record.atom, record.Modifiers(), record.key);
  }
}

void Hotkeys::UnregisterHotkeys() {
  for (const HotkeyKind& kind : kHotkeyTable) {
    HotkeyRecord& record = program_.Hotkeys.*kind.record;
    window_.UnregisterHotkey(record.atom);
    record.isRegistered = false;
  }
}

// Each record is read when its turn comes: an action may let the dialog change them, or unload the window.
void Hotkeys::HotkeyWindowProc(int modifiers, int keyCode) {
  if (depth_ == kDeepest) return;
  ++depth_;
  for (const HotkeyKind& kind : kHotkeyTable) {
    const HotkeyRecord& record = program_.Hotkeys.*kind.record;
    if (isHooked_ && record.enabled && record.key == keyCode && record.Modifiers() == modifiers)
      (actions_.*kind.action)();
  }
  --depth_;
}

}  // namespace troth
