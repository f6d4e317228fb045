// The game's window: receives characters and keys, passes them to chat, book and transcript, and paints when
// no message waits. main creates one and runs it.
#pragma once

#include <windows.h>

#include <chrono>
#include <cstdint>

#include "game/BookPage.h"
#include "game/ChatLog.h"
#include "game/GameOptions.h"
#include "game/GameView.h"
#include "game/Transcript.h"
#include "game/WinHandles.h"

namespace troth::game {

class GameWindow {
 public:
  GameWindow(GameOptions options, Transcript transcript);
  GameWindow(const GameWindow&) = delete;
  GameWindow& operator=(const GameWindow&) = delete;

  bool Open(int showCommand);
  // Processes messages until the window is closed; returns the exit code.
  int Run();

 private:
  using Clock = std::chrono::steady_clock;

  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleInput(UINT message, WPARAM wParam, LPARAM lParam);

  void TakeUsualSize();
  void TakeCharacter(WPARAM code, LPARAM second);
  void TakeKey(WPARAM key);
  void MoveCursor(WPARAM key);
  void ScrollPage(int pages);
  void TakeWheel(int delta, POINT screen);
  bool IsRibbonAt(POINT client) const;
  void ToggleBook();
  void Stall();

  void Replace();  // after a change of size, DPI or book
  void MarkStale();
  void Paint();
  void StartCaret();
  void StopCaret();
  void ShowCaret(bool on);

  // Called between two messages of a stream that leaves no idle time.
  void CatchUp();
  // Called with an empty queue; returns the time in ms until the next work is due.
  DWORD Settle();
  void FlushTranscript();
  void ShowNow();

  GameOptions options_;
  Transcript transcript_;
  KernelHandle resume_;
  ChatLog chat_{"Officiant"};
  BookPage book_;
  GameView view_;
  HWND window_ = nullptr;
  bool bookOpen_ = false;
  std::uint64_t received_ = 0;
  int exitCode_ = 0;
  int wheelRest_ = 0;

  bool frameStale_ = true;  // the picture does not show the state
  bool showWanted_ = true;  // and no paint request has been sent
  bool caretOn_ = false;
  int systemLoops_ = 0;  // moving, sizing, menu: messages are not dispatched by Run
  Clock::time_point wantedSince_{};
  Clock::time_point lastShown_{};
  Clock::time_point lastFlushed_{};
};

}  // namespace troth::game
