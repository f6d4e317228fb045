#include "platform/win32/Win32Form.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/OptionButton.h"
#include "platform/forms/TextBox.h"
#include "platform/forms/Timer.h"
#include "platform/win32/FormFont.h"
#include "platform/win32/StepDown.h"
#include "platform/win32/Win32Canvas.h"
#include "platform/win32/Win32Choosers.h"
#include "platform/win32/Win32Controls.h"
#include "platform/win32/Win32FormStyle.h"
#include "platform/win32/Win32ListBox.h"
#include "platform/win32/Win32Mouse.h"
#include "platform/win32/Win32TextLines.h"
#include "platform/win32/Win32Timer.h"
#include "platform/win32/Win32Views.h"

namespace troth {

namespace {

constexpr int kFirstControlId = 100;

}  // namespace

// The window is made with its menu and at its size: each change afterwards would go to the screen and back.
Win32Form::Win32Form(Win32Loop& loop, Form& form)
    : loop_(loop), form_(form), monitorDpi_(GetDpiForSystem()), dpi_(loop.LayoutDpi(monitorDpi_)) {
  const FormOptions& options = form.Options();
  const HMENU menu = menu_.Build(form.Menus());
  const RECT outer = OuterRectangle();
  const DWORD files = form.OnFileDropped ? WS_EX_ACCEPTFILES : 0;
  window_ = CreateWindowExW(ExtendedStyleOf(options) | files, WindowClass(), options.caption.c_str(),
                            StyleOf(options), CW_USEDEFAULT, CW_USEDEFAULT, outer.right - outer.left,
                            outer.bottom - outer.top, nullptr, menu, GetModuleHandleW(nullptr), this);
  menu_.Attach(window_);
  // It may have come up on a screen that differs from the first one.
  if (std::exchange(monitorDpi_, GetDpiForWindow(window_)) != monitorDpi_) {
    dpi_ = loop_.LayoutDpi(monitorDpi_);
    FitFrame();
  }
  GiveName(window_, options.name);
  RefreshBackColor();
  loop_.Add(*this);
}

Win32Form::~Win32Form() {
  modal_.reset();
  loop_.Remove(*this);
  // What it owned would be destroyed with it.
  for (const LoopWindow* other : loop_.Windows())
    if (GetWindow(other->Window(), GW_OWNER) == window_)
      SetWindowLongPtrW(other->Window(), GWLP_HWNDPARENT, 0);
  ShowWindow(window_, SW_HIDE);
  SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  ForgetName(window_);
  SetMenu(window_, nullptr);
  loop_.Bury(window_);
}

std::unique_ptr<ControlPeer> Win32Form::Create(Canvas& control) {
  return std::make_unique<Win32Canvas>(*this, control);
}
std::unique_ptr<ControlPeer> Win32Form::Create(CheckBox& control) {
  return std::make_unique<Win32CheckBox>(*this, control);
}
std::unique_ptr<ControlPeer> Win32Form::Create(CommandButton& control) {
  return std::make_unique<Win32CommandButton>(*this, control);
}
std::unique_ptr<ControlPeer> Win32Form::Create(Label& control) {
  return std::make_unique<Win32Label>(*this, control);
}
std::unique_ptr<ControlPeer> Win32Form::Create(LinkLabel& control) {
  return std::make_unique<Win32LinkLabel>(*this, control);
}
std::unique_ptr<ControlPeer> Win32Form::Create(ListBox& control) {
  return std::make_unique<Win32ListBox>(*this, control);
}
std::unique_ptr<ControlPeer> Win32Form::Create(DropDownList& control) {
  return std::make_unique<Win32DropDownList>(*this, control);
}
std::unique_ptr<ControlPeer> Win32Form::Create(Frame& control) {
  return std::make_unique<Win32Frame>(*this, control);
}
std::unique_ptr<ControlPeer> Win32Form::Create(OptionButton& control) {
  return std::make_unique<Win32OptionButton>(*this, control);
}
std::unique_ptr<ControlPeer> Win32Form::Create(PictureBox& control) {
  return std::make_unique<Win32PictureBox>(*this, control);
}
std::unique_ptr<ControlPeer> Win32Form::Create(TabStrip& control) {
  return std::make_unique<Win32TabStrip>(*this, control);
}
std::unique_ptr<ControlPeer> Win32Form::Create(TextBox& control) {
  if (control.IsMultiLine()) return std::make_unique<Win32TextLines>(*this, control);
  return std::make_unique<Win32TextBox>(*this, control);
}
std::unique_ptr<ControlPeer> Win32Form::Create(ListView& control) {
  return std::make_unique<Win32ListView>(*this, control);
}
std::unique_ptr<ControlPeer> Win32Form::Create(StatusBar& control) {
  return std::make_unique<Win32StatusBar>(*this, control);
}
std::unique_ptr<ControlPeer> Win32Form::Create(TreeView& control) {
  return std::make_unique<Win32TreeView>(*this, control);
}
std::unique_ptr<TimerPeer> Win32Form::Create(Timer& timer) {
  return std::make_unique<Win32Timer>(window_, timer, timers_);
}

void Win32Form::Complete() {
  ChooseFont();
  for (Win32Control* control : controls_) control->Open();
  for (Win32Control* control : controls_) control->YieldOverlaps();
}

// Several controls usually move together: one look at all of them afterwards is enough.
void Win32Form::PlacesChanged() {
  if (std::exchange(placesChanged_, true)) return;
  PostMessageW(window_, kPlacesChanged, 0, 0);
}

void Win32Form::RefreshCaption() { SetWindowTextW(window_, form_.Caption().c_str()); }

void Win32Form::Show(FormPeer* owner) {
  // A modal form may be up and have locked it.
  EnableWindow(window_, TRUE);
  ShowAbove(owner ? static_cast<Win32Form*>(owner)->window_ : nullptr);
}

void Win32Form::ShowAbove(HWND above) {
  if (GetWindow(window_, GW_OWNER) != above)
    SetWindowLongPtrW(window_, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(above));
  if (!lastFocus_) FocusFirst();
  // The tool tips can wait until the form is seen.
  if (!toolTips_.Exists()) PostMessageW(window_, kShown, 0, 0);
  if (IsIconic(window_)) ShowWindow(window_, SW_RESTORE);
  if (above && !IsWindowVisible(above)) {
    // It is painted when the owner is there.
    SetWindowPos(window_, nullptr, 0, 0, 0, 0,
                 SWP_SHOWWINDOW | SWP_DEFERERASE | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    return;
  }
  ShowWindow(window_, SW_SHOWNORMAL);
  // A form whose owner is topmost may come up below it otherwise.
  if (above && IsTopMost(above) && !IsTopMost(window_))
    SetWindowPos(window_, HWND_TOPMOST, 0, 0, 0, 0, kStackingOnly);
  BringWindowToTop(window_);
  SetForegroundWindow(window_);
}

// The input goes back before the window does, or the system would hand it to another program.
void Win32Form::Hide() {
  const HWND owner = reinterpret_cast<HWND>(GetWindowLongPtrW(window_, GWLP_HWNDPARENT));
  const bool wasModal = modal_ != nullptr;
  modal_.reset();
  if (wasModal && owner && GetActiveWindow() == window_) SetActiveWindow(owner);
  ShowWindow(window_, SW_HIDE);
  // A hidden window that is still owned drags its owner along in the stacking order when a late message moves
  // it.
  SetWindowLongPtrW(window_, GWLP_HWNDPARENT, 0);
}

// A form over a topmost owner comes up topmost itself, in front of all others.
void Win32Form::RunModal(const std::function<bool()>& done) {
  const LoopWindow* before = loop_.FormOf(GetActiveWindow());
  const HWND above = before && before != this ? before->Window() : nullptr;
  modal_ = std::make_unique<InputLock>(loop_, this);
  std::optional<StepDown> stepDown;
  if (!IsTopMost(window_) && !(above && IsTopMost(above))) stepDown.emplace(loop_);
  ShowAbove(above);
  while (!done()) loop_.ServeNext();
}

// The system takes the forms that this one owns out of the topmost band with it, and Wine leaves them behind
// this one on the screen. They go back to the front; Wine passes only a change of its own order on.
void Win32Form::SetStacking(Stacking stacking) {
  std::vector<HWND> topMost;
  for (const LoopWindow* other : loop_.Windows())
    if (GetWindow(other->Window(), GW_OWNER) == window_ && IsTopMost(other->Window()))
      topMost.push_back(other->Window());
  SetWindowPos(window_, stacking == Stacking::TopMost ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
               kStackingOnly);
  for (const HWND owned : topMost)
    for (const HWND band : {HWND_NOTOPMOST, HWND_TOPMOST})
      SetWindowPos(owned, band, 0, 0, 0, 0, kStackingOnly);
}

int Win32Form::AddControl(Win32Control& control) {
  controls_.push_back(&control);
  return kFirstControlId + static_cast<int>(controls_.size());
}

void Win32Form::RemoveControl(Win32Control& control) { std::erase(controls_, &control); }

Win32Control* Win32Form::ControlOf(HWND window) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(), [window](const Win32Control* control) {
    return control->Window() == window;
  });
  return found == controls_.end() ? nullptr : *found;
}

