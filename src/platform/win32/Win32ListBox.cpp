#include "platform/win32/Win32ListBox.h"

#include <algorithm>

#include "platform/forms/ListBox.h"

namespace troth {

namespace {

constexpr UINT kClear = INDEXTOSTATEIMAGEMASK(1);
constexpr UINT kTicked = INDEXTOSTATEIMAGEMASK(2);
// Rows that stay in view below the selected one: what comes next matters to the reader.
constexpr int kRowsAhead = 2;

}  // namespace

Win32ListBox::Win32ListBox(ControlSite& site, ListBox& list)
    : Win32Control(
          site, list,
          {.windowClass = WC_LISTVIEWW,
           .style = LVS_REPORT | LVS_OWNERDATA | LVS_NOCOLUMNHEADER | LVS_SINGLESEL | LVS_SHOWSELALWAYS,
           .extendedStyle = WS_EX_CLIENTEDGE}),
      list_(list) {}

// The system's list lays itself out again with each call, so it gets no more calls than it
// takes.
void Win32ListBox::Open() {
  Win32Control::Open();
  const DWORD extended =
      LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | (list_.HasTicks() ? LVS_EX_CHECKBOXES : 0);
  ListView_SetExtendedListViewStyle(Window(), extended);
  ListView_SetCallbackMask(Window(), LVIS_STATEIMAGEMASK);
  RECT client;
  GetClientRect(Window(), &client);
  LVCOLUMNW column{};
  column.mask = LVCF_WIDTH;
  column.cx = client.right;
  SendMessageW(Window(), LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
  if (list_.Count() > 0) Refresh(Aspect::Entries);
}

void Win32ListBox::Refresh(Aspect aspect) {
  switch (aspect) {
    case Aspect::Entries:
      ShowEntries();
      ShowIndex();
      break;
    case Aspect::Index:
      ShowIndex();
      break;
    case Aspect::Mark:
      ShowMark();
      break;
    case Aspect::Ticks:
      InvalidateRect(Window(), nullptr, FALSE);
      break;
    default:
      Win32Control::Refresh(aspect);
  }
}

void Win32ListBox::FitToForm() {
  Win32Control::FitToForm();
  FitColumn();
  ShowIndex();
}

LRESULT Win32ListBox::OnNotify(NMHDR& header) {
  switch (header.code) {
    case LVN_GETDISPINFOW:
      DescribeRow(reinterpret_cast<NMLVDISPINFOW&>(header));
      return 0;
    case LVN_ODFINDITEMW:
      return FindRow(Rows(), reinterpret_cast<NMLVFINDITEMW&>(header));
    case LVN_ITEMCHANGED:
      OnItemChanged(reinterpret_cast<NMLISTVIEW&>(header));
      return 0;
    case NM_CLICK:
      OnClick(reinterpret_cast<NMITEMACTIVATE&>(header));
      return 0;
    case NM_DBLCLK:
      if (reinterpret_cast<NMITEMACTIVATE&>(header).iItem >= 0) list_.UserDoubleClicked();
      return 0;
    case NM_CUSTOMDRAW:
      return DrawRow(reinterpret_cast<NMLVCUSTOMDRAW&>(header));
    case LVN_KEYDOWN:
      if (reinterpret_cast<NMLVKEYDOWN&>(header).wVKey == VK_SPACE && list_.Index() >= 0)
        ToggleTick(list_.Index());
      return 0;
    default:
      return 0;
  }
}

// Other programs tick a row as in every list of the system, which keeps no ticks of its own here.
LRESULT Win32ListBox::Process(UINT message, WPARAM wParam, LPARAM lParam) {
  const auto row = static_cast<int>(wParam);
  if (message == LVM_SETITEMSTATE && InSendMessage() && row >= 0 && row < list_.Count()) {
    const auto& change = *reinterpret_cast<const LVITEMW*>(lParam);
    const bool ticked = (change.state & LVIS_STATEIMAGEMASK) == kTicked;
    if (change.stateMask & LVIS_STATEIMAGEMASK && ticked != list_.Ticked(row)) list_.UserToggledTick(row);
  }
  return Win32Control::Process(message, wParam, lParam);
}

// "All rows", as the system's list calls them, are visited one by one: that would take longer than all the
// rest.
void Win32ListBox::Deselect() {
  for (const int row : {shownIndex_, ListView_GetNextItem(Window(), -1, LVNI_FOCUSED)})
    if (row >= 0) ListView_SetItemState(Window(), row, 0, LVIS_SELECTED | LVIS_FOCUSED);
  shownIndex_ = -1;
}

void Win32ListBox::ShowEntries() {
  if (list_.Count() == 0 && ListView_GetItemCount(Window()) == 0) return;
  showing_ = true;
  Deselect();
  ListView_SetItemCountEx(Window(), list_.Count(), 0);
  FitColumn();
  showing_ = false;
}

void Win32ListBox::ShowIndex() {
  showing_ = true;
  Deselect();
  const int index = list_.Index();
  if (index >= 0) {
    shownIndex_ = index;
    ListView_SetItemState(Window(), index, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    ListView_EnsureVisible(Window(), std::min(index + kRowsAhead, list_.Count() - 1), FALSE);
    ListView_EnsureVisible(Window(), index, FALSE);
  }
  showing_ = false;
}

void Win32ListBox::ShowMark() {
  const int row = list_.Marked();
  if (row >= 0) {
    ListView_EnsureVisible(Window(), std::min(row + kRowsAhead, list_.Count() - 1), FALSE);
    ListView_EnsureVisible(Window(), row, FALSE);
  }
  InvalidateRect(Window(), nullptr, FALSE);
}

void Win32ListBox::FitColumn() {
  const int tickBox = list_.HasTicks() ? GetSystemMetricsForDpi(SM_CXMENUCHECK, Site().Dpi()) : 0;
  FitOnlyColumn(Window(), Rows(), tickBox + ToPixels(360, Site().Dpi()));
}

ListRows Win32ListBox::Rows() const {
  return {.count = list_.Count(), .text = [this](int row) -> const std::wstring& { return list_.Text(row); }};
}

void Win32ListBox::DescribeRow(NMLVDISPINFOW& request) const {
  LVITEMW& row = request.item;
  AnswerRowText(Rows(), row);
  if (row.iItem < 0 || row.iItem >= list_.Count()) return;
  if (row.mask & LVIF_STATE && list_.HasTicks()) {
    row.state = list_.Ticked(row.iItem) ? kTicked : kClear;
    row.stateMask = LVIS_STATEIMAGEMASK;
  }
}

void Win32ListBox::OnItemChanged(const NMLISTVIEW& change) {
  const bool selected = (change.uNewState & LVIS_SELECTED) && !(change.uOldState & LVIS_SELECTED);
  if (showing_ || change.iItem < 0 || !selected) return;
  shownIndex_ = change.iItem;
  list_.UserSelected(change.iItem);
}

// While the game has the keyboard the system's list would show the selected row in a grey that one has to
// look for, and it is the row that comes next.
LRESULT Win32ListBox::DrawRow(NMLVCUSTOMDRAW& drawing) const {
  if (drawing.nmcd.dwDrawStage == CDDS_PREPAINT)
    return list_.Count() > 0 ? CDRF_NOTIFYITEMDRAW : CDRF_NOTIFYPOSTPAINT;
  if (drawing.nmcd.dwDrawStage == CDDS_POSTPAINT) DrawEmptyText(drawing.nmcd.hdc);
  if (drawing.nmcd.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
  const int row = static_cast<int>(drawing.nmcd.dwItemSpec);
  const bool isMarked = row == list_.Marked();
  if (row != list_.Index() && !isMarked) return CDRF_DODEFAULT;
  drawing.nmcd.uItemState &= ~static_cast<UINT>(CDIS_SELECTED);
  drawing.clrText = GetSysColor(isMarked ? COLOR_INFOTEXT : COLOR_HIGHLIGHTTEXT);
  drawing.clrTextBk = GetSysColor(isMarked ? COLOR_INFOBK : COLOR_HIGHLIGHT);
  return CDRF_NEWFONT;
}

void Win32ListBox::DrawEmptyText(HDC surface) const {
  RECT place;
  GetClientRect(Window(), &place);
  InflateRect(&place, -ToPixels(180, Site().Dpi()), -ToPixels(120, Site().Dpi()));
  const HGDIOBJ font = SelectObject(surface, Site().Font());
  SetTextColor(surface, GetSysColor(COLOR_GRAYTEXT));
  SetBkMode(surface, TRANSPARENT);
  DrawTextW(surface, list_.EmptyText().c_str(), -1, &place, DT_WORDBREAK | DT_NOPREFIX);
  SelectObject(surface, font);
}

// The system's list toggles nothing by itself, and gives its selection up when the empty ground is clicked.
void Win32ListBox::OnClick(const NMITEMACTIVATE& click) {
  LVHITTESTINFO hit{};
  hit.pt = click.ptAction;
  const int row = ListView_HitTest(Window(), &hit);
  if (row < 0)
    ShowIndex();
  else if (hit.flags & LVHT_ONITEMSTATEICON && list_.HasTicks())
    ToggleTick(row);
}

// Of a list that keeps no rows the system does not know that a tick has changed, and screen readers ask the
// system.
void Win32ListBox::ToggleTick(int row) {
  const HWND list = Window();
  list_.UserToggledTick(row);
  NotifyWinEvent(EVENT_OBJECT_STATECHANGE, list, OBJID_CLIENT, row + 1);
}

}  // namespace troth
