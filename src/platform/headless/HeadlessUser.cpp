#include "platform/headless/HeadlessUser.h"

#include <algorithm>
#include <cwctype>

#include "platform/forms/Canvas.h"
#include "platform/forms/CheckBox.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/DropDownList.h"
#include "platform/forms/Label.h"
#include "platform/forms/LinkLabel.h"
#include "platform/forms/ListBox.h"
#include "platform/forms/ListView.h"
#include "platform/forms/MenuItem.h"
#include "platform/forms/OptionButton.h"
#include "platform/forms/PictureBox.h"
#include "platform/forms/TabStrip.h"
#include "platform/forms/TextBox.h"
#include "platform/forms/TreeView.h"

namespace troth {

namespace {

constexpr int kBackspace = 8;
constexpr int kTab = 9;
constexpr int kEnter = 13;
constexpr int kEscape = 27;
constexpr int kSpace = 32;
constexpr int kEnd = 35;
constexpr int kHome = 36;
constexpr int kLeft = 37;
constexpr int kUp = 38;
constexpr int kRight = 39;
constexpr int kDown = 40;
constexpr int kF1 = 112;

wchar_t MnemonicOf(std::wstring_view caption) {
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != L'&') continue;
    if (caption[i + 1] != L'&')
      return static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(caption[i + 1])));
    ++i;
  }
  return 0;
}

bool HasItem(const std::vector<MenuItem*>& items, const MenuItem& item) {
  return std::any_of(items.begin(), items.end(), [&](const MenuItem* candidate) {
    return candidate == &item || HasItem(candidate->Children(), item);
  });
}

[[noreturn]] void Fail(const std::string& what, std::wstring_view name) {
  throw HeadlessFailure(what + ": " + HeadlessJournal::Readable(name));
}

}  // namespace

void HeadlessUser::Click(CommandButton& button) {
  ClickOn(button, [&] { button.UserClicked(); });
}

void HeadlessUser::Click(Label& label) {
  ClickOn(label, [&] { label.UserClicked(); });
}

void HeadlessUser::Click(LinkLabel& link) {
  ClickOn(link, [&] { link.UserClicked(); });
}

void HeadlessUser::Click(OptionButton& button) {
  ClickOn(button, [&] {
    button.UserClicked();
    button.SetFocus();
  });
}

void HeadlessUser::Click(CheckBox& box) {
  ClickOn(box, [&] { box.UserToggled(); });
}

void HeadlessUser::Click(TextBox& box) {
  ClickOn(box, [&] {
    replaces_ = false;
    box.PutCaretAtEnd();
  });
}

void HeadlessUser::Click(PictureBox& box) {
  ClickOn(box, [&] { box.UserClicked(); });
}

void HeadlessUser::RightClick(Control& control, int shift) {
  ActOn(control, [&] {
    control.UserMouse(MouseAction::Down, {MouseButton::Right, shift, {}});
    control.UserMouse(MouseAction::Up, {MouseButton::Right, shift, {}});
  });
}

void HeadlessUser::MouseDown(Control& control, const MouseEvent& event) {
  ActOn(control, [&] { control.UserMouse(MouseAction::Down, event); });
}

void HeadlessUser::MouseMove(Control& control, const MouseEvent& event) {
  Reach(control);
  control.UserMouse(MouseAction::Move, event);
}

void HeadlessUser::MouseUp(Control& control, const MouseEvent& event) {
  Reach(control);
  control.UserMouse(MouseAction::Up, event);
}

void HeadlessUser::Click(Form& form) {
  const ControlHost::Hold hold(Reach(form));
  form.UserMouse(MouseAction::Down, {MouseButton::Left, 0, {}});
  form.UserMouse(MouseAction::Up, {MouseButton::Left, 0, {}});
  form.UserClicked();
}

void HeadlessUser::DropFile(Form& form, const std::wstring& path) {
  const ControlHost::Hold hold(Reach(form));
  form.UserDroppedFile(path);
}

