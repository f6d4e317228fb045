// What all controls of the real desktop have in common: a window of the system, its place, font and colours,
// and the events of focus and mouse. The form creates them first and opens their windows when it knows them
// all: only then is its font chosen, and each window is created with the place and the font that it keeps.
#pragma once

#include <optional>
#include <vector>

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
  virtual ControlHost& Host() const = 0;
  virtual const std::vector<Win32Control*>& Neighbours() const = 0;
  // What the form's client area is filled with, and its colour unless it is the system's.
  virtual HBRUSH Ground() const = 0;
  virtual std::optional<Color> GroundColor() const = 0;
  // A control was moved, shown or hidden.
  virtual void PlacesChanged() = 0;
  // Another control of the form has the keyboard now.
  virtual void FocusMoved() = 0;
  // How many popup menus the form has shown so far.
  virtual int PopupsShown() const = 0;
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

  // Creates the window. A derived control then fills it.
  virtual void Open();

  // Takes the form's font and the place at its DPI, when one of them or the caption has changed.
  virtual void FitToForm();

  // Leaves those parts of its place to other controls that they share with it: the places of the forms let a
  // caption and the box below it overlap by a pixel or two, and the one would wipe out the border of the
  // other.
  void YieldOverlaps();

  // The caption and the space for it, for the choice of the form's font; empty for one with a font of its
  // own.
  CaptionBox Caption() const;

  // Within the form's client area, at its DPI.
  RECT PlaceInPixels() const;

  // A notification of the control's window.
  virtual void OnCommand(WORD code) { static_cast<void>(code); }
  virtual LRESULT OnNotify(NMHDR& header) {
    static_cast<void>(header);
    return 0;
  }

  // A key that no handler has taken; true if the control has.
  virtual bool TakeKey(int keyCode, int shift) {
    static_cast<void>(keyCode);
    static_cast<void>(shift);
    return false;
  }
  // What the user reads while the mouse rests on the control.
  virtual std::wstring ToolTipText() const { return control_.ToolTip(); }

  // Whether Enter is a character like others to it.
  virtual bool TakesEnter() const { return false; }

  // For a control that draws itself.
  virtual void Draw(const DRAWITEMSTRUCT& drawing) { static_cast<void>(drawing); }

  // Sets the colours for the control's text into the surface; null if they are the system's.
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

  // What the window has for its text: screen readers read it out.
  virtual std::wstring WindowText() const { return std::wstring(control_.CaptionText()); }

  // Whether the window has its content for its text, so that only a label before it can say what it is for.
  virtual bool IsNamedByLabel() const { return false; }

  // The form's font, or one of the control's own that is derived from it.
  virtual HFONT ChooseFont();

  // A message of the control's window before the system's own procedure. True if it has dealt with it.
  virtual bool OnMessage(UINT message) {
    static_cast<void>(message);
    return false;
  }

  // How much of its place a control insists on where several share it; the smaller number yields.
  virtual int Claim() const { return 2; }

  HBRUSH OwnGround() const { return brush_.get(); }

  // Deals with a message of the control's window; what a derived control has no use for goes to the class.
  // The control may be gone after this call.
  virtual LRESULT Process(UINT message, WPARAM wParam, LPARAM lParam) {
    return PassToClass(window_, message, wParam, lParam);
  }
  static LRESULT PassToClass(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

 private:
  static LRESULT CALLBACK ControlProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void AddSpokenLabel() const;
  void PassFocusOn();
  void MakeBrush();

  ControlSite& site_;
  Control& control_;
  Look look_;
  int id_;
  HWND window_ = nullptr;
  UniqueBrush brush_;
  UniqueFont font_;
  bool hasRegion_ = false;
};

}  // namespace troth
