// Windows of other programs, above all game windows that record the characters they receive, in order and
// with the time. A test opens them, makes them slow, full or dead, and reads what they received.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/headless/HeadlessJournal.h"
#include "platform/headless/HeadlessTime.h"
#include "platform/services/WindowService.h"

namespace troth {

struct HeardCharacter {
  unsigned char code;
  std::uint32_t tick;
};

struct HeadlessWindow {
  std::wstring className;
  bool alive = true;
  PixelRect place{100, 100, 740, 580};
  int frame = 4;  // pixels at each side; at the top there is the title bar, too
  int titleBar = 19;
  bool minimised = false;
  Stacking stacking = Stacking::NotTopMost;
  bool refusesRaise = false;   // the system keeps it in the background
  bool hasMoreRights = false;  // refuses what this program posts
  // Another window stands in front of it, unless it is topmost.
  bool isCovered = false;
  // The colour that it shows at a place, counted from its upper left corner.
  std::function<Color(PixelPoint)> paint = [](PixelPoint) { return Color{0x808080}; };
  std::vector<HeardCharacter> heard;

  // A queue holds `capacity` characters, and the window takes `takesPerMs` of them each millisecond;
  // 0 is a window that hangs.
  std::size_t capacity = 10000;
  std::size_t takesPerMs = 1000;
  // The window dies after so many characters, or at that tick.
  std::size_t diesAfter = static_cast<std::size_t>(-1);
  std::optional<std::uint32_t> diesAt;

  // The codes as text; Enter shows as "\r".
  std::string HeardText() const;

  std::size_t outstanding = 0;
  std::uint32_t lastTaken = 0;
};

class HeadlessWindows final : public WindowService {
 public:
  HeadlessWindows(HeadlessTime& time, HeadlessJournal& journal)
      : WindowService(time), time_(time), journal_(journal) {}

  // Opens a window of another program; the reference stays good for the whole run.
  HeadlessWindow& Open(std::wstring className);

  WindowHandle Find(std::wstring_view className) override;
  bool Raise(WindowHandle window) override;
  bool HasKeyboard(WindowHandle window) override {
    return window != WindowHandle::None && window == keyboard_;
  }
  void Restore(WindowHandle window) override;
  bool IsMinimised(WindowHandle window) override;
  void SetStacking(WindowHandle window, Stacking stacking) override;
  std::optional<PixelRect> OuterRect(WindowHandle window) override;
  std::optional<PixelRect> ClientRect(WindowHandle window) override;

  // The window, or null if it has gone.
  HeadlessWindow* Alive(WindowHandle window);

 private:
  PostOutcome TryPost(WindowHandle window, unsigned char code) override;

  HeadlessTime& time_;
  HeadlessJournal& journal_;
  std::deque<HeadlessWindow> windows_;
  WindowHandle keyboard_ = WindowHandle::None;
};

}  // namespace troth
