#include "speech/GameOutput.h"

#include "platform/Platform.h"
#include "platform/services/TextService.h"
#include "platform/services/TimeService.h"

namespace troth {

WindowHandle FindGameWindow(WindowService& windows) {
  const WindowHandle first = windows.Find(kGameClass);
  return first != WindowHandle::None ? first : windows.Find(kSecondGameClass);
}

bool IsLeadingEnterDue(std::wstring_view text, bool autoterminate) {
  return autoterminate || text.starts_with(L'/');
}

void EnterPause::Wait(TimeService& time) const {
  if (!servesMessages) return time.Sleep(ms);
  const std::uint32_t start = time.TickCount();
  for (;;) {
    const auto passed = static_cast<int>(time.TickCount() - start);
    if (passed >= ms) return;
    time.Pump(ms - passed);
  }
}

void SendLine(const Platform& platform, WindowHandle window, std::wstring_view text, bool autoterminate,
              EnterPause pause) {
  if (window == WindowHandle::None) return;
  platform.windows.Raise(window);
  if (IsLeadingEnterDue(text, autoterminate)) {
    const bool isTaken = platform.windows.PostCharacter(window, kEnterCode);
    pause.Wait(platform.time);
    if (!isTaken) return;
  }
  for (const char byte : platform.text.Encode(text))
    if (!platform.windows.PostCharacter(window, static_cast<unsigned char>(byte))) return;
  platform.windows.PostCharacter(window, kEnterCode);
}

}  // namespace troth
