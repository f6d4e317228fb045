// A timer of a form. OnTimer comes once an interval while the timer is enabled and its form is loaded, never
// in the middle of another handler unless that handler pumps, waits or shows something modal.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/forms/ControlHost.h"
#include "platform/forms/FormBackend.h"

namespace troth {

struct TimerOptions {
  std::wstring name;
  int intervalMs = 0;
  bool enabled = false;
};

class Timer final {
 public:
  Timer(ControlHost& host, TimerOptions options)
      : host_(host),
        name_(std::move(options.name)),
        intervalMs_(options.intervalMs),
        enabled_(options.enabled) {
    host.Adopt(*this);
  }
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;

  const std::wstring& Name() const { return name_; }

  int IntervalMs() const { return intervalMs_; }
  void SetIntervalMs(int ms) {
    if (ms == intervalMs_) return;
    intervalMs_ = ms;
    if (peer_) peer_->Refresh();
  }

  // Enabling starts a whole new interval; enabling an enabled timer changes nothing.
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    if (peer_) peer_->Refresh();
  }

  std::function<void()> OnTimer;

  // --- Called by the form and the backend only. ---
  void AttachPeer(FormPeer& form) { peer_ = form.Create(*this); }
  void DetachPeer() { peer_.reset(); }
  void IntervalPassed() {
    if (enabled_) host_.Raise(OnTimer);
  }

 private:
  ControlHost& host_;
  std::wstring name_;
  int intervalMs_;
  bool enabled_;
  std::unique_ptr<TimerPeer> peer_;
};

}  // namespace troth
