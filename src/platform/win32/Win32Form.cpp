#include "platform/win32/Win32Form.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/Timer.h"
#include "platform/win32/FormFont.h"
#include "platform/win32/Win32Choosers.h"
#include "platform/win32/Win32Controls.h"
#include "platform/win32/Win32ListBox.h"

namespace troth {

namespace {

// Private messages keep clear of WM_USER + 0 and + 1, which are DM_GETDEFID and DM_SETDEFID.
constexpr UINT kActivated = WM_APP + 1;
constexpr UINT kShown = WM_APP + 2;

DWORD ExtendedStyleOf(const FormOptions& options) {
  switch (options.border) {
    case BorderStyle::FixedDialog:
      return WS_EX_CONTROLPARENT | WS_EX_DLGMODALFRAME;
    case BorderStyle::FixedTool:
      return WS_EX_CONTROLPARENT | WS_EX_TOOLWINDOW;
    default:
      return WS_EX_CONTROLPARENT;
  }
}

DWORD StyleOf(const FormOptions& options) {
  const DWORD base = WS_OVERLAPPED | WS_CAPTION | WS_CLIPCHILDREN | (options.hasCloseBox ? WS_SYSMENU : 0u);
  return options.border == BorderStyle::FixedSingle ? base | WS_MINIMIZEBOX : base;
}

int ShiftState() {
  const auto down = [](int key) { return (GetKeyState(key) & 0x8000) != 0; };
  return (down(VK_SHIFT) ? kShiftDown : 0) + (down(VK_CONTROL) ? kControlDown : 0) +
         (down(VK_MENU) ? kAltDown : 0);
}

constexpr int kFirstControlId = 100;

// The system's timer has the portable timer's address as its number, so that WM_TIMER finds it. A message
// that is still waiting when the timer goes finds it no more: see Win32Form::Handle.
class Win32Timer final : public TimerPeer {
 public:
  Win32Timer(HWND window, Timer& timer, std::vector<Timer*>& running)
      : window_(window), timer_(timer), running_(running) {
    running_.push_back(&timer_);
    Start();
  }
  ~Win32Timer() override {
    KillTimer(window_, Id());
    std::erase(running_, &timer_);
  }
  void Refresh() override {
    KillTimer(window_, Id());
    Start();
  }

 private:
  void Start() {
    if (timer_.Enabled() && timer_.IntervalMs() > 0)
      SetTimer(window_, Id(), static_cast<UINT>(timer_.IntervalMs()), nullptr);
  }
  UINT_PTR Id() const { return reinterpret_cast<UINT_PTR>(&timer_); }

