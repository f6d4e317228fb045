// The end of the process itself.
#pragma once

namespace troth {

class ProcessService {
 public:
  virtual ~ProcessService() = default;

  // Ends the process at once: no window unloads, nothing is saved. Never returns to its caller; on the
  // headless desktop it throws through to the test.
  [[noreturn]] virtual void EndNow(int exitCode) = 0;
};

}  // namespace troth
