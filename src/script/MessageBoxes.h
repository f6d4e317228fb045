// The message boxes and questions of the program, all under its title. Used by everything that has something
// to say; a box with a title of its own goes to DialogService directly. Each call returns when the user has
// answered; timers, hotkeys and other handlers run inside it.
#pragma once

#include <string>

#include "platform/services/DialogService.h"

namespace troth {

struct Platform;

// A message with an OK button.
void ShowBox(const Platform& platform, BoxIcon icon, std::wstring text);

// A question with Yes and No; anything but Yes is false.
bool Confirms(const Platform& platform, std::wstring question);

// A line of text from the user, trimmed; empty after Cancel.
std::wstring AskLine(const Platform& platform, std::wstring prompt, std::wstring preset = {});

}  // namespace troth
