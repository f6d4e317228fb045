// What a control, a timer or a menu item knows of the form that it stands on: where it registers itself, and
// how its events are raised. Form is the host, and Frame forwards to it; this interface keeps the controls
// from including either.
#pragma once

#include <utility>
#include <vector>

namespace troth {

class Control;
class MenuItem;
class Timer;

class ControlHost {
 public:
  // Called by the constructors of those, so they register in order of declaration, which is the tab
  // order and the order of the menu bar.
  virtual void Adopt(Control& control) = 0;
  virtual void Adopt(Timer& timer) = 0;
  virtual void Adopt(MenuItem& topLevelItem) = 0;

  // A menu item changed its caption, check mark, enabled or visible state.
  virtual void MenuChanged(const MenuItem& item) = 0;

  // The controls of the whole form, in order of declaration.
  virtual const std::vector<Control*>& Controls() const = 0;

  // False before the form is loaded and once it has begun to go.
  virtual bool HearsEvents() const = 0;

  // Whether a contrast theme is on, in which colours of a control's own are not shown.
  virtual bool UsesSystemColors() const = 0;

  // Raises an event: calls the slot if there is one and the form still hears. The form outlives the call
  // even if the handler unloads it.
  template <class Slot, class... Args>
  void Raise(const Slot& slot, Args&&... args) {
    if (!slot || !HearsEvents()) return;
    const Hold hold(*this);
    slot(std::forward<Args>(args)...);
  }

  // While a Hold lives, the form is not torn down; the last Hold to go finishes a pending unload.
  class Hold {
   public:
    explicit Hold(ControlHost& host) : host_(host) { host_.AddHold(); }
    ~Hold() { host_.DropHold(); }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

   private:
    ControlHost& host_;
  };

 protected:
  ~ControlHost() = default;

 private:
  friend class Frame;
  virtual void AddHold() = 0;
  virtual void DropHold() = 0;
};

}  // namespace troth
