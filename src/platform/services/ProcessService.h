// The end of the process itself.
#pragma once

namespace troth {

class ProcessService {
 public:
  virtual ~ProcessService() = default;

  // Whether another instance of this program is running on the user's desktop. The first one to ask holds the
  // place until its process ends.
  virtual bool IsSecondInstance() = 0;

  // Ends the process at once: no window unloads, nothing is saved. Never returns to its caller; on the
  // headless desktop it throws through to the test.
  [[noreturn]] virtual void EndNow(int exitCode) = 0;
};

}  // namespace troth
