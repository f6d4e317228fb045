// A window of the program. A concrete window derives from Form, has its controls as members and wires their
// slots in its constructor. The same class runs on every backend.
//
// Life: constructed, loaded (controls shown by the desktop, Form_Load runs), shown and hidden, unloaded. A
// form is never torn down inside its own message: Unload hides the form and stops its events immediately, and
// the rest happens when the last handler on it has returned. A form that is unloaded can be loaded again.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Geometry.h"
#include "platform/forms/Control.h"
#include "platform/forms/ControlHost.h"
#include "platform/forms/FormBackend.h"

namespace troth {

class CommandButton;
struct Shortcut;

// A tool window has a narrow title bar and no place in the task bar.
enum class BorderStyle { FixedSingle, FixedDialog, FixedTool };
enum class CloseReason { Program, User, SessionEnd };

// Style bits of a window; the values are those of the system.
inline constexpr std::uint32_t kStyleTitleBar = 0x00C00000;
inline constexpr std::uint32_t kStyleControlBox = 0x00080000;
inline constexpr std::uint32_t kStyleMinimiseBox = 0x00020000;
inline constexpr std::uint32_t kStyleMaximiseBox = 0x00010000;

// Modifiers of a global hotkey; the values are those of the system, and not those of KeyPress::shift.
inline constexpr int kHotkeyAlt = 1;
inline constexpr int kHotkeyControl = 2;
inline constexpr int kHotkeyShift = 4;

struct FormOptions {
  std::wstring name;
  std::wstring caption;
  Size clientSize;  // without the menu bar
  BorderStyle border = BorderStyle::FixedSingle;
  int helpContext = 0;                            // number of the help topic; 0 for none
  bool isCentred = false;                         // comes up in the middle of the form that was active
  bool hasCloseBox = true;                        // without one, only the program closes the form
  std::optional<Color> backColor = std::nullopt;  // nothing means the system's colour
};

class Form : public ControlHost {
 public:
  Form(FormBackend& backend, FormOptions options);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::wstring& Name() const { return options_.name; }
  const FormOptions& Options() const { return options_; }
  const std::wstring& Caption() const { return options_.caption; }
  void SetCaption(std::wstring caption);

  bool IsLoaded() const { return peer_ && !dying_; }
  bool Visible() const { return visible_; }

  // Does nothing on a loaded form.
  void Load();

  // Loads if need be, shows and activates. Owned by another form, it stays above that form and goes with it;
  // as long as that form is hidden it is not activated, since that one is to have the keyboard when it comes.
  void Show(Form* owner = nullptr);

  // Shows the form and returns when it has been hidden or unloaded. No other form takes input meanwhile;
  // timers, hotkeys and their handlers go on running inside the call.
  void ShowModal();

  void Hide();

  // Asks Form_QueryUnload, runs Form_Unload, and takes the form and those it owns down.
  void Unload() { Close(CloseReason::Program); }

  // While a modal form is up, a form that is shown then takes input all the same; see ShowModal.
  //
  // A place on the screen, and a size in the form's own twips; all zero while the form is not loaded.
  Rect OuterBounds() const { return peer_ ? peer_->OuterBounds() : Rect{}; }
  void MoveTo(Point topLeft);
  // Changes the outer size and nothing else. Without it the form has the size that its options ask for.
  void SetOuterSize(Size size);
  // The area for the controls, without frame, title bar and menu bar.
  Size ClientSize() const { return peer_ ? peer_->ClientSize() : Size{}; }
  // A size of other programs' windows or of a picture, in twips.
  Size FromPixels(PixelSize size) const { return peer_ ? peer_->FromPixels(size) : Size{}; }
  bool IsMinimised() const { return peer_ && peer_->IsMinimised(); }

  // TopMost keeps the form in front of other programs' windows.
  void SetStacking(Stacking stacking);

  // The frame at run time. The window stays the same one, with its hotkeys, and keeps its outer rectangle.
  void SetBorder(BorderStyle border);
  // The style bits of the system's window: see kStyle... below. 0 while the form is not loaded.
  std::uint32_t StyleBits() const { return peer_ ? peer_->StyleBits() : 0; }
  void SetStyleBits(std::uint32_t bits);

  // The system moves the form with the mouse until the button is released, as if by the title bar.
  void StartDrag();

  void SetBackColor(std::optional<Color> color);
  // The ground as it is shown: a contrast theme puts the system's colour in place of the form's own.
  std::optional<Color> ShownBackColor() const {
    return UsesSystemColors() ? std::nullopt : options_.backColor;
  }
  // Paints what has changed immediately, without serving any other message.
  void Repaint();

  void SetHelpContext(int topic) { options_.helpContext = topic; }

  // Shows the top-level menu `menu` at the mouse pointer, also if it is hidden from the bar, and returns when
  // the user has chosen or closed it. Either mouse button chooses. The handler of the item runs inside the
  // call.
  void PopupMenu(MenuItem& menu);