void HeadlessUser::DoubleClick(Form& form) {
  const ControlHost::Hold hold(form);
  Click(form);
  form.UserDoubleClicked();
  form.UserMouse(MouseAction::Up, {MouseButton::Left, 0, {}});
}

void HeadlessUser::MouseDown(Form& form, const MouseEvent& event) {
  Reach(form).UserMouse(MouseAction::Down, event);
}

void HeadlessUser::MouseMove(Form& form, const MouseEvent& event) {
  Reach(form).UserMouse(MouseAction::Move, event);
}

void HeadlessUser::MouseUp(Form& form, const MouseEvent& event) {
  Reach(form).UserMouse(MouseAction::Up, event);
}

void HeadlessUser::Click(Canvas& canvas) {
  ActOn(canvas, [&] { canvas.UserClicked(); });
}

void HeadlessUser::Select(DropDownList& list, int index) {
  ActOn(list, [&] { list.UserSelected(index); });
}

void HeadlessUser::Select(TabStrip& tabs, int index) {
  ActOn(tabs, [&] { tabs.UserSelected(index); });
}

void HeadlessUser::Select(ListBox& list, int index) {
  ActOn(list, [&] { list.UserSelected(index); });
}

void HeadlessUser::ClickTick(ListBox& list, int index) {
  ActOn(list, [&] { list.UserToggledTick(index); });
}

void HeadlessUser::DoubleClick(ListBox& list, int index) {
  ActOn(list, [&] {
    list.UserSelected(index);
    list.UserDoubleClicked();
  });
}

void HeadlessUser::Click(TreeView& tree, int node) {
  ClickOn(tree, [&] { tree.UserClicked(node); });
}

void HeadlessUser::Click(ListView& list, int index) { ClickEntry(list, index, MouseButton::Left); }

void HeadlessUser::RightClick(ListView& list, int index) { ClickEntry(list, index, MouseButton::Right); }

void HeadlessUser::DoubleClick(ListView& list, int index) {
  const ControlHost::Hold hold(Reach(list).Portable());
  Click(list, index);
  list.UserDoubleClicked();
}

void HeadlessUser::ClickEntry(ListView& list, int index, MouseButton button) {
  ActOn(list, [&] {
    list.UserMouse(MouseAction::Down, {button, 0, {}});
    list.UserPressedOn(index);
    list.UserMouse(MouseAction::Up, {button, 0, {}});
    list.UserClicked();
  });
}

void HeadlessUser::EndLabelEdit(ListView& list, std::optional<std::wstring> text) {
  if (list.Edited() < 0) Fail("no text of the list is being edited", list.Name());
  list.UserEditedLabel(std::move(text));
}

void HeadlessUser::Choose(MenuItem& item) {
  HeadlessForm* active = forms_.Active();
  if (!active || forms_.Blocked(*active)) Fail("no window takes the menu", item.Name());
  if (!HasItem(active->Portable().Menus(), item)) Fail("menu item is not of the active window", item.Name());
  item.UserChose();
}

void HeadlessUser::CloseWindow(Form& form) { Reach(form).UserClosed(); }

void HeadlessUser::Press(int keyCode, int shift) {
  HeadlessForm* form = forms_.Active();
  if (!form) throw HeadlessFailure("no window has the keyboard");
  const ControlHost::Hold hold(form->Portable());
  if (PressNavigationKey(*form, keyCode, shift)) return;
  Control* control = form->Focused();
  KeyPress press{.keyCode = keyCode, .shift = shift};
  if (!control) {
    form->Portable().UserPressedKey(press);
    return;
  }
  control->UserPressedKey(press);
  if (!press.handled && shift == 0) PressInControl(*control, keyCode);
}

void HeadlessUser::Release(int keyCode, int shift) {
  HeadlessForm* form = forms_.Active();
  if (!form) throw HeadlessFailure("no window has the keyboard");
  KeyPress press{.keyCode = keyCode, .shift = shift};
  if (!form->Focused()) form->Portable().UserReleasedKey(press);
}

