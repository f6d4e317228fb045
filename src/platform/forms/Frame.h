// A box with a caption around a group of controls. Those that are declared with the frame as their host stand
// within it: their places count from its corner, and they are shown only while it is, can be used
// only while it is enabled, and move with it.
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
  bool enabled = true;
  bool hasBorder = true;  // without one, nothing of the frame is seen, not even its caption
};

class Frame final : public Control, public ControlHost {
 public:
  Frame(ControlHost& host, FrameOptions options)
      : Control(host, {.name = std::move(options.name),
                       .toolTip = {},
                       .bounds = options.bounds,
                       .visible = options.visible,
                       .enabled = options.enabled}),
        caption_(std::move(options.caption)),
        hasBorder_(options.hasBorder) {}

  bool HasBorder() const { return hasBorder_; }
  std::wstring_view CaptionText() const override {
    return hasBorder_ ? std::wstring_view(caption_) : std::wstring_view();
  }
  bool IsTabStop() const override { return false; }

  void Adopt(Control& control) override {
    inside_.push_back(&control);
    control.SetContainer(*this);
    Host().Adopt(control);
  }
  void Adopt(Timer& timer) override { Host().Adopt(timer); }
  void Adopt(MenuItem& topLevelItem) override { Host().Adopt(topLevelItem); }
  void MenuChanged(const MenuItem& item) override { Host().MenuChanged(item); }
  bool HearsEvents() const override { return Host().HearsEvents(); }
  bool UsesSystemColors() const override { return Host().UsesSystemColors(); }
  const std::vector<Control*>& Controls() const override { return Host().Controls(); }

 private:
  std::unique_ptr<ControlPeer> CreatePeer(FormPeer& form) override { return form.Create(*this); }
  void AddHold() override { Host().AddHold(); }
  void DropHold() override { Host().DropHold(); }
  void VisibleChanged() override {
    Control::VisibleChanged();
    // Backwards: the keyboard leaves the frame at once, and not control by control.
    for (auto control = inside_.rbegin(); control != inside_.rend(); ++control) (*control)->VisibleChanged();
  }
  void EnabledChanged() override {
    Control::EnabledChanged();
    for (auto control = inside_.rbegin(); control != inside_.rend(); ++control) (*control)->EnabledChanged();
  }
  void BoundsChanged() override {
    Control::BoundsChanged();
    for (Control* control : inside_) control->BoundsChanged();
  }

  std::wstring caption_;
  bool hasBorder_;
  std::vector<Control*> inside_;
};

}  // namespace troth
