// What all controls of the real desktop have in common: a window of the system, its place, font and colours,
// and the way of the focus events. The form makes them first and opens their windows when it knows them all:
// only then is its font chosen, and each window is made right away in the place and the letters that it
// keeps.
#pragma once

#include <optional>

#include "platform/forms/Control.h"
#include "platform/win32/FormFont.h"
#include "platform/win32/Win32.h"

namespace troth {

class Win32Control;

// What a control needs of the form that it stands on.
class ControlSite {
 public:
  virtual HWND Window() const = 0;
  virtual UINT Dpi() const = 0;
  virtual HFONT Font() const = 0;
  // The size of a caption in the form's font.
  virtual SIZE SizeOf(const std::wstring& caption) const = 0;
  // The keyboard, as far as the form has it: a form that is not active remembers it for its return.
  virtual void GiveFocus(HWND control) = 0;
  virtual HWND FocusedControl() const = 0;
  virtual void RefreshToolTip(const Win32Control& control) = 0;
  // Gives the control the number of its window.
  virtual int AddControl(Win32Control& control) = 0;
  virtual void RemoveControl(Win32Control& control) = 0;

 protected:
  ~ControlSite() = default;
};

class Win32Control : public ControlPeer {
 public:
  ~Win32Control() override;

  void Refresh(Aspect aspect) override;
  void TakeFocus() override;

  HWND Window() const { return window_; }
  Control& Portable() const { return control_; }

  // Makes the window. A derived control puts in what it shows, behind this.
  virtual void Open();

  // Takes the form's font and the place at its DPI, when one of them or the caption has changed.
  virtual void FitToForm();

  // The caption and the room for it, for the choice of the form's font.
  CaptionBox Caption() const;

  // A notification of the control's window.
  virtual void OnCommand(WORD code) { static_cast<void>(code); }
  virtual LRESULT OnNotify(NMHDR& header) {
    static_cast<void>(header);
    return 0;
  }

  // For a control that draws itself.
  virtual void Draw(const DRAWITEMSTRUCT& drawing) { static_cast<void>(drawing); }

  // Sets the control's own colours into the surface; null if it has none.
  HBRUSH Paint(HDC surface) const;

 protected:
  struct Look {
    const wchar_t* windowClass;
    DWORD style = 0;
    DWORD extendedStyle = 0;
    Size aroundCaption = {};  // what stands beside the caption, and the border of the box, at 96 DPI
  };
  Win32Control(ControlSite& site, Control& control, const Look& look);

  ControlSite& Site() const { return site_; }

  // What the window has for its text.
  virtual std::wstring WindowText() const { return std::wstring(control_.CaptionText()); }

  // The form's font, or one of the control's own that is derived from it.
  virtual HFONT ChooseFont() { return site_.Font(); }

  // Whether it gives up what of its place a caption of one line leaves empty. The places of the forms let a
  // caption and the box behind it overlap by a pixel or two, and would let the one wipe out the border of the
  // other.
  virtual bool HugsCaption() const { return false; }

 private:
  static LRESULT CALLBACK HearFocus(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  RECT Place() const;
  RECT PlaceAsGiven() const;
  void PassFocusOn();
  void MakeBrush();

  ControlSite& site_;
  Control& control_;
  Look look_;
  int id_;
  HWND window_ = nullptr;
  UniqueBrush brush_;
};

}  // namespace troth
