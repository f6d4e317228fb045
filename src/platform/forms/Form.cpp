#include "platform/forms/Form.h"

#include <algorithm>

#include "platform/forms/CommandButton.h"
#include "platform/forms/Control.h"
#include "platform/forms/MenuItem.h"
#include "platform/forms/Timer.h"

namespace troth {

Form::Form(FormBackend& backend, FormOptions options) : backend_(backend), options_(std::move(options)) {}

// The controls, members of the derived class, are already gone and have taken their peers along.
Form::~Form() {
  Disown();
  for (Form* form : owned_) form->owner_ = nullptr;
}

void Form::SetCaption(std::wstring caption) {
  options_.caption = std::move(caption);
  if (peer_) peer_->RefreshCaption();
}

void Form::Load() {
  if (peer_) return;
  peer_ = backend_.Create(*this);
  for (Control* control : controls_) control->AttachPeer(*peer_);
  for (Timer* timer : timers_) timer->AttachPeer(*peer_);
  peer_->Complete();
  if (options_.isCentred) Centre();
  const Hold hold(*this);
  Form_Load();
}

void Form::Show(Form* owner) {
  const Hold hold(*this);
  Load();
  if (dying_) return;
  Disown();
  if (owner) {
    owner_ = owner;
    owner->owned_.push_back(this);
  }
  ComeIntoSight();
  visible_ = true;
  peer_->Show(owner ? owner->peer_.get() : nullptr);
}

void Form::ShowModal() {
  const Hold hold(*this);
  Load();
  if (dying_) return;
  ComeIntoSight();
  visible_ = true;
  peer_->RunModal([this] { return !visible_; });
}

void Form::Hide() {
  if (!visible_) return;
  visible_ = false;
  peer_->Hide();
}

void Form::MoveTo(Point topLeft) {
  if (peer_) peer_->MoveTo(topLeft);
}

void Form::SetOuterSize(Size size) {
  if (peer_) peer_->SetOuterSize(size);
}

void Form::SetBorder(BorderStyle border) {
  if (border == options_.border) return;
  options_.border = border;
  if (peer_) peer_->RefreshBorder();
}

void Form::SetStyleBits(std::uint32_t bits) {
  if (peer_) peer_->SetStyleBits(bits);
}

void Form::StartDrag() {
  if (peer_) peer_->StartDrag();
}

void Form::SetBackColor(std::optional<Color> color) {
  options_.backColor = color;
  if (peer_) peer_->RefreshBackColor();
}

void Form::Repaint() {
  if (peer_) peer_->Repaint();
}

void Form::PopupMenu(MenuItem& menu) {
  if (!HearsEvents()) return;
  const Hold hold(*this);
  peer_->PopupMenu(menu);
}

void Form::UserMouse(MouseAction action, const MouseEvent& event) {
  const auto& slot = action == MouseAction::Down   ? OnMouseDown
                     : action == MouseAction::Move ? OnMouseMove
                                                   : OnMouseUp;
  Raise(slot, event);
}

bool Form::UserPressedShortcut(const Shortcut& shortcut) {
  if (shortcut.keyCode == 0) return false;
  const Hold hold(*this);
  return std::any_of(menus_.begin(), menus_.end(),
                     [&](MenuItem* menu) { return menu->UserPressedShortcut(shortcut); });
}

bool Form::RegisterHotkey(std::uint16_t id, int modifiers, int keyCode) {
  return peer_ && peer_->RegisterHotkey(id, modifiers, keyCode);
}

void Form::UnregisterHotkey(std::uint16_t id) {
  if (peer_) peer_->UnregisterHotkey(id);
}

void Form::SetStacking(Stacking stacking) {
  if (peer_) peer_->SetStacking(stacking);
}

void Form::Centre() {
  const MonitorList monitors = backend_.Monitors();
  const Form* active = backend_.ActiveForm();
  const Rect outer = OuterBounds();
  const Rect around = active && active != this && active->Visible()
                          ? OnScreen(monitors, active->OuterBounds())
                          : MonitorOf(monitors, outer).workArea;
  MoveTo(CentredOver(monitors, around, {outer.width, outer.height}));
}

// The monitor on which it stood may have gone since. A minimised form comes into sight by itself.
void Form::ComeIntoSight() {
  if (IsMinimised()) return;
  const Rect outer = OuterBounds();
  const Point place = IntoSight(backend_.Monitors(), outer);
  if (place != Point{outer.left, outer.top}) MoveTo(place);
}

void Form::UserAskedForHelp() {
  if (!HearsEvents() || !backend_.OnHelp) return;
  const Hold hold(*this);
  Raise(OnHelp);
  backend_.OnHelp(*this);
}

void Form::UserActivated() {
  if (!HearsEvents()) return;
  const Hold hold(*this);
  Form_Activate();
}

bool Form::UserPressedEnter(Control* focused) {
  if (focused && focused->UserPressedEnter()) return true;
  CommandButton* button = DefaultButton();
  if (button) button->UserClicked();
  return button != nullptr;
}

bool Form::UserPressedEscape() {
  CommandButton* button = CancelButton();
  if (button) button->UserClicked();
  return button != nullptr;
}

void Form::MenuChanged(const MenuItem& item) {
  if (peer_) peer_->RefreshMenu(item);
}

CommandButton* Form::DefaultButton() const {
  CommandButton* first = nullptr;
  for (Control* control : controls_) {
    auto* button = dynamic_cast<CommandButton*>(control);
    if (!button || !button->IsDefault()) continue;
    if (button->CanTakeFocus()) return button;
    if (!first) first = button;
  }
  return first;
}

CommandButton* Form::CancelButton() const {
  for (Control* control : controls_)
    if (auto* button = dynamic_cast<CommandButton*>(control); button && button->IsCancel()) return button;
  return nullptr;
}

// A second request while the first one still asks its questions is dropped: the answer is on its way.
void Form::Close(CloseReason reason) {
  if (!IsLoaded() || closing_) return;
  const Hold hold(*this);
  closing_ = true;
  bool cancel = false;
  Form_QueryUnload(cancel, reason);
  // The session may have ended, or not, while the user was asked.
  if (reason == CloseReason::SessionEnd && !sessionEnds_) cancel = true;
  if (cancel && !dying_) closing_ = false;
  if (!cancel && !dying_) TakeDown();
}

void Form::TakeDown() {
  Form_Unload();
  while (!owned_.empty()) {
    Form* last = owned_.back();
    owned_.pop_back();
    last->owner_ = nullptr;
    last->Unload();
  }
  dying_ = true;
  Hide();
}

void Form::SessionWaits() {
  sessionEnds_ = true;
  Close(CloseReason::SessionEnd);
}

void Form::SessionEnds() {
  if (!OnSessionEnding || !IsLoaded()) return;
  const Hold hold(*this);
  TakeDown();
}

void Form::DropHold() {
  if (--holds_ == 0 && dying_) TearDown();
}

void Form::TearDown() {
  Disown();
  for (Control* control : controls_) control->DetachPeer();
  for (Timer* timer : timers_) timer->DetachPeer();
  peer_.reset();
  dying_ = false;
  closing_ = false;
  if (!whenGone_) return;
  // May destroy this form, the slot with it: nothing of it is touched from here on.
  const std::function<void()> destroy = std::move(whenGone_);
  destroy();
}

void Form::Disown() {
  if (owner_) std::erase(owner_->owned_, this);
  owner_ = nullptr;
}

}  // namespace troth
