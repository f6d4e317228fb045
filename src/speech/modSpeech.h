// The slow writer of the book window: types whole texts into an open book of the game at a pace that the game
// keeps up with, and stops when BookStop of the program is set. Handlers of the program run in between.
#pragma once

#include <string_view>

namespace troth {

class Program;

namespace modSpeech {

// Types one row and an Enter. Stopped, it ends where it is, without the Enter. Does nothing without a game.
void WriteBookRow(Program& program, std::wstring_view text);

// Deletes what stands before the cursor: 4000 Backspaces in batches of 20, at least 20 seconds. Stopped, it
// ends after the present batch. Does nothing without a game.
void ClearBook(Program& program);

}  // namespace modSpeech
}  // namespace troth
