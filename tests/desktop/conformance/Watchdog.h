// Ends a test run that hangs or crashes, with the name of the test and an exit code that tells: a real modal
// loop that nobody ends would wait for ever, and a crash would open a box of the system.
#pragma once

#include <windows.h>

#include <thread>

namespace troth {

class Watchdog {
 public:
  Watchdog();
  ~Watchdog();
  Watchdog(const Watchdog&) = delete;
  Watchdog& operator=(const Watchdog&) = delete;

 private:
  HANDLE over_;
  std::thread thread_;
};

}  // namespace troth
