#include "platform/win32/Win32Choosers.h"

#include <commctrl.h>

#include "platform/forms/DropDownList.h"
#include "platform/forms/Frame.h"
#include "platform/forms/PictureBox.h"
#include "platform/forms/TabStrip.h"
#include "platform/win32/Win32Graphics.h"

namespace troth {

namespace {
// How much of a drop-down list is seen at once.
constexpr int kDroppedRows = 12;
}  // namespace

// The form paints no ground behind its children, and the system's box paints none within its border; behind a
// transparent child the form does paint.
Win32Frame::Win32Frame(ControlSite& site, Frame& frame)
    : Win32Control(site, frame,
                   {.windowClass = frame.HasBorder() ? L"BUTTON" : L"STATIC",
                    .style = static_cast<DWORD>(frame.HasBorder() ? BS_GROUPBOX : SS_OWNERDRAW),
                    .extendedStyle = WS_EX_TRANSPARENT,
                    .aroundCaption = {18, 0}}) {}

Win32DropDownList::Win32DropDownList(ControlSite& site, DropDownList& list)
    : Win32Control(site, list, {.windowClass = WC_COMBOBOXW, .style = CBS_DROPDOWNLIST | WS_VSCROLL}),
      list_(list) {}

// The system takes the height of such a box for that of the dropped list as well.
void Win32DropDownList::Open() {
  Win32Control::Open();
  SendMessageW(Window(), CB_SETMINVISIBLE, kDroppedRows, 0);
  Refresh(Aspect::Entries);
}

void Win32DropDownList::FitToForm() {
  Win32Control::FitToForm();
  SendMessageW(Window(), CB_SETMINVISIBLE, kDroppedRows, 0);
}

void Win32DropDownList::Refresh(Aspect aspect) {
  switch (aspect) {
    case Aspect::Entries:
      SendMessageW(Window(), CB_RESETCONTENT, 0, 0);
      for (const std::wstring& entry : list_.Entries())
        SendMessageW(Window(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.c_str()));
      [[fallthrough]];
    case Aspect::Index:
      SendMessageW(Window(), CB_SETCURSEL, static_cast<WPARAM>(list_.Index()), 0);
      break;
    default:
      Win32Control::Refresh(aspect);
  }
}

void Win32DropDownList::OnCommand(WORD code) {
  if (code == CBN_SELCHANGE) list_.UserSelected(static_cast<int>(SendMessageW(Window(), CB_GETCURSEL, 0, 0)));
}

Win32TabStrip::Win32TabStrip(ControlSite& site, TabStrip& tabs)
    : Win32Control(site, tabs,
                   {.windowClass = WC_TABCONTROLW, .style = TCS_TOOLTIPS | TCS_FOCUSONBUTTONDOWN}),
      tabs_(tabs) {}

void Win32TabStrip::Open() {
  Win32Control::Open();
  int place = 0;
  for (const Tab& tab : tabs_.Tabs()) {
    std::wstring caption = tab.caption;
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = caption.data();
    SendMessageW(Window(), TCM_INSERTITEMW, static_cast<WPARAM>(place++), reinterpret_cast<LPARAM>(&item));
  }
  Refresh(Aspect::Index);
  CutGround();
  FitToolTips();
}

void Win32TabStrip::FitToForm() {
  Win32Control::FitToForm();
  CutGround();
  FitToolTips();
}

// The ground below the tabs is cut out of the window but for its border: what stands on it are neighbours of
// the strip, not children, and would be painted over.
void Win32TabStrip::CutGround() {
  RECT whole;
  GetClientRect(Window(), &whole);
  RECT ground = whole;
  SendMessageW(Window(), TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&ground));
  const HRGN shown = CreateRectRgnIndirect(&whole);
  const HRGN cut = CreateRectRgnIndirect(&ground);
  CombineRgn(shown, shown, cut, RGN_DIFF);
  DeleteObject(cut);
  SetWindowRgn(Window(), shown, TRUE);  // the system owns it from here on
}

// The system asks the form for these texts, one tab at a time, by a window that is none of the form's; Wine
// does not ask at all. So each tab gets its tip from here.
void Win32TabStrip::FitToolTips() {
  const HWND tips = reinterpret_cast<HWND>(SendMessageW(Window(), TCM_GETTOOLTIPS, 0, 0));
  UINT_PTR place = 0;
  for (const Tab& tab : tabs_.Tabs()) {
    std::wstring text = tab.toolTip;
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.uFlags = TTF_SUBCLASS;
    tool.hwnd = Window();
    tool.uId = place;
    tool.lpszText = text.data();
    SendMessageW(Window(), TCM_GETITEMRECT, place++, reinterpret_cast<LPARAM>(&tool.rect));
    SendMessageW(tips, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    SendMessageW(tips, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  }
}

void Win32TabStrip::Refresh(Aspect aspect) {
  if (aspect == Aspect::Index)
    SendMessageW(Window(), TCM_SETCURSEL, static_cast<WPARAM>(tabs_.Index()), 0);
  else
    Win32Control::Refresh(aspect);
}

LRESULT Win32TabStrip::OnNotify(NMHDR& header) {
  if (header.code == TCN_SELCHANGE)
    tabs_.UserSelected(static_cast<int>(SendMessageW(Window(), TCM_GETCURSEL, 0, 0)));
  return 0;
}

Win32PictureBox::Win32PictureBox(ControlSite& site, PictureBox& box)
    : Win32Control(
          site, box,
          // A button takes the keyboard when it is clicked.
          {.windowClass = box.IsForChoosing() ? L"BUTTON" : L"STATIC",
           .style = static_cast<DWORD>(box.IsForChoosing() ? BS_OWNERDRAW : SS_OWNERDRAW | SS_NOTIFY)}),
      box_(box) {}

void Win32PictureBox::Refresh(Aspect aspect) {
  if (aspect == Aspect::Picture)
    InvalidateRect(Window(), nullptr, FALSE);
  else
    Win32Control::Refresh(aspect);
}

void Win32PictureBox::OnCommand(WORD code) {
  if (code == BN_CLICKED) box_.UserClicked();
}

void Win32PictureBox::Draw(const DRAWITEMSTRUCT& drawing) {
  RECT place = drawing.rcItem;
  if (const auto* bitmap = static_cast<const Win32Bitmap*>(box_.Shown())) {
    bitmap->DrawOn(drawing.hDC);
    return;
  }
  if (box_.Shows() == Picture::ProgramIcon) {
    FillRect(drawing.hDC, &place, OwnGround() ? OwnGround() : Site().Ground());
    const HICON icon = static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(1),
                                                     IMAGE_ICON, place.right, place.bottom, LR_SHARED));
    if (icon) DrawIconEx(drawing.hDC, 0, 0, icon, place.right, place.bottom, 0, nullptr, DI_NORMAL);
    return;
  }
  const UniqueBrush ground(CreateSolidBrush(box_.BackColor().value_or(GetSysColor(COLOR_BTNFACE))));
  FillRect(drawing.hDC, &place, ground.get());
  DrawEdge(drawing.hDC, &place, EDGE_SUNKEN, BF_RECT);
  if (!(drawing.itemState & ODS_FOCUS)) return;
  InflateRect(&place, -3, -3);
  DrawFocusRect(drawing.hDC, &place);
}

}  // namespace troth