void HeadlessUser::Type(std::wstring_view text) {
  for (const wchar_t c : text) {
    auto* box = dynamic_cast<TextBox*>(Focused());
    if (!box || box->ReadOnly()) throw HeadlessFailure("no text box takes what is typed");
    const std::wstring before = replaces_ || box->IsAllSelected() ? std::wstring() : box->Text();
    replaces_ = false;
    box->UserTyped(before + c);
  }
}

void HeadlessUser::PressHotkey(int keyCode, int modifiers) {
  for (const HeadlessHotkey& hotkey : forms_.Hotkeys()) {
    if (!hotkey.holder || hotkey.keyCode != keyCode || hotkey.modifiers != modifiers) continue;
    hotkey.holder->Portable().UserPressedHotkey(modifiers, keyCode);
    return;
  }
}

Control* HeadlessUser::Focused() const {
  const HeadlessForm* form = forms_.Active();
  return form ? form->Focused() : nullptr;
}

HeadlessForm& HeadlessUser::Reach(const Control& control) {
  for (HeadlessForm* form : forms_.StackingOrder()) {
    const auto& controls = form->Portable().Controls();
    if (std::find(controls.begin(), controls.end(), &control) == controls.end()) continue;
    if (forms_.Blocked(*form)) Fail("control is blocked by a modal window", control.Name());
    if (!control.IsShown() || !control.IsUsable()) Fail("control is hidden or disabled", control.Name());
    return *form;
  }
  Fail("control is not on a shown window", control.Name());
}

Form& HeadlessUser::Reach(Form& form) {
  const HeadlessForm* peer = forms_.Find(form);
  if (!peer || !peer->Shown()) Fail("window is not shown", form.Name());
  if (forms_.Blocked(*peer)) Fail("window is blocked by a modal one", form.Name());
  return form;
}

void HeadlessUser::ClickOn(Control& control, const std::function<void()>& act) {
  ActOn(control, [&] {
    control.UserMouse(MouseAction::Down, {MouseButton::Left, 0, {}});
    control.UserMouse(MouseAction::Up, {MouseButton::Left, 0, {}});
    act();
  });
}

// Gives the control the keyboard and acts on it. The handlers on the way may unload the form.
void HeadlessUser::ActOn(Control& control, const std::function<void()>& act) {
  HeadlessForm& form = Reach(control);
  const ControlHost::Hold hold(form.Portable());
  if (forms_.Active() != &form) form.Show(form.Owner());
  if (control.IsTabStop()) form.MoveFocus(&control);
  act();
}

bool HeadlessUser::PressNavigationKey(HeadlessForm& form, int keyCode, int shift) {
  if (form.Portable().UserPressedShortcut({keyCode, shift})) return true;
  if (keyCode == kTab && (shift & ~kShiftDown) == 0) {
    PressTab(form, shift == kShiftDown);
    return true;
  }
  if (shift == kAltDown) return PressMnemonic(form, static_cast<wchar_t>(keyCode));
  if (shift != 0) return false;
  if (keyCode == kEnter) return form.Portable().UserPressedEnter(form.Focused());
  if (keyCode == kEscape) return form.Portable().UserPressedEscape();
  if (keyCode != kF1) return false;
  form.Portable().UserAskedForHelp();
  return true;
}

void HeadlessUser::PressTab(HeadlessForm& form, bool backward) {
  const auto& controls = form.Portable().Controls();
  const auto count = static_cast<std::ptrdiff_t>(controls.size());
  auto here = std::find(controls.begin(), controls.end(), form.Focused()) - controls.begin();
  for (std::ptrdiff_t step = 0; step < count; ++step) {
    here = (here + (backward ? -1 : 1) + count) % count;
    if (!controls[static_cast<std::size_t>(here)]->CanTakeFocus()) continue;
    form.MoveFocus(controls[static_cast<std::size_t>(here)]);
    replaces_ = true;
    return;
  }
}