  // Asks the desktop to tell this form of a combination of keys, whatever program has the keyboard.
  // `modifiers` is a sum of the kHotkey bits. False if it is refused, as when another program holds the
  // combination. It ends with UnregisterHotkey or with the form.
  bool RegisterHotkey(std::uint16_t id, int modifiers, int keyCode);
  void UnregisterHotkey(std::uint16_t id);
  // Comes through whatever message loop is running, also that of a modal form in front of this one.
  std::function<void(int modifiers, int keyCode)> OnHotkey;

  // The mouse on the form's own ground, and the keys of a form without a control that takes the keyboard.
  std::function<void()> OnClick;
  std::function<void()> OnDoubleClick;
  std::function<void(const MouseEvent&)> OnMouseDown;
  std::function<void(const MouseEvent&)> OnMouseMove;
  std::function<void(const MouseEvent&)> OnMouseUp;
  std::function<void(KeyPress&)> OnKeyDown;
  std::function<void(KeyPress&)> OnKeyUp;
  // The user dropped a file on the window: its full path, the first one of several. A form takes files only
  // if this is set when it is loaded, and none while a modal form has the input.
  std::function<void(const std::wstring& path)> OnFileDropped;
  // The user pressed F1; the help follows.
  std::function<void()> OnHelp;
  // The user logs off or shuts the computer down. Returns why the system should wait, in a line for its list
  // of programs, or nothing to let the session end. Shows nothing: the system waits for the answer. A form
  // that has this slot is asked by Form_QueryUnload if it has given a reason, and is unloaded when the
  // session ends.
  std::function<std::wstring()> OnSessionEnding;

  // --- Called by the backend, and by tests that look at a form. ---
  const std::vector<Control*>& Controls() const override { return controls_; }
  const std::vector<MenuItem*>& Menus() const { return menus_; }
  // Of several, the first one that can be pressed.
  CommandButton* DefaultButton() const;
  CommandButton* CancelButton() const;
  void UserActivated();
  void UserClosed() {
    if (options_.hasCloseBox) Close(CloseReason::User);
  }
  void UserClicked() { Raise(OnClick); }
  void UserDoubleClicked() { Raise(OnDoubleClick); }
  void UserMouse(MouseAction action, const MouseEvent& event);
  void UserPressedKey(KeyPress& press) { Raise(OnKeyDown, press); }
  void UserReleasedKey(KeyPress& press) { Raise(OnKeyUp, press); }
  // True if an item of the menu has the shortcut and can be chosen.
  bool UserPressedShortcut(const Shortcut& shortcut);
  void UserPressedHotkey(int modifiers, int keyCode) { Raise(OnHotkey, modifiers, keyCode); }
  void UserDroppedFile(const std::wstring& path) { Raise(OnFileDropped, path); }
  void UserAskedForHelp();
  std::wstring UserEndsSession() {
    return HearsEvents() && OnSessionEnding ? OnSessionEnding() : std::wstring();
  }
  // Soon after a reason was given, when the form may ask the user. If the session still is to end then, the
  // form closes.
  void SessionWaits();
  // The session goes on after all.
  void SessionGoesOn() { sessionEnds_ = false; }
  // The process is gone when this has returned: nobody is asked any more.
  void SessionEnds();
  // Enter works on the control that has the keyboard if it takes Enter, otherwise on the default button; Esc
  // on the cancel button. False if there is nothing to work on.
  bool UserPressedEnter(Control* focused);
  bool UserPressedEscape();

  // --- Called by the slot that owns the form: what to do once the form is gone for good. ---
  void WhenGone(std::function<void()> destroy) { whenGone_ = std::move(destroy); }

  void Adopt(Control& control) override { controls_.push_back(&control); }
  void Adopt(Timer& timer) override { timers_.push_back(&timer); }
  void Adopt(MenuItem& item) override { menus_.push_back(&item); }
  void MenuChanged(const MenuItem& item) override;
  bool HearsEvents() const override { return peer_ && !dying_; }
  bool UsesSystemColors() const override { return backend_.HasContrastTheme(); }

 protected:
  virtual void Form_Load() {}
  // On each activation of the window.
  virtual void Form_Activate() {}
  // May set `cancel` to keep the form.
  virtual void Form_QueryUnload(bool& cancel, CloseReason reason) {
    static_cast<void>(cancel);
    static_cast<void>(reason);
  }
  virtual void Form_Unload() {}

  // Puts the form into the middle of the one that the user works with, or else of its monitor.
  void Centre();

 private:
  void AddHold() override { ++holds_; }
  void DropHold() override;
  void Close(CloseReason reason);
  void TakeDown();
  void TearDown();
  void ComeIntoSight();
  void Disown();

  FormBackend& backend_;
  FormOptions options_;
  std::vector<Control*> controls_;
  std::vector<Timer*> timers_;
  std::vector<MenuItem*> menus_;
  std::unique_ptr<FormPeer> peer_;
  Form* owner_ = nullptr;
  std::vector<Form*> owned_;
  std::function<void()> whenGone_;
  int holds_ = 0;
  bool visible_ = false;
  bool closing_ = false;
  bool dying_ = false;
  bool sessionEnds_ = false;
};

}  // namespace troth
