#include "platform/win32/Win32Controls.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "platform/forms/CheckBox.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/DropDownList.h"
#include "platform/forms/LinkLabel.h"
#include "platform/forms/OptionButton.h"
#include "platform/forms/TextBox.h"

namespace troth {

namespace {
constexpr std::size_t kShownCharacters = 4000;
constexpr std::size_t kShownCaption = 200;
constexpr int kAfterAll = 32767;

// How far a label's caption may stick out of its place, in pixels at 96 DPI: the places are measured for
// narrow letters, and one long label must not shrink the text of the whole form.
constexpr int kStickOut = 4;
}  // namespace

Win32Label::Win32Label(ControlSite& site, Label& label)
    : Win32Control(site, label,
                   {.windowClass = L"STATIC",
                    .style = static_cast<DWORD>(SS_OWNERDRAW | SS_NOTIFY | (label.Wraps() ? SS_NOPREFIX : 0)),
                    .aroundCaption = {-kStickOut, 0}}),
      label_(label) {}

void Win32Label::Refresh(Aspect aspect) {
  Win32Control::Refresh(aspect);
  if (aspect == Aspect::Caption) InvalidateRect(Window(), nullptr, FALSE);
}

// The system reports a click on such a window when the button goes down; it counts when the button comes up.
bool Win32Label::OnMessage(UINT message) {
  if (message == WM_LBUTTONUP && std::exchange(pressed_, false)) label_.UserClicked();
  if (message == WM_LBUTTONDOWN) pressed_ = true;
  return false;
}

HFONT Win32Label::ChooseFont() {
  const Letters& letters = label_.LettersOf();
  if (label_.Font() || (!letters.bold && letters.percent == 100)) return Win32Control::ChooseFont();
  font_ = DeriveFont(Site().Font(), letters.bold, letters.percent);
  return font_.get();
}

void Win32Label::Draw(const DRAWITEMSTRUCT& drawing) {
  RECT place;
  GetClientRect(Window(), &place);
  FillRect(drawing.hDC, &place, OwnGround() ? OwnGround() : Site().Ground());
  SetBkMode(drawing.hDC, TRANSPARENT);
  SetTextColor(drawing.hDC, label_.ShownForeColor().value_or(GetSysColor(COLOR_BTNTEXT)));
  const HGDIOBJ before =
      SelectObject(drawing.hDC, reinterpret_cast<HFONT>(SendMessageW(Window(), WM_GETFONT, 0, 0)));
  const std::wstring& text = label_.Caption();
  const auto draw = [&](UINT format) {
    return DrawTextW(drawing.hDC, text.c_str(), static_cast<int>(text.size()), &place, format);
  };
  if (label_.Wraps()) {
    draw(DT_LEFT | DT_WORDBREAK | DT_NOPREFIX);
  } else if (label_.AlignmentOf() == Alignment::Centre) {
    draw(DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOCLIP);
  } else {
    RECT measured{};
    place.top = TopOfLine(DrawTextW(drawing.hDC, text.c_str(), static_cast<int>(text.size()), &measured,
                                    DT_CALCRECT | DT_SINGLELINE));
    draw(DT_LEFT | DT_SINGLELINE | DT_NOCLIP);
  }
  SelectObject(drawing.hDC, before);
}

// A caption beside a box stands on one line with the box's text.
int Win32Label::TopOfLine(int height) const {
  const RECT place = PlaceInPixels();
  for (const Win32Control* other : Site().Neighbours()) {
    const Control& box = other->Portable();
    if (!dynamic_cast<const TextBox*>(&box) && !dynamic_cast<const DropDownList*>(&box)) continue;
    const RECT beside = other->PlaceInPixels();
    const bool isOneLine = beside.bottom - beside.top < 2 * (place.bottom - place.top);
    const bool sharesLine =
        beside.top < place.top + (place.bottom - place.top) / 2 && beside.bottom > place.top + height;
    if (!isOneLine || !sharesLine || beside.left < place.left) continue;
    const int centred = static_cast<int>(beside.top + (beside.bottom - beside.top - height) / 2 - place.top);
    return std::clamp(centred, 0, std::max(0, static_cast<int>(place.bottom - place.top) - height));
  }
  return 0;
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

// A button has space for no more, and the system would take seconds to lay out the lines of a very long text.
std::wstring Win32CommandButton::WindowText() const {
  return std::wstring(button_.CaptionText().substr(0, kShownCaption));
}

void Win32CommandButton::OnCommand(WORD code) {
  if (code == BN_CLICKED) button_.UserClicked();
}

bool Win32CommandButton::OnMessage(UINT message) {
  return message == WM_LBUTTONDBLCLK && button_.IgnoresDoubleClick();
}

Win32CheckBox::Win32CheckBox(ControlSite& site, CheckBox& box)
    : Win32Control(
          site, box,
          {.windowClass = L"BUTTON",
           .style = static_cast<DWORD>(BS_CHECKBOX | (box.WrapsCaption() ? BS_MULTILINE | BS_TOP : 0)),
           .aroundCaption = {18, 0}}),
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

Win32OptionButton::Win32OptionButton(ControlSite& site, OptionButton& button)
    : Win32Control(site, button,
                   {.windowClass = L"BUTTON", .style = BS_RADIOBUTTON, .aroundCaption = {18, 0}}),
      button_(button) {}

void Win32OptionButton::Open() {
  Win32Control::Open();
  if (button_.Selected()) Refresh(Aspect::Value);
}

// The stop for Tab moves with the selection.
void Win32OptionButton::Refresh(Aspect aspect) {
  Win32Control::Refresh(aspect);
  if (aspect != Aspect::Value) return;
  SendMessageW(Window(), BM_SETCHECK, button_.Selected() ? BST_CHECKED : BST_UNCHECKED, 0);
  const LONG style = GetWindowLongW(Window(), GWL_STYLE) & ~WS_TABSTOP;
  SetWindowLongW(Window(), GWL_STYLE, style | (button_.IsTabStop() ? WS_TABSTOP : 0));
}

void Win32OptionButton::OnCommand(WORD code) {
  if (code == BN_CLICKED) button_.UserClicked();
}

bool Win32OptionButton::TakeKey(int keyCode, int shift) {
  const bool forward = keyCode == VK_DOWN || keyCode == VK_RIGHT;
  if (shift != 0 || (!forward && keyCode != VK_UP && keyCode != VK_LEFT)) return false;
  button_.UserPressedArrow(forward);
  return true;
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
      SendMessageW(Window(), EM_SETSEL, box_.IsAllSelected() ? 0 : kAfterAll, kAfterAll);
      SendMessageW(Window(), EM_SCROLLCARET, 0, 0);
      break;
    default:
      Win32Control::Refresh(aspect);
  }
}

// The system draws the text of a disabled box grey on grey, whatever its colours are.
bool Win32TextBox::OnMessage(UINT message) {
  if (message != WM_PAINT || !box_.ShownForeColor() || IsWindowEnabled(Window())) return false;
  PaintDisabled();
  return true;
}

void Win32TextBox::PaintDisabled() {
  PAINTSTRUCT painting;
  const HDC surface = BeginPaint(Window(), &painting);
  RECT place;
  GetClientRect(Window(), &place);
  FillRect(surface, &place, OwnGround() ? OwnGround() : GetSysColorBrush(COLOR_WINDOW));
  SendMessageW(Window(), EM_GETRECT, 0, reinterpret_cast<LPARAM>(&place));
  SetBkMode(surface, TRANSPARENT);
  SetTextColor(surface, *box_.ShownForeColor());
  const HGDIOBJ before =
      SelectObject(surface, reinterpret_cast<HFONT>(SendMessageW(Window(), WM_GETFONT, 0, 0)));
  const std::wstring shown = box_.Text().substr(0, kShownCharacters);
  DrawTextW(surface, shown.c_str(), static_cast<int>(shown.size()), &place,
            DT_LEFT | DT_SINGLELINE | DT_NOPREFIX);
  SelectObject(surface, before);
  EndPaint(Window(), &painting);
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