void Win32Form::ChooseFont() {
  std::vector<CaptionBox> captions;
  for (const Win32Control* control : controls_) captions.push_back(control->Caption());
  font_ = ChooseFormFont(screen_.get(), monitorDpi_, dpi_, captions);
}

void Win32Form::AddToolTips() {
  toolTips_.Create(window_, dpi_);
  for (const Win32Control* control : controls_)
    if (!control->ToolTipText().empty()) toolTips_.Refresh(*control);
}

void Win32Form::GiveFocus(HWND control) {
  lastFocus_ = control;
  if (GetActiveWindow() == window_) SetFocus(control ? control : window_);
}

HWND Win32Form::FocusedControl() const { return GetActiveWindow() == window_ ? GetFocus() : lastFocus_; }

void Win32Form::FocusFirst() {
  for (const Win32Control* control : controls_) {
    if (!control->Portable().CanTakeFocus()) continue;
    lastFocus_ = control->Window();
    return;
  }
}

const wchar_t* Win32Form::WindowClass() {
  static const ATOM registered = [] {
    WNDCLASSEXW form{};
    form.cbSize = sizeof form;
    form.style = CS_DBLCLKS;
    form.lpfnWndProc = &Win32Form::WindowProc;
    form.hInstance = GetModuleHandleW(nullptr);
    // The program's icon is the resource 1 of the executable; a test binary has none.
    form.hIcon = LoadIconW(form.hInstance, MAKEINTRESOURCEW(1));
    form.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    form.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    form.lpszClassName = L"TrothlineForm";
    return RegisterClassExW(&form);
  }();
  return MAKEINTATOM(registered);
}

