#include "shell/Hotkeys.h"

#include <utility>

#include "platform/services/KeyboardService.h"
#include "core/MainWindow.h"
#include "core/Program.h"

namespace troth {

namespace {

// In the order of HotkeyRecords::InOrder.
constexpr const wchar_t* kAtomNames[] = {L"TrothlineHotkey", L"TrothlineScreenshot", L"TrothlineEditBox"};

// A sentence lets the next press in while it pauses behind its leading Enter, and that one's sentence the
// next: a key that is held down would dig on until the stack ends. Far more than fingers can press in a
// pause.
constexpr int kDeepest = 1000;

}  // namespace

Hotkeys::Hotkeys(Program& program, MainWindow& window, HotkeyActions actions)
    : program_(program), window_(window), actions_(std::move(actions)) {
  window.OnHotkey = [this](int modifiers, int keyCode) { HotkeyWindowProc(modifiers, keyCode); };
}

void Hotkeys::PutInPlace() {
  const wchar_t* const* name = kAtomNames;
  for (HotkeyRecord* record : program_.Hotkeys.InOrder())
    record->atom = program_.platform.keyboard.AddGlobalAtom(*name++);
  RegisterHotkeys();
  SetHotkeyHook(true);
  isInPlace_ = true;
}

void Hotkeys::TakeDown() {
  if (!isInPlace_) return;
  isInPlace_ = false;
  SetHotkeyHook(false);
  UnregisterHotkeys();
  for (const HotkeyRecord* record : program_.Hotkeys.InOrder())
    program_.platform.keyboard.DeleteGlobalAtom(record->atom);
}

void Hotkeys::RegisterHotkeys() {
  for (HotkeyRecord* record : program_.Hotkeys.InOrder())
    record->isRefused =
        record->enabled && !window_.RegisterHotkey(record->atom, record->Modifiers(), record->key);
}

void Hotkeys::UnregisterHotkeys() {
  for (const HotkeyRecord* record : program_.Hotkeys.InOrder()) window_.UnregisterHotkey(record->atom);
}

// Each record is asked when its turn comes: an action may let the dialog change them, or the window go.
void Hotkeys::HotkeyWindowProc(int modifiers, int keyCode) {
  if (depth_ == kDeepest) return;
  ++depth_;
  const auto isMeant = [&](const HotkeyRecord& record) {
    return isHooked_ && record.enabled && record.key == keyCode && record.Modifiers() == modifiers;
  };
  if (isMeant(program_.Hotkeys.Speech)) SpeakOrStop();
  if (isMeant(program_.Hotkeys.Screenshot) && actions_.takeScreenshot) actions_.takeScreenshot();
  if (isMeant(program_.Hotkeys.EditBox) && actions_.showEditBox) actions_.showEditBox();
  --depth_;
}

void Hotkeys::SpeakOrStop() {
  if (window_.tmrSpeak.Enabled())
    window_.StopAutoSpeech();
  else
    window_.DoSpeechRow(L"");
}

}  // namespace troth
