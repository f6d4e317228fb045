#include "platform/headless/HeadlessForms.h"

#include <algorithm>

#include "platform/forms/CheckBox.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/DropDownList.h"
#include "platform/forms/Frame.h"
#include "platform/forms/Label.h"
#include "platform/forms/LinkLabel.h"
#include "platform/forms/ListBox.h"
#include "platform/forms/ListView.h"
#include "platform/forms/MenuItem.h"
#include "platform/forms/OptionButton.h"
#include "platform/forms/PictureBox.h"
#include "platform/forms/StatusBar.h"
#include "platform/forms/TabStrip.h"
#include "platform/forms/TextBox.h"
#include "platform/forms/Timer.h"
#include "platform/forms/TreeView.h"
#include "platform/headless/HeadlessCanvas.h"

namespace troth {

namespace {

constexpr int kTwipsAPixel = 15;

// A title bar and a menu of common height, and a thin frame: enough for places to make sense.
constexpr int kFrame = 90;
constexpr int kTitleBar = 345;
constexpr int kMenuBar = 285;

std::uint32_t StyleOf(const FormOptions& options) {
  return kStyleTitleBar | (options.hasCloseBox ? kStyleControlBox : 0) |
         (options.border == BorderStyle::FixedSingle ? kStyleMinimiseBox : 0);
}

Size AroundClient(const Form& form, std::uint32_t style) {
  const auto& menus = form.Menus();
  const bool hasMenu =
      std::any_of(menus.begin(), menus.end(), [](const MenuItem* menu) { return menu->Visible(); });
  return {kFrame, kFrame + (style & kStyleTitleBar ? kTitleBar : 0) + (hasMenu ? kMenuBar : 0)};
}

class HeadlessControl final : public ControlPeer {
 public:
  HeadlessControl(HeadlessForm& form, Control& control) : form_(form), control_(control) {}

  ~HeadlessControl() override { form_.Forget(control_); }

  // A control that is disabled or hidden under the user's hands passes the keyboard on.
  void Refresh(Aspect aspect) override {
    if (aspect != Aspect::Visible && aspect != Aspect::Enabled) return;
    if (control_.CanTakeFocus() || form_.Focused() != &control_) return;
    Control* next = nullptr;
    const auto& controls = form_.Portable().Controls();
    const auto here = std::find(controls.begin(), controls.end(), &control_) - controls.begin();
    for (std::size_t step = 1; step < controls.size() && !next; ++step) {
      Control* candidate = controls[(static_cast<std::size_t>(here) + step) % controls.size()];
      if (candidate->CanTakeFocus()) next = candidate;
    }
    form_.MoveFocus(next);
  }

  void TakeFocus() override { form_.MoveFocus(&control_); }

 private:
  HeadlessForm& form_;
  Control& control_;
};

class HeadlessTimer final : public TimerPeer {
 public:
  HeadlessTimer(HeadlessTime& time, Timer& timer) : time_(time), timer_(timer) { time_.Watch(timer_); }
  ~HeadlessTimer() override { time_.Unwatch(timer_); }
  void Refresh() override { time_.Restart(timer_); }

