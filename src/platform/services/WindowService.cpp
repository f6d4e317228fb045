#include "platform/services/WindowService.h"

#include "platform/services/TimeService.h"

namespace troth {

bool WindowService::PostPatiently(WindowHandle window, unsigned char code) {
  const std::uint32_t start = time_.TickCount();
  while (time_.TickCount() - start < static_cast<std::uint32_t>(kPatienceMs)) {
    time_.Sleep(kRetryMs);
    const PostOutcome outcome = TryPost(window, code);
    if (outcome != PostOutcome::QueueFull) return outcome == PostOutcome::Posted;
  }
  return false;
}

}  // namespace troth
