// How a text gets into the game: find its window, end what stands unsent there, post characters, end with
// Enter. Every sender of the program uses it; they differ only in what they post and how they pause after a
// leading Enter.
#pragma once

#include <string_view>

#include "platform/services/WindowService.h"

namespace troth {

struct Platform;
class TimeService;

inline constexpr wchar_t kGameClass[] = L"Kestrel Moors";
inline constexpr wchar_t kSecondGameClass[] = L"Kestrel Moors Pale Light";
inline constexpr unsigned char kEnterCode = 13;
inline constexpr unsigned char kBackspaceCode = 8;

// The game's window, of the first class or else of the second, or None. Look it up again for each text.
WindowHandle FindGameWindow(WindowService& windows);

// Whether an Enter has to end what stands unsent in the game's chat line first: for every text while
// MOptionsAuto is checked (`autoterminate`), for a party command always.
bool IsLeadingEnterDue(std::wstring_view text, bool autoterminate);

// The pause after a leading Enter, in which the game can process it. While it serves messages, any other
// handler can run inside it; otherwise the whole program is blocked.
struct EnterPause {
  constexpr EnterPause(int pauseMs, bool doesServe = false) : ms(pauseMs), servesMessages(doesServe) {}
  void Wait(TimeService& time) const;

  int ms;
  bool servesMessages;
};

// Raises the window and posts a text and its closing Enter, with an Enter and the pause before it if that is
// due. The characters go out one after the other with no handler in between. Once the window no longer takes
// one, the rest does not follow: it would join what stands there. Does nothing without a window.
void SendLine(const Platform& platform, WindowHandle window, std::wstring_view text, bool autoterminate,
              EnterPause pause);

}  // namespace troth