  HWND window_;
  Timer& timer_;
  std::vector<Timer*>& running_;
};

}  // namespace

// The window is made with its menu and at its size: each change afterwards would go to the screen and back.
Win32Form::Win32Form(Win32Loop& loop, Form& form) : loop_(loop), form_(form), dpi_(GetDpiForSystem()) {
  const FormOptions& options = form.Options();
  const HMENU menu = menu_.Build(form.Menus());
  const RECT outer = OuterRectangle();
  window_ = CreateWindowExW(ExtendedStyleOf(options), WindowClass(), options.caption.c_str(),
                            StyleOf(options), CW_USEDEFAULT, CW_USEDEFAULT, outer.right - outer.left,
                            outer.bottom - outer.top, nullptr, menu, GetModuleHandleW(nullptr), this);
  menu_.Attach(window_);
  // It may have come up on a screen that differs from the first one.
  if (std::exchange(dpi_, GetDpiForWindow(window_)) != dpi_) FitFrame();
  GiveName(window_, options.name);
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
std::unique_ptr<ControlPeer> Win32Form::Create(PictureBox& control) {
  return std::make_unique<Win32PictureBox>(*this, control);
}
std::unique_ptr<ControlPeer> Win32Form::Create(TabStrip& control) {
  return std::make_unique<Win32TabStrip>(*this, control);
}
std::unique_ptr<ControlPeer> Win32Form::Create(TextBox& control) {
  return std::make_unique<Win32TextBox>(*this, control);
}
std::unique_ptr<TimerPeer> Win32Form::Create(Timer& timer) {
  return std::make_unique<Win32Timer>(window_, timer, timers_);
}

void Win32Form::Complete() {
  ChooseFont();
  for (Win32Control* control : controls_) control->Open();
}

void Win32Form::RefreshCaption() { SetWindowTextW(window_, form_.Caption().c_str()); }

void Win32Form::Show(FormPeer* owner) {
  ShowAbove(owner ? static_cast<Win32Form*>(owner)->window_ : nullptr);
}

void Win32Form::ShowAbove(HWND above) {
  if (GetWindow(window_, GW_OWNER) != above)
    SetWindowLongPtrW(window_, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(above));
  if (!lastFocus_) FocusFirst();
  // The tool tips can wait until the form is seen.
  if (!toolTips_) PostMessageW(window_, kShown, 0, 0);
  if (IsIconic(window_)) ShowWindow(window_, SW_RESTORE);
  if (above && !IsWindowVisible(above)) {
    // It is painted when the owner is there.
    SetWindowPos(window_, nullptr, 0, 0, 0, 0,
                 SWP_SHOWWINDOW | SWP_DEFERERASE | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    return;
  }
  ShowWindow(window_, SW_SHOWNORMAL);
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

void Win32Form::RunModal(const std::function<bool()>& done) {
  const LoopWindow* before = loop_.FormOf(GetActiveWindow());
  modal_ = std::make_unique<InputLock>(loop_, this);
  ShowAbove(before && before != this ? before->Window() : nullptr);
  while (!done()) loop_.ServeNext();
}

Rect Win32Form::OuterBounds() const {
  RECT outer;
  GetWindowRect(window_, &outer);
  if (IsIconic(window_)) {
    // A minimised window lies far off the screen; what counts is where it comes back to.
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(window_, &placement);
    outer = placement.rcNormalPosition;
  }
  return {ToTwips(outer.left, dpi_), ToTwips(outer.top, dpi_), ToTwips(outer.right - outer.left, dpi_),
          ToTwips(outer.bottom - outer.top, dpi_)};
}

void Win32Form::MoveTo(Point topLeft) {
  MoveToPixel({ToPixels(topLeft.left, dpi_), ToPixels(topLeft.top, dpi_)});
}

void Win32Form::MoveToPixel(PixelPoint topLeft) {
  RECT outer;
  GetWindowRect(window_, &outer);
  if (outer.left == topLeft.left && outer.top == topLeft.top) return;
  SetWindowPos(window_, nullptr, topLeft.left, topLeft.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

bool Win32Form::RegisterHotkey(std::uint16_t id, int modifiers, int keyCode) {
  return RegisterHotKey(window_, id, static_cast<UINT>(modifiers), static_cast<UINT>(keyCode)) != 0;
}

void Win32Form::UnregisterHotkey(std::uint16_t id) { UnregisterHotKey(window_, id); }

void Win32Form::SetStacking(Stacking stacking) {
  SetWindowPos(window_, stacking == Stacking::TopMost ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

// Keys go to the handler of the control ahead of the system, but Tab stays the system's.
bool Win32Form::TakeKey(const MSG& message) {
  if (message.message != WM_KEYDOWN) return false;
  // A list that has dropped down closes by Enter and Esc itself.
  if (SendMessageW(message.hwnd, CB_GETDROPPEDSTATE, 0, 0)) return false;
  const int shift = ShiftState();
  Win32Control* const control = ControlOf(message.hwnd);
  if (message.wParam == VK_RETURN && shift == 0)
    return form_.UserPressedEnter(control ? &control->Portable() : nullptr);
  if (message.wParam == VK_ESCAPE && shift == 0) return form_.UserPressedEscape();
  if (message.wParam == VK_F1 && shift == 0) {
    form_.UserAskedForHelp();
    return true;
  }
  if (!control || message.wParam == VK_TAB) return false;
  KeyPress press{.keyCode = static_cast<int>(message.wParam), .shift = shift};
  control->Portable().UserPressedKey(press);
  return press.handled;
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

// Where the frame must stand for the client area to have its size at the present DPI. The menu may need more
// than one line, which only the window itself can tell.
RECT Win32Form::OuterRectangle() const {
  const Size client = form_.Options().clientSize;
  RECT outer{0, 0, ToPixels(client.width, dpi_), ToPixels(client.height, dpi_)};
  AdjustWindowRectExForDpi(&outer, StyleOf(form_.Options()), menu_.IsShown(),
                           ExtendedStyleOf(form_.Options()), dpi_);
  return outer;
}

void Win32Form::FitFrame() {
  const RECT outer = OuterRectangle();
  SetWindowPos(window_, nullptr, 0, 0, outer.right - outer.left, outer.bottom - outer.top,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Win32Form::ChooseFont() {
  std::vector<CaptionBox> captions;
  for (const Win32Control* control : controls_) captions.push_back(control->Caption());
  font_ = ChooseFormFont(screen_.get(), dpi_, captions);
}

SIZE Win32Form::SizeOf(const std::wstring& caption) const {
  return CaptionSize(screen_.get(), font_.get(), caption);
}

void Win32Form::AddToolTips() {
  toolTips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP,
                              CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, window_, nullptr,
                              GetModuleHandleW(nullptr), nullptr);
  SendMessageW(toolTips_, TTM_SETMAXTIPWIDTH, 0, ToPixels(6000, dpi_));
  for (const Win32Control* control : controls_)
    if (!control->Portable().ToolTip().empty()) SendToolTip(TTM_ADDTOOLW, *control);
}

void Win32Form::SendToolTip(UINT message, const Win32Control& control) {
  std::wstring text = control.Portable().ToolTip();
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V1_SIZE;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = window_;
  tool.uId = reinterpret_cast<UINT_PTR>(control.Window());
  tool.lpszText = text.data();
  SendMessageW(toolTips_, message, 0, reinterpret_cast<LPARAM>(&tool));
}

// A tool that is added is taken from the control as it is then.
void Win32Form::RefreshToolTip(const Win32Control& control) {
  if (!toolTips_) return;
  SendToolTip(TTM_DELTOOLW, control);
  if (!control.Portable().ToolTip().empty()) SendToolTip(TTM_ADDTOOLW, control);
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
  // The handlers run below here and may take the form down: nothing of it is touched behind this call.
  return form->Handle(message, wParam, lParam);
}

LRESULT Win32Form::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == Win32Menu::QuestionMessage()) return menu_.Answer(window_, wParam, lParam);
  switch (message) {
    case WM_COMMAND:
      return OnCommand(wParam, lParam);
    case WM_NOTIFY:
      return OnNotify(lParam);
    case WM_TIMER:
      return OnTimer(wParam);
    case WM_DRAWITEM:
      return OnDrawItem(lParam);
    case WM_HOTKEY:
      form_.UserPressedHotkey(LOWORD(lParam), HIWORD(lParam));
      return 0;
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
      if (!toolTips_) AddToolTips();
      return 0;
    case WM_CLOSE:
      form_.UserClosed();
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
  const auto timer = std::find(timers_.begin(), timers_.end(), reinterpret_cast<Timer*>(wParam));
  if (timer != timers_.end()) (*timer)->IntervalPassed();
  return 0;
}

LRESULT Win32Form::OnControlColor(UINT message, WPARAM wParam, LPARAM lParam) {
  const Win32Control* control = ControlOf(reinterpret_cast<HWND>(lParam));
  const HBRUSH brush = control ? control->Paint(reinterpret_cast<HDC>(wParam)) : nullptr;
  return brush ? reinterpret_cast<LRESULT>(brush) : DefWindowProcW(window_, message, wParam, lParam);
}

// The keyboard comes back to the control that had it. The handler runs behind the activation, not inside it,
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

LRESULT Win32Form::OnDpiChanged(WPARAM wParam, LPARAM lParam) {
  dpi_ = LOWORD(wParam);
  const auto* suggested = reinterpret_cast<const RECT*>(lParam);
  const RECT outer = OuterRectangle();
  SetWindowPos(window_, nullptr, suggested->left, suggested->top, outer.right - outer.left,
               outer.bottom - outer.top, SWP_NOZORDER | SWP_NOACTIVATE);
  ChooseFont();
  for (Win32Control* control : controls_) control->FitToForm();
  return 0;
}

// How the system carries out the mnemonic of a label: first to the label, then on to what follows it.
LRESULT Win32Form::OnNextControl(WPARAM wParam, LPARAM lParam) {
  const bool isWindow = LOWORD(lParam) != 0;
  SetFocus(isWindow ? reinterpret_cast<HWND>(wParam) : GetNextDlgTabItem(window_, GetFocus(), wParam != 0));
  return 0;
}

LRESULT Win32Form::AnswerDefaultButton() const {
  const CommandButton* button = form_.DefaultButton();
  for (const Win32Control* control : controls_)
    if (&control->Portable() == button) return MAKELRESULT(GetDlgCtrlID(control->Window()), DC_HASDEFID);
  return 0;
}

}  // namespace troth