bool HeadlessUser::PressMnemonic(HeadlessForm& form, wchar_t letter) {
  const auto& controls = form.Portable().Controls();
  for (auto control = controls.begin(); control != controls.end(); ++control) {
    if (!(*control)->IsShown() || MnemonicOf((*control)->CaptionText()) != letter) continue;
    const auto target =
        std::find_if(control, controls.end(), [](const Control* stop) { return stop->IsTabStop(); });
    if (target == controls.end() || !(*target)->CanTakeFocus()) return true;
    form.MoveFocus(*target);
    if (target == control) (*target)->UserPressedMnemonic();
    return true;
  }
  return false;
}

void HeadlessUser::PressInList(ListView& list, int keyCode) {
  int index = list.Index();
  if (keyCode == kUp) index = std::max(0, index - 1);
  if (keyCode == kDown) index = std::min(list.Count() - 1, index + 1);
  if (keyCode == kHome) index = 0;
  if (keyCode == kEnd) index = list.Count() - 1;
  if (index == list.Index() || list.Count() == 0) return;
  list.UserPressedOn(index);
  list.UserClicked();
}

// What a control does with a key that nobody else took.
void HeadlessUser::PressInControl(Control& control, int keyCode) {
  if (auto* button = dynamic_cast<CommandButton*>(&control)) {
    if (keyCode == kSpace) button->UserClicked();
  } else if (auto* link = dynamic_cast<LinkLabel*>(&control)) {
    if (keyCode == kSpace) link->UserClicked();
  } else if (auto* option = dynamic_cast<OptionButton*>(&control)) {
    if (keyCode == kSpace) option->UserClicked();
    if (keyCode == kUp || keyCode == kLeft) option->UserPressedArrow(false);
    if (keyCode == kDown || keyCode == kRight) option->UserPressedArrow(true);
  } else if (auto* box = dynamic_cast<CheckBox*>(&control)) {
    if (keyCode == kSpace) box->UserToggled();
  } else if (auto* text = dynamic_cast<TextBox*>(&control)) {
    if (keyCode != kBackspace || text->ReadOnly() || text->Text().empty()) return;
    text->UserTyped(replaces_ || text->IsAllSelected() ? std::wstring()
                                                       : text->Text().substr(0, text->Text().size() - 1));
    replaces_ = false;
  } else if (auto* picture = dynamic_cast<PictureBox*>(&control)) {
    if (keyCode == kSpace) picture->UserClicked();
  } else if (auto* tabs = dynamic_cast<TabStrip*>(&control)) {
    if (keyCode == kLeft) tabs->UserSelected(tabs->Index() - 1);
    if (keyCode == kRight) tabs->UserSelected(tabs->Index() + 1);
  } else if (auto* choice = dynamic_cast<DropDownList*>(&control)) {
    if (keyCode == kUp) choice->UserSelected(choice->Index() - 1);
    if (keyCode == kDown) choice->UserSelected(choice->Index() + 1);
    if (keyCode == kHome) choice->UserSelected(0);
    if (keyCode == kEnd) choice->UserSelected(choice->Count() - 1);
  } else if (auto* tree = dynamic_cast<TreeView*>(&control)) {
    if (keyCode == kUp && tree->Selected() > 0) tree->UserClicked(tree->Selected() - 1);
    if (keyCode == kDown && tree->Selected() + 1 < tree->Count()) tree->UserClicked(tree->Selected() + 1);
  } else if (auto* view = dynamic_cast<ListView*>(&control)) {
    PressInList(*view, keyCode);
  } else if (auto* list = dynamic_cast<ListBox*>(&control)) {
    if (keyCode == kUp) list->UserSelected(std::max(0, list->Index() - 1));
    if (keyCode == kDown) list->UserSelected(std::min(list->Count() - 1, list->Index() + 1));
    if (keyCode == kHome) list->UserSelected(0);
    if (keyCode == kEnd) list->UserSelected(list->Count() - 1);
    if (keyCode == kSpace && list->Index() >= 0) list->UserToggledTick(list->Index());
  }
}

}  // namespace troth
