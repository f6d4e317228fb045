// The one road of a text into the game: find its window, post characters, end with Enter. Every sender of
// the program takes it; they differ only in what they post and how long they pause behind a leading Enter.
#pragma once

#include <string_view>

#include "platform/services/WindowService.h"

namespace troth {

struct Platform;

inline constexpr wchar_t kGameClass[] = L"Kestrel Moors";
inline constexpr wchar_t kSecondGameClass[] = L"Kestrel Moors Pale Light";
inline constexpr unsigned char kEnterCode = 13;
inline constexpr unsigned char kBackspaceCode = 8;

// The game's window, of the first class or else of the second, or None. Look it up anew for each text.
WindowHandle FindGameWindow(WindowService& windows);

// Whether an Enter has to end what stands unsent in the game's chat line first: for every text while
// MOptionsAuto is checked (`autoterminate`), for a party command always.
bool IsLeadingEnterDue(std::wstring_view text, bool autoterminate);

// Posts the Enter that ends what stands unsent. The sender pauses behind it, so that the game can work it
// off. False if the window does not take it; the text must not follow then, as it would join what stands
// there.
bool PostEnter(const Platform& platform, WindowHandle window);

// Posts a text and its closing Enter to a window that has been raised. The characters go out one after the
// other with no handler in between; once the window no longer takes one, the rest does not follow.
void PostLine(const Platform& platform, WindowHandle window, std::wstring_view text);

}  // namespace troth
