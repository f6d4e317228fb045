// What all controls have in common: name, place, visible and enabled state, colours, focus.
// Made as members of a form; never moved, never shared. Setting a property shows it at once while the form is
// loaded, and raises no event unless the control's own header says so.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/Geometry.h"
#include "platform/forms/FormBackend.h"
#include "platform/forms/Mouse.h"

namespace troth {

class ControlHost;

// Bits of KeyPress::shift.
inline constexpr int kShiftDown = 1;
inline constexpr int kControlDown = 2;
inline constexpr int kAltDown = 4;

// One press of a key in a control. A handler sets `handled` to keep the control from acting on it.
struct KeyPress {
  int keyCode = 0;  // virtual key code: 13 Enter, 35 End, 36 Home, 38 Up, 40 Down
  int shift = 0;    // sum of the bits above
  bool handled = false;
};

// A font of a control's own, where the form's font does not do.
struct ControlFont {
  std::wstring face;
  double points = 0;
  bool bold = false;
};

class Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  const std::wstring& Name() const { return name_; }
  const std::wstring& ToolTip() const { return toolTip_; }
  void SetToolTip(std::wstring text);

  // Within the frame that the control stands in, if any, otherwise within the form.
  const Rect& Bounds() const { return bounds_; }
  void SetBounds(const Rect& bounds);
  Rect BoundsOnForm() const;

  // Its own wish. IsShown also asks the frame around it.
  bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  bool IsShown() const { return visible_ && (!container_ || container_->IsShown()); }

  // Its own wish. IsUsable also asks the frame around it: a disabled frame disables what stands in it.
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  bool IsUsable() const { return enabled_ && (!container_ || container_->IsUsable()); }

  // Nothing means the system's colour.
  std::optional<Color> BackColor() const { return backColor_; }
  void SetBackColor(std::optional<Color> color);
  std::optional<Color> ForeColor() const { return foreColor_; }
  void SetForeColor(std::optional<Color> color);
  // The colours as they are shown: a contrast theme puts the system's in place of the control's own.
  std::optional<Color> ShownBackColor() const;
  std::optional<Color> ShownForeColor() const;

  // Nothing means the form's font.
  const std::optional<ControlFont>& Font() const { return font_; }

  void SetFocus();

  // What a screen reader calls the control: a name of its own, its caption, the label right before it, or its
  // tool tip.
  std::wstring AccessibleName() const;
  // The label before the control that says what it is for, as one sees it as well; null if there is none.
  const Control* NamingLabel() const;
  // Whether the control is a label that says what the control after it is for.
  virtual bool NamesNextControl() const { return false; }

  // Text whose "&" marks the mnemonic; empty for controls without a caption.
  virtual std::wstring_view CaptionText() const { return {}; }
  // Whether the caption takes as many lines as fit; otherwise it stands on one line.
  virtual bool WrapsCaption() const { return false; }

  // Whether Tab stops here. A label does not stop, but passes its mnemonic on to the next control that does.
  virtual bool IsTabStop() const { return true; }
  bool CanTakeFocus() const { return IsTabStop() && IsShown() && IsUsable(); }

  std::function<void()> OnGotFocus;
  std::function<void()> OnLostFocus;
  std::function<void(KeyPress&)> OnKeyDown;
  // Any button, before the control itself reacts to it: a click follows the Up.
  std::function<void(const MouseEvent&)> OnMouseDown;
  std::function<void(const MouseEvent&)> OnMouseMove;
  std::function<void(const MouseEvent&)> OnMouseUp;

  // --- Called by the form and the backend only. ---
  void SetContainer(const Control& frame) { container_ = &frame; }
  const Control* Container() const { return container_; }
  void AttachPeer(FormPeer& form) { peer_ = CreatePeer(form); }
  void DetachPeer() { peer_.reset(); }
  ControlPeer* Peer() const { return peer_.get(); }
  void UserEntered();
  void UserLeft();
  void UserPressedKey(KeyPress& press);
  void UserMouse(MouseAction action, const MouseEvent& event);
  // Enter was pressed while the control has the keyboard; true if it is the control's own business and not
  // that of the default button.
  virtual bool UserPressedEnter() { return false; }
  // The control's mnemonic was pressed: what a press does beyond taking the focus.
  virtual void UserPressedMnemonic() {}

 protected:
  struct Common {
    std::wstring name;
    std::wstring toolTip;
    Rect bounds;
    bool visible = true;
    bool enabled = true;
    std::optional<Color> backColor = std::nullopt;
    std::optional<Color> foreColor = std::nullopt;
    std::optional<ControlFont> font = std::nullopt;
    std::wstring accessibleName = {};
  };

  Control(ControlHost& host, Common common);

  void Refresh(Aspect aspect) {
    if (peer_) peer_->Refresh(aspect);
  }
  ControlHost& Host() const { return host_; }
  // The control, or the frame around it, was shown or hidden.
  virtual void VisibleChanged() { Refresh(Aspect::Visible); }
  // The control, or the frame around it, was enabled or disabled.
  virtual void EnabledChanged() { Refresh(Aspect::Enabled); }
  // The control, or the frame around it, was moved or resized.
  virtual void BoundsChanged() { Refresh(Aspect::Bounds); }

 private:
  friend class Frame;
  virtual std::unique_ptr<ControlPeer> CreatePeer(FormPeer& form) = 0;

  ControlHost& host_;
  const Control* container_ = nullptr;
  std::wstring name_;
  std::wstring toolTip_;
  Rect bounds_;
  bool visible_;
  bool enabled_;
  std::optional<Color> backColor_;
  std::optional<Color> foreColor_;
  std::optional<ControlFont> font_;
  std::wstring accessibleName_;
  std::unique_ptr<ControlPeer> peer_;
};

}  // namespace troth