LRESULT CALLBACK Win32Form::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    auto* created = static_cast<Win32Form*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
    created->window_ = window;
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
  }
  auto* form = reinterpret_cast<Win32Form*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (!form) return DefWindowProcW(window, message, wParam, lParam);
  // The handlers run inside this call and may take the form down: nothing of it is touched afterwards.
  return form->Handle(message, wParam, lParam);
}

LRESULT Win32Form::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == Win32Menu::QuestionMessage()) return menu_.Answer(window_, wParam, lParam);
  if (HandleMouse(message, wParam, lParam)) return 0;
  switch (message) {
    case WM_COMMAND:
      return OnCommand(wParam, lParam);
    case WM_ERASEBKGND:
      return OnEraseGround(wParam);
    case WM_NOTIFY:
      return OnNotify(lParam);
    case WM_TIMER:
      return OnTimer(wParam);
    case WM_DRAWITEM:
      return OnDrawItem(lParam);
    case WM_HOTKEY:
      return OnHotkey(lParam);
    case WM_DROPFILES:
      return OnDropFiles(wParam);
    case WM_CTLCOLORBTN:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC:
      return OnControlColor(message, wParam, lParam);
    case WM_ACTIVATE:
      return OnActivate(wParam, lParam);
    case WM_SETFOCUS:
      if (lastFocus_) SetFocus(lastFocus_);
      return 0;
    case kActivated:
      form_.UserActivated();
      return 0;
    case kShown:
      if (!toolTips_.Exists()) AddToolTips();
      // Wine paints the borders of some boxes before it knows which parts of its place a caption leaves to
      // them.
      RedrawWindow(window_, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN);
      return 0;
    case kPlacesChanged:
      placesChanged_ = false;
      for (Win32Control* control : controls_) control->YieldOverlaps();
      // A caption stands on one line with the box beside it, which may have moved after the caption.
      RedrawWindow(window_, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN);
      return 0;
    case kFocusSettled:
      MarkDefaultButton();
      return 0;
    case WM_GETMINMAXINFO:
      // The system would not let a window be narrower than a title bar with all its buttons.
      reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {1, 1};
      return 0;
    case WM_CLOSE:
      form_.UserClosed();
      return 0;
    case WM_QUERYENDSESSION:
      return OnQueryEndSession();
    case WM_ENDSESSION:
      OnEndSession(wParam != 0);
      return 0;
    case kSessionWaits:
      OnSessionWaits();
      return 0;
    case WM_SYSCOLORCHANGE:
    case WM_SETTINGCHANGE:
      OnLookChanged(message, wParam, lParam);
      return 0;
    case WM_DPICHANGED:
      return OnDpiChanged(wParam, lParam);
    case WM_NEXTDLGCTL:
      return OnNextControl(wParam, lParam);
    case DM_GETDEFID:
      return AnswerDefaultButton();
    default:
      return DefWindowProcW(window_, message, wParam, lParam);
  }
}

