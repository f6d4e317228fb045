// Windows of other programs, above all the game's: find one, raise it, post characters to it.
// Called by the senders of speech; no sender keeps a handle from one text to the next.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/Geometry.h"
#include "platform/Stacking.h"

namespace troth {

class TimeService;

enum class WindowHandle : std::uintptr_t { None = 0 };

class WindowService {
 public:
  explicit WindowService(TimeService& time) : time_(time) {}
  virtual ~WindowService() = default;
  WindowService(const WindowService&) = delete;
  WindowService& operator=(const WindowService&) = delete;

  // A top-level window of that class, whatever its title, or None.
  virtual WindowHandle Find(std::wstring_view className) = 0;

  // Brings the window to the front and gives it the keyboard. False if the window is gone or the system
  // refuses; callers that go on in any case ignore it.
  virtual bool Raise(WindowHandle window) = 0;

  // Whether key presses go to this window now. A raised window can need a moment until they do.
  virtual bool HasKeyboard(WindowHandle window) = 0;

  // Brings a minimised or maximised window back to its normal place and size, and to the front.
  virtual void Restore(WindowHandle window) = 0;
  virtual bool IsMinimised(WindowHandle window) = 0;

  // Changes the stacking order only: the window neither moves nor becomes active.
  virtual void SetStacking(WindowHandle window, Stacking stacking) = 0;

  // The window with its frame and its area without it, on the screen, in pixels. Nothing if the window is
  // gone.
  virtual std::optional<PixelRect> OuterRect(WindowHandle window) = 0;
  virtual std::optional<PixelRect> ClientRect(WindowHandle window) = 0;

  // Puts one character message (code 0 to 255, repeat count 1) into the window's queue. While the queue is
  // full it sleeps and tries again, for as long as the window lives, up to kPatienceMs; no handler runs
  // meanwhile, so nothing can come between two characters. False: the character was not taken, and the
  // rest of its text must not follow.
  bool PostCharacter(WindowHandle window, unsigned char code) {
    lastOutcome_ = TryPost(window, code);
    if (lastOutcome_ == PostOutcome::QueueFull) PostPatiently(window, code);
    return lastOutcome_ == PostOutcome::Posted;
  }

  // The last character was refused because the window's program has rights that this one has not, as when it
  // was started as administrator.
  bool LacksRights() const { return lastOutcome_ == PostOutcome::LacksRights; }

  // How long a full queue is waited for, and how often it is tried.
  static constexpr int kPatienceMs = 5000;
  static constexpr int kRetryMs = 10;

 protected:
  enum class PostOutcome { Posted, QueueFull, LacksRights, Refused };

 private:
  virtual PostOutcome TryPost(WindowHandle window, unsigned char code) = 0;
  void PostPatiently(WindowHandle window, unsigned char code);

  TimeService& time_;
  PostOutcome lastOutcome_ = PostOutcome::Posted;
};

}  // namespace troth
