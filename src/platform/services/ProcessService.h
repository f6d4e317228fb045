// The process itself: its other instances, a seed that differs from start to start, and its end.
#pragma once

#include <cstdint>

namespace troth {

class ProcessService {
 public:
  virtual ~ProcessService() = default;

  // Whether another instance of this program is running on the user's desktop. The instance that asks first
  // counts as the first until its process ends.
  virtual bool IsSecondInstance() = 0;

  // A seed for random numbers. It differs from start to start and from call to call, however close in time.
  virtual std::uint32_t RandomSeed() = 0;

  // Ends the process at once: no window unloads, nothing is saved. Never returns to its caller; the
  // headless backend throws through to the test.
  [[noreturn]] virtual void EndNow(int exitCode) = 0;
};

}  // namespace troth
