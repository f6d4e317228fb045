#include "speech/GameOutput.h"

#include "platform/Platform.h"
#include "platform/services/TextService.h"

namespace troth {

WindowHandle FindGameWindow(WindowService& windows) {
  const WindowHandle first = windows.Find(kGameClass);
  return first != WindowHandle::None ? first : windows.Find(kSecondGameClass);
}

bool IsLeadingEnterDue(std::wstring_view text, bool autoterminate) {
  return autoterminate || text.starts_with(L'/');
}

bool PostEnter(const Platform& platform, WindowHandle window) {
  return platform.windows.PostCharacter(window, kEnterCode);
}

void PostLine(const Platform& platform, WindowHandle window, std::wstring_view text) {
  for (const char byte : platform.text.Encode(text))
    if (!platform.windows.PostCharacter(window, static_cast<unsigned char>(byte))) return;
  PostEnter(platform, window);
}

}  // namespace troth
