// One form as a window of the system: frame, DPI, font, focus, menu, and the messages to its controls.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "platform/forms/FormBackend.h"
#include "platform/win32/Win32Control.h"
#include "platform/win32/Win32Loop.h"
#include "platform/win32/Win32Menu.h"
#include "platform/win32/Win32ToolTips.h"

namespace troth {

class Win32Form final : public FormPeer, public LoopWindow, public ControlSite {
 public:
  Win32Form(Win32Loop& loop, Form& form);
  ~Win32Form() override;

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
  void Complete() override;
  void RefreshCaption() override;
  void RefreshBorder() override;
  void RefreshBackColor() override;
  Size ClientSize() const override;
  Size FromPixels(PixelSize size) const override;
  void SetOuterSize(Size size) override;
  std::uint32_t StyleBits() const override;
  void SetStyleBits(std::uint32_t bits) override;
  void StartDrag() override;
  void Repaint() override;
  void PopupMenu(MenuItem& menu) override;
  void RefreshMenu(const MenuItem& item) override { menu_.Refresh(item); }
  void Show(FormPeer* owner) override;
  void Hide() override;
  void RunModal(const std::function<bool()>& done) override;
  Rect OuterBounds() const override;
  void MoveTo(Point topLeft) override;
  bool IsMinimised() const override { return IsIconic(window_) != 0; }
  void SetStacking(Stacking stacking) override;
  bool RegisterHotkey(std::uint16_t id, int modifiers, int keyCode) override;
  void UnregisterHotkey(std::uint16_t id) override;

 private:
  HWND Window() const override { return window_; }
  const Form& Portable() const override { return form_; }
  UINT Dpi() const override { return dpi_; }
  HFONT Font() const override { return font_.get(); }
  ControlHost& Host() const override;
  const std::vector<Win32Control*>& Neighbours() const override { return controls_; }
  void PlacesChanged() override;
  bool TakeKey(const MSG& message) override;
  HBRUSH Ground() const override;
  std::optional<Color> GroundColor() const override;
  void RefreshToolTip(const Win32Control& control) override { toolTips_.Refresh(control); }
  void FocusMoved() override;
  int PopupsShown() const override { return popupsShown_; }
  int AddControl(Win32Control& control) override;
  void GiveFocus(HWND control) override;
  HWND FocusedControl() const override;
  void RemoveControl(Win32Control& control) override;

  // Private messages keep clear of WM_USER + 0 and + 1, which are DM_GETDEFID and DM_SETDEFID.
  static constexpr UINT kActivated = WM_APP + 1;
  static constexpr UINT kShown = WM_APP + 2;
  static constexpr UINT kPlacesChanged = WM_APP + 3;
  static constexpr UINT kSessionWaits = WM_APP + 4;
  static constexpr UINT kFocusSettled = WM_APP + 5;

  static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  static const wchar_t* WindowClass();
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
  bool HandleMouse(UINT message, WPARAM wParam, LPARAM lParam);
  bool TakeFormKey(const MSG& message);
  LRESULT OnEraseGround(WPARAM wParam);
  LRESULT OnCommand(WPARAM wParam, LPARAM lParam);
  LRESULT OnNotify(LPARAM lParam);
  LRESULT OnDrawItem(LPARAM lParam);
  LRESULT OnTimer(WPARAM wParam);
  LRESULT OnControlColor(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT OnDropFiles(WPARAM wParam);
  LRESULT OnHotkey(LPARAM lParam);
  void WatchHeldHotkey();
  UINT_PTR HeldHotkeyTimer() const { return reinterpret_cast<UINT_PTR>(&heldHotkey_); }
  LRESULT OnQueryEndSession();
  void OnSessionWaits();
  void OnEndSession(bool ends);
  LRESULT OnActivate(WPARAM wParam, LPARAM lParam);
  LRESULT OnDpiChanged(WPARAM wParam, LPARAM lParam);
  LRESULT OnNextControl(WPARAM wParam, LPARAM lParam);
  LRESULT AnswerDefaultButton() const;
  const Control* ButtonForEnter() const;
  void MarkDefaultButton();
  Win32Control* ControlOf(HWND window) const;
  RECT OuterRectangle() const;
  RECT RestoredPlace() const;
  POINT PopupPlace() const;
  void ShowAbove(HWND owner);
  void FitFrame();
  void FitToScale(POINT place);
  void OnLookChanged(UINT message, WPARAM wParam, LPARAM lParam);
  void ChooseFont();
  void AddToolTips();
  void FocusFirst();

  Win32Loop& loop_;
  Form& form_;
  HWND window_ = nullptr;
  int heldHotkey_ = 0;  // the key of the last hotkey, until it is up
  UINT monitorDpi_;
  UINT dpi_;  // of the layout: more than the monitor's where the user has enlarged the system's text
  // The screen, for measuring: a surface of the window would have to be asked for each time.
  UniqueSurface screen_{CreateICW(L"DISPLAY", nullptr, nullptr, nullptr)};
  UniqueFont font_;
  Win32ToolTips toolTips_;
  UniqueBrush ground_;
  std::optional<Size> outerSize_;  // nothing while it follows from the size of the client area
  int popupsShown_ = 0;
  bool placesChanged_ = false;
  bool pressed_ = false;  // the left button went down on the form's own ground
  Win32Menu menu_;
  std::vector<Win32Control*> controls_;
  std::vector<Timer*> timers_;
  HWND lastFocus_ = nullptr;
  std::unique_ptr<InputLock> modal_;
};

}  // namespace troth
