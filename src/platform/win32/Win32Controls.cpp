#include "platform/win32/Win32Controls.h"

#include <commctrl.h>

#include "platform/forms/CheckBox.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/Label.h"
#include "platform/forms/LinkLabel.h"
#include "platform/forms/TextBox.h"

namespace troth {

namespace {
constexpr std::size_t kShownCharacters = 4000;
constexpr int kBehindAll = 32767;

// How far a label's caption may stick out of its place, in pixels at 96 DPI: the places are measured for
// narrow letters, and one long label must not shrink the text of the whole form.
constexpr int kStickOut = 4;
}  // namespace

Win32Label::Win32Label(ControlSite& site, Label& label)
    : Win32Control(site, label,
                   {.windowClass = L"STATIC",
                    .style = static_cast<DWORD>(label.Wraps() ? SS_LEFT | SS_NOPREFIX : SS_LEFT),
                    .aroundCaption = {-kStickOut, 0}}),
      label_(label) {}

std::wstring Win32Label::WindowText() const { return label_.Caption(); }

HFONT Win32Label::ChooseFont() {
  const Letters& letters = label_.LettersOf();
  if (!letters.bold && letters.percent == 100) return Site().Font();
  font_ = DeriveFont(Site().Font(), letters.bold, letters.percent);
  return font_.get();
}

// On a ground of its own a label fills its place.
bool Win32Label::HugsCaption() const {
  const Letters& letters = label_.LettersOf();
  return !letters.bold && letters.percent == 100 && !label_.Wraps() && !label_.BackColor();
}

Win32LinkLabel::Win32LinkLabel(ControlSite& site, LinkLabel& link)
    : Win32Control(site, link, {.windowClass = WC_LINK}), link_(link) {}

// An address may hold none of the marks of the system's own notation for links.
std::wstring Win32LinkLabel::WindowText() const { return L"<a>" + link_.Caption() + L"</a>"; }

LRESULT Win32LinkLabel::OnNotify(NMHDR& header) {
  if (header.code == NM_CLICK || header.code == NM_RETURN) link_.UserClicked();
  return 0;
}

Win32CommandButton::Win32CommandButton(ControlSite& site, CommandButton& button)
    : Win32Control(site, button,
                   {.windowClass = L"BUTTON",
                    .style = static_cast<DWORD>(button.IsDefault() ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON),
                    .aroundCaption = {8, 6}}),
      button_(button) {}

void Win32CommandButton::OnCommand(WORD code) {
  if (code == BN_CLICKED) button_.UserClicked();
}

Win32CheckBox::Win32CheckBox(ControlSite& site, CheckBox& box)
    : Win32Control(site, box, {.windowClass = L"BUTTON", .style = BS_CHECKBOX, .aroundCaption = {18, 0}}),
      box_(box) {}

void Win32CheckBox::Open() {
  Win32Control::Open();
  if (box_.Ticked()) Refresh(Aspect::Value);
}

void Win32CheckBox::Refresh(Aspect aspect) {
  if (aspect == Aspect::Value)
    SendMessageW(Window(), BM_SETCHECK, box_.Ticked() ? BST_CHECKED : BST_UNCHECKED, 0);
  else
    Win32Control::Refresh(aspect);
}

void Win32CheckBox::OnCommand(WORD code) {
  if (code == BN_CLICKED) box_.UserToggled();
}

Win32TextBox::Win32TextBox(ControlSite& site, TextBox& box)
    : Win32Control(site, box,
                   {.windowClass = L"EDIT",
                    .style = static_cast<DWORD>(ES_AUTOHSCROLL | (box.ReadOnly() ? ES_READONLY : 0)),
                    .extendedStyle = WS_EX_CLIENTEDGE}),
      box_(box) {}

void Win32TextBox::Open() {
  Win32Control::Open();
  SendMessageW(Window(), EM_SETLIMITTEXT, 0, 0);
  if (!box_.Text().empty()) ShowText();
  if (box_.IsAllSelected()) Refresh(Aspect::Selection);
}

void Win32TextBox::Refresh(Aspect aspect) {
  switch (aspect) {
    case Aspect::Text:
      ShowText();
      break;
    case Aspect::Selection:
      SendMessageW(Window(), EM_SETSEL, box_.IsAllSelected() ? 0 : kBehindAll, kBehindAll);
      SendMessageW(Window(), EM_SCROLLCARET, 0, 0);
      break;
    default:
      Win32Control::Refresh(aspect);
  }
}

void Win32TextBox::OnCommand(WORD code) {
  if (code != EN_CHANGE || showing_) return;
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(Window())) + 1, L'\0');
  const int length = GetWindowTextW(Window(), text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length));
  box_.UserTyped(text + hiddenTail_);
}

// The system's box reports this change too, and cannot hold a character 0: what it shows is not read back.
void Win32TextBox::ShowText() {
  showing_ = true;
  const std::wstring& text = box_.Text();
  const std::size_t shown = std::min(text.size(), kShownCharacters);
  hiddenTail_ = text.substr(shown);
  SetWindowTextW(Window(), text.substr(0, shown).c_str());
  showing_ = false;
}

}  // namespace troth
