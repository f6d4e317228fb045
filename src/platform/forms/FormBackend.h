// The interface between forms and a desktop. The portable classes (Form, TextBox, ...) hold the state and the
// rules; a backend shows that state and reports what the user did to the portable class, through its User...
// operations. A backend reads what it shows from the portable object, so each property lives once.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "platform/Geometry.h"
#include "platform/Stacking.h"
#include "platform/forms/Monitors.h"

namespace troth {

class Canvas;
class CheckBox;
class CommandButton;
class DropDownList;
class Form;
class Frame;
class Label;
class LinkLabel;
class ListBox;
class ListView;
class MenuItem;
class OptionButton;
class PictureBox;
class StatusBar;
class TabStrip;
class TextBox;
class Timer;
class TreeView;

// What changed about a control and has to be shown again; Entries means the index as well.
enum class Aspect {
  Caption,
  Text,
  Selection,
  Bounds,
  Visible,
  Enabled,
  Colors,
  Value,
  Entries,
  Index,
  Ticks,
  Label,
  Mark,
  Picture,
  ToolTip
};

// A control as the desktop shows it. Lives exactly while its form is loaded.
class ControlPeer {
 public:
  virtual ~ControlPeer() = default;

  // Shows the property as the control now has it. Raises no event by itself.
  virtual void Refresh(Aspect aspect) = 0;

  // Gives the control the keyboard, as far as its form has it. The portable events follow.
  virtual void TakeFocus() = 0;
};

class TimerPeer {
 public:
  virtual ~TimerPeer() = default;

  // Starts the period again with the timer's present interval and enabled state.
  virtual void Refresh() = 0;
};

// A form as the desktop shows it. Created hidden.
class FormPeer {
 public:
  virtual ~FormPeer() = default;

  virtual std::unique_ptr<ControlPeer> Create(Canvas& control) = 0;
  virtual std::unique_ptr<ControlPeer> Create(CheckBox& control) = 0;
  virtual std::unique_ptr<ControlPeer> Create(CommandButton& control) = 0;
  virtual std::unique_ptr<ControlPeer> Create(DropDownList& control) = 0;
  virtual std::unique_ptr<ControlPeer> Create(Frame& control) = 0;
  virtual std::unique_ptr<ControlPeer> Create(Label& control) = 0;
  virtual std::unique_ptr<ControlPeer> Create(LinkLabel& control) = 0;
  virtual std::unique_ptr<ControlPeer> Create(ListBox& control) = 0;
  virtual std::unique_ptr<ControlPeer> Create(ListView& control) = 0;
  virtual std::unique_ptr<ControlPeer> Create(OptionButton& control) = 0;
  virtual std::unique_ptr<ControlPeer> Create(PictureBox& control) = 0;
  virtual std::unique_ptr<ControlPeer> Create(StatusBar& control) = 0;
  virtual std::unique_ptr<ControlPeer> Create(TabStrip& control) = 0;
  virtual std::unique_ptr<ControlPeer> Create(TextBox& control) = 0;
  virtual std::unique_ptr<ControlPeer> Create(TreeView& control) = 0;
  virtual std::unique_ptr<TimerPeer> Create(Timer& timer) = 0;

  // Called once after the controls were created and before the load handler.
  virtual void Complete() = 0;

  virtual void RefreshCaption() = 0;

  // Show the portable form's border and ground as they are now; the outer rectangle stays.
  virtual void RefreshBorder() = 0;
  virtual void RefreshBackColor() = 0;

  // See Form for these.
  virtual Size ClientSize() const = 0;
  virtual Size FromPixels(PixelSize size) const = 0;
  virtual void SetOuterSize(Size size) = 0;
  virtual std::uint32_t StyleBits() const = 0;
  virtual void SetStyleBits(std::uint32_t bits) = 0;
  virtual void StartDrag() = 0;
  virtual void Repaint() = 0;
  virtual void PopupMenu(MenuItem& menu) = 0;

  // A property of the item changed; the peer may redraw that item or the whole menu.
  virtual void RefreshMenu(const MenuItem& item) = 0;

  // Shows, and activates unless it is owned by a hidden window; an owned window stays above its owner. It
  // takes input even if a modal form is up.
  virtual void Show(FormPeer* owner) = 0;
  virtual void Hide() = 0;

  // Shows the form, takes the input away from all other forms and serves messages until `done`. Then gives
  // the input back and activates the form that was active before. Timers and hotkeys go on firing inside.
  virtual void RunModal(const std::function<bool()>& done) = 0;

  // Outer rectangle: a place on the screen, and a size in the form's own twips (see Monitors.h).
  virtual Rect OuterBounds() const = 0;
  virtual void MoveTo(Point topLeft) = 0;
  virtual bool IsMinimised() const = 0;

  // Changes the place in the stacking order of this form alone and nothing else: no place, no size, no
  // activation, and not the forms that it owns.
  virtual void SetStacking(Stacking stacking) = 0;

  // See Form.
  virtual bool RegisterHotkey(std::uint16_t id, int modifiers, int keyCode) = 0;
  virtual void UnregisterHotkey(std::uint16_t id) = 0;
};

class FormBackend {
 public:
  virtual ~FormBackend() = default;

  virtual std::unique_ptr<FormPeer> Create(Form& form) = 0;

  // Serves messages until no form is loaded any more.
  virtual void RunUntilLastFormIsGone() = 0;

  virtual MonitorList Monitors() const = 0;

  // Where a window of another program lies on the screen.
  virtual Rect FromPixels(const PixelRect& place) const = 0;

  // The form that the user works with, or null if that is a window of another program.
  virtual const Form* ActiveForm() const = 0;

  // The user has chosen colours that he can tell apart: no form shows others.
  virtual bool HasContrastTheme() const = 0;

  // The user pressed F1 in the form.
  std::function<void(Form&)> OnHelp;
};

}  // namespace troth
