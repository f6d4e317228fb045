// A box with a caption around a group of controls. Those that are declared with the frame as their host stand
// within it: their places count from its corner, and they are shown only while it is. A frame keeps its
// place.
#pragma once

#include <vector>

#include "platform/forms/Control.h"
#include "platform/forms/ControlHost.h"

namespace troth {

struct FrameOptions {
  std::wstring name;
  std::wstring caption;
  Rect bounds;
  bool visible = true;
};

class Frame final : public Control, public ControlHost {
 public:
  Frame(ControlHost& host, FrameOptions options)
      : Control(host, {.name = std::move(options.name),
                       .toolTip = {},
                       .bounds = options.bounds,
                       .visible = options.visible}),
        caption_(std::move(options.caption)) {}

  std::wstring_view CaptionText() const override { return caption_; }
  bool IsTabStop() const override { return false; }

  void Adopt(Control& control) override {
    inside_.push_back(&control);
    control.StandIn(*this);
    Host().Adopt(control);
  }
  void Adopt(Timer& timer) override { Host().Adopt(timer); }
  void Adopt(MenuItem& topLevelItem) override { Host().Adopt(topLevelItem); }
  void MenuChanged(const MenuItem& item) override { Host().MenuChanged(item); }
  bool HearsEvents() const override { return Host().HearsEvents(); }

 private:
  std::unique_ptr<ControlPeer> CreatePeer(FormPeer& form) override { return form.Create(*this); }
  void AddHold() override { Host().AddHold(); }
  void DropHold() override { Host().DropHold(); }
  void VisibleChanged() override {
    Control::VisibleChanged();
    // Backwards: the keyboard leaves the frame at once, and not control by control.
    for (auto control = inside_.rbegin(); control != inside_.rend(); ++control) (*control)->VisibleChanged();
  }

  std::wstring caption_;
  std::vector<Control*> inside_;
};

}  // namespace troth
