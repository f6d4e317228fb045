#include "platform/services/WindowService.h"

#include "platform/services/TimeService.h"

namespace troth {

void WindowService::PostPatiently(WindowHandle window, unsigned char code) {
  const std::uint32_t start = time_.TickCount();
  while (lastOutcome_ == PostOutcome::QueueFull &&
         time_.TickCount() - start < static_cast<std::uint32_t>(kPatienceMs)) {
    time_.Sleep(kRetryMs);
    lastOutcome_ = TryPost(window, code);
  }
}

}  // namespace troth