LRESULT Win32Form::OnCommand(WPARAM wParam, LPARAM lParam) {
  if (lParam == 0) {
    if (MenuItem* item = menu_.ItemOf(LOWORD(wParam))) item->UserChose();
    return 0;
  }
  if (Win32Control* control = ControlOf(reinterpret_cast<HWND>(lParam))) control->OnCommand(HIWORD(wParam));
  return 0;
}

LRESULT Win32Form::OnNotify(LPARAM lParam) {
  auto* header = reinterpret_cast<NMHDR*>(lParam);
  Win32Control* control = ControlOf(header->hwndFrom);
  return control ? control->OnNotify(*header) : 0;
}

LRESULT Win32Form::OnDrawItem(LPARAM lParam) {
  const auto& drawing = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
  if (Win32Control* control = ControlOf(drawing.hwndItem)) control->Draw(drawing);
  return TRUE;
}

LRESULT Win32Form::OnTimer(WPARAM wParam) {
  if (wParam == HeldHotkeyTimer()) WatchHeldHotkey();
  const auto timer = std::find(timers_.begin(), timers_.end(), reinterpret_cast<Timer*>(wParam));
  if (timer != timers_.end()) (*timer)->IntervalPassed();
  return 0;
}

LRESULT Win32Form::OnControlColor(UINT message, WPARAM wParam, LPARAM lParam) {
  const Win32Control* control = ControlOf(reinterpret_cast<HWND>(lParam));
  const HBRUSH brush = control ? control->Paint(reinterpret_cast<HDC>(wParam)) : nullptr;
  return brush ? reinterpret_cast<LRESULT>(brush) : DefWindowProcW(window_, message, wParam, lParam);
}

// The keyboard comes back to the control that had it. The handler runs after the activation, not inside it,
// where a window that it shows would fight for the foreground.
LRESULT Win32Form::OnActivate(WPARAM wParam, LPARAM lParam) {
  if (LOWORD(wParam) == WA_INACTIVE) {
    const HWND focus = GetFocus();
    if (focus && IsChild(window_, focus)) lastFocus_ = focus;
    return 0;
  }
  PostMessageW(window_, kActivated, 0, 0);
  return DefWindowProcW(window_, WM_ACTIVATE, wParam, lParam);
}

// How the system carries out the mnemonic of a label: first to the label, then on to what follows it.
LRESULT Win32Form::OnNextControl(WPARAM wParam, LPARAM lParam) {
  const bool isWindow = LOWORD(lParam) != 0;
  SetFocus(isWindow ? reinterpret_cast<HWND>(wParam) : GetNextDlgTabItem(window_, GetFocus(), wParam != 0));
  return 0;
}

}  // namespace troth
