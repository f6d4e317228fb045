// The clock of the run and the two ways of waiting on it.
#pragma once

#include <cstdint>

namespace troth {

class TimeService {
 public:
  virtual ~TimeService() = default;

  // Milliseconds since an arbitrary start; wraps, so only differences of two readings mean anything.
  virtual std::uint32_t TickCount() const = 0;

  // Blocks the whole program: no handler, timer or hotkey runs meanwhile.
  virtual void Sleep(int ms) = 0;

  // One round of the message pump: serves what is waiting for the program's windows and timers. If nothing
  // is, waits for the first message, but at most `waitMs`. Any other handler can run inside.
  virtual void Pump(int waitMs = 0) = 0;
};

}  // namespace troth
