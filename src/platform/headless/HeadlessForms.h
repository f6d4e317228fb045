// Forms on the headless desktop: which are shown, their stacking order, which is active, which modal one
// holds the input, and which control of each has the keyboard. The scripted user (HeadlessUser) acts on it.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/forms/Form.h"
#include "platform/headless/HeadlessTime.h"

namespace troth {

class Control;
class HeadlessForms;

// The peer of one form. The controls' peers do nothing but move the focus, as there is nothing to draw.
class HeadlessForm final : public FormPeer {
 public:
  HeadlessForm(HeadlessForms& desktop, Form& form);
  ~HeadlessForm() override;

  std::unique_ptr<ControlPeer> Create(Canvas& control) override;
  std::unique_ptr<ControlPeer> Create(CheckBox& control) override;
  std::unique_ptr<ControlPeer> Create(CommandButton& control) override;
  std::unique_ptr<ControlPeer> Create(DropDownList& control) override;
  std::unique_ptr<ControlPeer> Create(Frame& control) override;
  std::unique_ptr<ControlPeer> Create(Label& control) override;
  std::unique_ptr<ControlPeer> Create(LinkLabel& control) override;
  std::unique_ptr<ControlPeer> Create(ListBox& control) override;
  std::unique_ptr<ControlPeer> Create(ListView& control) override;
  std::unique_ptr<ControlPeer> Create(OptionButton& control) override;
  std::unique_ptr<ControlPeer> Create(PictureBox& control) override;
  std::unique_ptr<ControlPeer> Create(StatusBar& control) override;
  std::unique_ptr<ControlPeer> Create(TabStrip& control) override;
  std::unique_ptr<ControlPeer> Create(TextBox& control) override;
  std::unique_ptr<ControlPeer> Create(TreeView& control) override;
  std::unique_ptr<TimerPeer> Create(Timer& timer) override;
  void Complete() override {}
  void RefreshCaption() override {}
  void RefreshBorder() override;
  void RefreshBackColor() override {}
  void RefreshMenu(const MenuItem&) override {}
  Size ClientSize() const override;
  void SetOuterSize(Size size) override;
  std::uint32_t StyleBits() const override { return styleBits_; }
  void SetStyleBits(std::uint32_t bits) override { styleBits_ = bits; }
  void StartDrag() override { ++drags_; }
  void Repaint() override {}
  void PopupMenu(MenuItem& menu) override;
  void Show(FormPeer* owner) override;
  void Hide() override;
  void RunModal(const std::function<bool()>& done) override;
  Rect OuterBounds() const override { return bounds_; }
  void MoveTo(Point topLeft) override;
  bool IsMinimised() const override { return minimised_; }
  Size FromPixels(PixelSize size) const override;
  void SetStacking(Stacking stacking) override;
  bool RegisterHotkey(std::uint16_t id, int modifiers, int keyCode) override;
  void UnregisterHotkey(std::uint16_t id) override;

  // The user puts the form into the task bar and takes it back.
  void Minimise(bool minimised) { minimised_ = minimised; }

  Form& Portable() const { return form_; }
  int Drags() const { return drags_; }
  bool Shown() const { return shown_; }
  bool IsTopMost() const { return topMost_; }
  HeadlessForm* Owner() const { return owner_; }
  // Above all that is not: an owned form never lies below its owner.
  bool StandsInFront() const { return topMost_ || (owner_ && owner_->StandsInFront()); }

  // The control with the keyboard, as far as this form has it. Moving it raises the two focus events.
  Control* Focused() const { return focused_; }
  void MoveFocus(Control* control);
  // The control goes with its form: nothing is raised.
  void Forget(const Control& control) {
    if (focused_ == &control) focused_ = nullptr;
  }

 private:
  friend class HeadlessForms;

  HeadlessForms& desktop_;
  Form& form_;
  Rect bounds_;
  HeadlessForm* owner_ = nullptr;
  Control* focused_ = nullptr;
  bool shown_ = false;
  bool topMost_ = false;
  bool minimised_ = false;
  std::uint32_t styleBits_ = 0;
  int drags_ = 0;
  std::size_t shownDuring_ = 0;  // how many modal forms were up when it was shown
};

// A combination that is taken. The holder is null for one that another program holds.
struct HeadlessHotkey {
  HeadlessForm* holder = nullptr;
  std::uint16_t id = 0;
  int modifiers = 0;
  int keyCode = 0;
};

class HeadlessForms final : public FormBackend {
 public:
  explicit HeadlessForms(HeadlessTime& time) : time_(time) {}

  std::unique_ptr<FormPeer> Create(Form& form) override;
  // Serves the acts that the test has scheduled; fails if they are used up while a form is still loaded.
  void RunUntilLastFormIsGone() override;
  MonitorList Monitors() const override { return monitors; }
  Rect FromPixels(const PixelRect& place) const override;
  bool HasContrastTheme() const override { return hasContrastTheme; }
  const Form* ActiveForm() const override { return active_ ? &active_->Portable() : nullptr; }

  // A test may plug in others.
  MonitorList monitors{
      {.area = {0, 0, 1024 * 15, 768 * 15}, .workArea = {0, 0, 1024 * 15, 768 * 15}, .percent = 100}};

  bool hasContrastTheme = false;

  // What the user does when the named form is shown modally, one act a showing.
  void WhenModal(std::wstring formName, std::function<void()> act);

  // What the user does with the next popup menu: chooses an item with UserChose, or nothing. Without such an
  // act the user closes the menu.
  void WhenPopup(std::function<void(MenuItem& menu)> act) { whenPopup_.push_back(std::move(act)); }
  // The names of the menus that popped up so far.
  const std::vector<std::wstring>& Popups() const { return popups_; }

  HeadlessForm* Active() const { return active_; }
  HeadlessForm* Find(const Form& form) const;
  // Whether another form, shown modally, keeps the input from this one. A form that is shown while a modal
  // one is up takes input.
  bool Blocked(const HeadlessForm& form) const;
  // The user logs off. Returns the reasons that forms give against it; without one, all that the session's
  // end writes has been written afterwards. With one, those forms go on when messages are served.
  std::vector<std::wstring> EndSession();
  // The user stays logged on after all, or logs off whatever the forms say.
  void KeepSession();
  void ForceSessionEnd();

  // Another program takes the combination, if it is free.
  void HoldHotkey(int modifiers, int keyCode) { hotkeys_.push_back({nullptr, 0, modifiers, keyCode}); }
  const std::vector<HeadlessHotkey>& Hotkeys() const { return hotkeys_; }

  // Shown forms, the topmost first.
  const std::vector<HeadlessForm*>& StackingOrder() const { return stack_; }

 private:
  friend class HeadlessForm;
  void Activate(HeadlessForm* form);
  void Stack(HeadlessForm& form);

  HeadlessTime& time_;
  std::vector<HeadlessForm*> loaded_;
  std::vector<HeadlessForm*> stack_;
  std::vector<HeadlessForm*> modal_;
  HeadlessForm* active_ = nullptr;
  std::vector<HeadlessHotkey> hotkeys_;
  std::multimap<std::wstring, std::function<void()>> whenModal_;
  std::deque<std::function<void(MenuItem&)>> whenPopup_;
  std::vector<std::wstring> popups_;
};

}  // namespace troth
