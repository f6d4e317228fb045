// Windows of other programs, above all the game's: find one, raise it, post characters to it.
// Called by the senders of speech; no sender keeps a handle from one text to the next.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/Geometry.h"

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

  // Brings the window to the front and gives it the keyboard. Whether that worked is not told.
  virtual void Raise(WindowHandle window) = 0;

  // The window with its frame, on the screen, in pixels. Nothing if it has gone.
  virtual std::optional<PixelRect> OuterRect(WindowHandle window) = 0;

  // Puts one character message (code 0 to 255, repeat count 1) into the window's queue. While the queue is
  // full it sleeps and tries again, for as long as the window lives, up to kPatienceMs; no handler runs
  // meanwhile, so nothing can get in between two characters. False: the character was not taken, and the
  // rest of its text must not follow.
  bool PostCharacter(WindowHandle window, unsigned char code) {
    const PostOutcome outcome = TryPost(window, code);
    if (outcome == PostOutcome::QueueFull) return PostPatiently(window, code);
    return outcome == PostOutcome::Posted;
  }

  // How long a full queue is waited for, and how often it is tried.
  static constexpr int kPatienceMs = 5000;
  static constexpr int kRetryMs = 10;

 protected:
  enum class PostOutcome { Posted, QueueFull, Refused };

 private:
  virtual PostOutcome TryPost(WindowHandle window, unsigned char code) = 0;
  bool PostPatiently(WindowHandle window, unsigned char code);

  TimeService& time_;
};

}  // namespace troth