 private:
  HeadlessTime& time_;
  Timer& timer_;
};

}  // namespace

HeadlessForm::HeadlessForm(HeadlessForms& desktop, Form& form) : desktop_(desktop), form_(form) {
  styleBits_ = StyleOf(form.Options());
  const Size client = form.Options().clientSize;
  const Size around = AroundClient(form, styleBits_);
  bounds_ = {0, 0, client.width + around.width, client.height + around.height};
  desktop_.loaded_.push_back(this);
}

HeadlessForm::~HeadlessForm() {
  std::erase(desktop_.loaded_, this);
  std::erase(desktop_.stack_, this);
  std::erase(desktop_.modal_, this);
  std::erase_if(desktop_.hotkeys_, [this](const HeadlessHotkey& hotkey) { return hotkey.holder == this; });
  for (HeadlessForm* other : desktop_.loaded_)
    if (other->owner_ == this) other->owner_ = nullptr;
  if (desktop_.active_ == this) desktop_.active_ = nullptr;
}

std::unique_ptr<ControlPeer> HeadlessForm::Create(Canvas& control) {
  return std::make_unique<HeadlessCanvas>(control);
}
std::unique_ptr<ControlPeer> HeadlessForm::Create(CheckBox& control) {
  return std::make_unique<HeadlessControl>(*this, control);
}
std::unique_ptr<ControlPeer> HeadlessForm::Create(CommandButton& control) {
  return std::make_unique<HeadlessControl>(*this, control);
}
std::unique_ptr<ControlPeer> HeadlessForm::Create(Label& control) {
  return std::make_unique<HeadlessControl>(*this, control);
}
std::unique_ptr<ControlPeer> HeadlessForm::Create(LinkLabel& control) {
  return std::make_unique<HeadlessControl>(*this, control);
}
std::unique_ptr<ControlPeer> HeadlessForm::Create(ListBox& control) {
  return std::make_unique<HeadlessControl>(*this, control);
}
std::unique_ptr<ControlPeer> HeadlessForm::Create(DropDownList& control) {
  return std::make_unique<HeadlessControl>(*this, control);
}
std::unique_ptr<ControlPeer> HeadlessForm::Create(Frame& control) {
  return std::make_unique<HeadlessControl>(*this, control);
}
std::unique_ptr<ControlPeer> HeadlessForm::Create(OptionButton& control) {
  return std::make_unique<HeadlessControl>(*this, control);
}
std::unique_ptr<ControlPeer> HeadlessForm::Create(PictureBox& control) {
  return std::make_unique<HeadlessControl>(*this, control);
}
std::unique_ptr<ControlPeer> HeadlessForm::Create(TabStrip& control) {
  return std::make_unique<HeadlessControl>(*this, control);
}
std::unique_ptr<ControlPeer> HeadlessForm::Create(TextBox& control) {
  return std::make_unique<HeadlessControl>(*this, control);
}
std::unique_ptr<ControlPeer> HeadlessForm::Create(ListView& control) {
  return std::make_unique<HeadlessControl>(*this, control);
}
std::unique_ptr<ControlPeer> HeadlessForm::Create(StatusBar& control) {
  return std::make_unique<HeadlessControl>(*this, control);
}
std::unique_ptr<ControlPeer> HeadlessForm::Create(TreeView& control) {
  return std::make_unique<HeadlessControl>(*this, control);
}
std::unique_ptr<TimerPeer> HeadlessForm::Create(Timer& timer) {
  return std::make_unique<HeadlessTimer>(desktop_.time_, timer);
}

void HeadlessForm::RefreshBorder() { styleBits_ = StyleOf(form_.Options()); }

Size HeadlessForm::ClientSize() const {
  const Size around = AroundClient(form_, styleBits_);
  return {bounds_.width - around.width, bounds_.height - around.height};
}

Size HeadlessForm::FromPixels(PixelSize size) const {
  return {size.width * kTwipsAPixel, size.height * kTwipsAPixel};
}

void HeadlessForm::SetOuterSize(Size size) {
  bounds_.width = size.width;
  bounds_.height = size.height;
}

void HeadlessForm::PopupMenu(MenuItem& menu) {
  desktop_.popups_.push_back(menu.Name());
  if (desktop_.whenPopup_.empty()) return;
  const auto act = std::move(desktop_.whenPopup_.front());
  desktop_.whenPopup_.pop_front();
  act(menu);
}

void HeadlessForm::Show(FormPeer* owner) {
  shownDuring_ = desktop_.modal_.size();
  owner_ = static_cast<HeadlessForm*>(owner);
  shown_ = true;
  if (!focused_) {
    for (Control* control : form_.Controls()) {
      if (!control->CanTakeFocus()) continue;
      focused_ = control;
      break;
    }
  }
  desktop_.Stack(*this);
  if (!owner_ || owner_->shown_) desktop_.Activate(this);
}

void HeadlessForm::Hide() {
  shown_ = false;
  std::erase(desktop_.stack_, this);
  std::erase(desktop_.modal_, this);
  if (desktop_.active_ != this) return;
  HeadlessForm* next = nullptr;
  for (HeadlessForm* candidate : desktop_.stack_)
    if (!next && !desktop_.Blocked(*candidate)) next = candidate;
  desktop_.Activate(next);
}

void HeadlessForm::RunModal(const std::function<bool()>& done) {
  HeadlessForm* const before = desktop_.active_;
  desktop_.modal_.push_back(this);
  // It keeps the input from all that were shown before it.
  for (HeadlessForm* other : desktop_.loaded_)
    other->shownDuring_ = std::min(other->shownDuring_, desktop_.modal_.size() - 1);
  Show(before);
  while (!done()) {
    const auto act = desktop_.whenModal_.find(form_.Name());
    if (act != desktop_.whenModal_.end()) {
      const std::function<void()> run = std::move(act->second);
      desktop_.whenModal_.erase(act);
      run();
    } else if (desktop_.time_.HasPendingActs()) {
      desktop_.time_.AdvanceToNextAct();
    } else {
      throw HeadlessFailure("nobody closes the modal window " + HeadlessJournal::Readable(form_.Name()));
    }
  }
  // The form that was active before may have gone meanwhile.
  const auto& loaded = desktop_.loaded_;
  const bool isBack = std::find(loaded.begin(), loaded.end(), before) != loaded.end() && before->shown_;
  if (isBack && desktop_.active_ != before) desktop_.Activate(before);
}

void HeadlessForm::MoveTo(Point topLeft) {
  bounds_.left = topLeft.left;
  bounds_.top = topLeft.top;
}

bool HeadlessForm::RegisterHotkey(std::uint16_t id, int modifiers, int keyCode) {
  for (const HeadlessHotkey& taken : desktop_.hotkeys_)
    if ((taken.modifiers == modifiers && taken.keyCode == keyCode) ||
        (taken.holder == this && taken.id == id))
      return false;
  desktop_.hotkeys_.push_back({this, id, modifiers, keyCode});
  return true;
}

void HeadlessForm::UnregisterHotkey(std::uint16_t id) {
  std::erase_if(desktop_.hotkeys_, [this, id](const HeadlessHotkey& hotkey) {
    return hotkey.holder == this && hotkey.id == id;
  });
}

void HeadlessForm::SetStacking(Stacking stacking) {
  topMost_ = stacking == Stacking::TopMost;
  if (shown_) desktop_.Stack(*this);
}

void HeadlessForm::MoveFocus(Control* control) {
  if (control == focused_) return;
  const ControlHost::Hold hold(form_);  // either handler may unload the form
  Control* const before = focused_;
  focused_ = control;
  if (desktop_.active_ != this) return;
  if (before) before->UserLeft();
  if (control && focused_ == control) control->UserEntered();
}

std::unique_ptr<FormPeer> HeadlessForms::Create(Form& form) {
  return std::make_unique<HeadlessForm>(*this, form);
}

void HeadlessForms::RunUntilLastFormIsGone() {
  while (!loaded_.empty()) {
    if (!time_.HasPendingActs())
      throw HeadlessFailure("nobody closes the window " +
                            HeadlessJournal::Readable(loaded_.front()->Portable().Name()));
    time_.AdvanceToNextAct();
  }
}

void HeadlessForms::WhenModal(std::wstring formName, std::function<void()> act) {
  whenModal_.emplace(std::move(formName), std::move(act));
}

Rect HeadlessForms::FromPixels(const PixelRect& place) const {
  return {place.left * kTwipsAPixel, place.top * kTwipsAPixel, (place.right - place.left) * kTwipsAPixel,
          (place.bottom - place.top) * kTwipsAPixel};
}

std::vector<std::wstring> HeadlessForms::EndSession() {
  std::vector<std::wstring> reasons;
  for (const HeadlessForm* form : loaded_) {
    Form& portable = form->Portable();
    const std::wstring reason = portable.UserEndsSession();
    if (reason.empty()) continue;
    reasons.push_back(reason);
    time_.After(0, [this, &portable] {
      if (Find(portable)) portable.SessionWaits();
    });
  }
  if (reasons.empty()) ForceSessionEnd();
  return reasons;
}

void HeadlessForms::KeepSession() {
  for (const HeadlessForm* form : loaded_) form->Portable().SessionGoesOn();
}

void HeadlessForms::ForceSessionEnd() {
  const std::vector<HeadlessForm*> all = loaded_;
  for (HeadlessForm* form : all)
    if (std::find(loaded_.begin(), loaded_.end(), form) != loaded_.end()) form->Portable().SessionEnds();
}

HeadlessForm* HeadlessForms::Find(const Form& form) const {
  for (HeadlessForm* candidate : loaded_)
    if (&candidate->Portable() == &form) return candidate;
  return nullptr;
}

bool HeadlessForms::Blocked(const HeadlessForm& form) const {
  return !modal_.empty() && modal_.back() != &form && form.shownDuring_ < modal_.size();
}

// The keyboard leaves the control of one form and enters that of the other.
void HeadlessForms::Activate(HeadlessForm* form) {
  if (form == active_) return;
  HeadlessForm* const before = active_;
  active_ = form;
  if (before && before->Focused()) before->Focused()->UserLeft();
  if (!form || active_ != form) return;
  Stack(*form);
  form->Portable().UserActivated();
  if (active_ == form && form->Focused()) form->Focused()->UserEntered();
}

// Brings the form to the top of its kind (topmost forms stand above all others), and what it owns above it.
void HeadlessForms::Stack(HeadlessForm& form) {
  std::erase(stack_, &form);
  const auto top = form.StandsInFront()
                       ? stack_.begin()
                       : std::find_if(stack_.begin(), stack_.end(),
                                      [](const HeadlessForm* other) { return !other->StandsInFront(); });
  stack_.insert(top, &form);
  const std::vector<HeadlessForm*> all = stack_;
  for (auto other = all.rbegin(); other != all.rend(); ++other)
    if ((*other)->Owner() == &form) Stack(**other);
}

}  // namespace troth
