#include "platform/win32/Win32Views.h"

#include <algorithm>
#include <utility>

#include "platform/forms/ListView.h"
#include "platform/forms/StatusBar.h"
#include "platform/forms/TreeView.h"

namespace troth {

namespace {

// Where a message of the mouse says that the pointer is.
POINT PlaceOf(LPARAM lParam) {
  return {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
}

}  // namespace

Win32TreeView::Win32TreeView(ControlSite& site, TreeView& tree)
    : Win32Control(
          site, tree,
          {.windowClass = WC_TREEVIEWW,
           .style = TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS | TVS_DISABLEDRAGDROP,
           .extendedStyle = WS_EX_CLIENTEDGE}),
      tree_(tree) {}

void Win32TreeView::Open() {
  Win32Control::Open();
  FitToForm();
  ShowNodes();
  ShowSelected();
}

void Win32TreeView::FitToForm() {
  Win32Control::FitToForm();
  UniqueImageList pictures = DrawViewPictures(Site().Dpi());
  SendMessageW(Window(), TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(pictures.get()));
  pictures_ = std::move(pictures);
}

void Win32TreeView::Refresh(Aspect aspect) {
  switch (aspect) {
    case Aspect::Entries:
      ShowNodes();
      break;
    case Aspect::Index:
      ShowSelected();
      break;
    default:
      Win32Control::Refresh(aspect);
  }
}

// Nodes are only added, or all removed: what is shown already stays.
void Win32TreeView::ShowNodes() {
  showing_ = true;
  if (static_cast<int>(items_.size()) > tree_.Count()) {
    items_.clear();
    TreeView_DeleteAllItems(Window());
  }
  while (static_cast<int>(items_.size()) < tree_.Count()) InsertNode(static_cast<int>(items_.size()));
  showing_ = false;
}

void Win32TreeView::InsertNode(int node) {
  std::wstring text = tree_.Node(node).text;
  const int parent = tree_.Node(node).parent;
  const HTREEITEM above = parent < 0 ? TVI_ROOT : items_.at(static_cast<std::size_t>(parent));
  TVINSERTSTRUCTW insert{};
  insert.hParent = above;
  insert.hInsertAfter = TVI_LAST;
  insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_PARAM;
  insert.item.pszText = text.data();
  insert.item.iImage = kClosedFolder;
  insert.item.iSelectedImage = kOpenFolder;
  insert.item.lParam = node;
  items_.push_back(reinterpret_cast<HTREEITEM>(
      SendMessageW(Window(), TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert))));
  // An item without others below it cannot be opened.
  const bool isFirst = above != TVI_ROOT && TreeView_GetChild(Window(), above) == items_.back();
  if (isFirst) TreeView_Expand(Window(), above, TVE_EXPAND);
}

void Win32TreeView::ShowSelected() {
  showing_ = true;
  const int node = tree_.Selected();
  TreeView_SelectItem(Window(), node < 0 ? nullptr : items_.at(static_cast<std::size_t>(node)));
  showing_ = false;
}

int Win32TreeView::NodeOf(HTREEITEM item) const {
  const auto found = std::find(items_.begin(), items_.end(), item);
  return !item || found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

int Win32TreeView::NodeAt(POINT place) const {
  TVHITTESTINFO hit{};
  hit.pt = place;
  const HTREEITEM item = TreeView_HitTest(Window(), &hit);
  return hit.flags & TVHT_ONITEM ? NodeOf(item) : -1;
}

LRESULT Win32TreeView::Process(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_LBUTTONDOWN) {
    const int node = NodeAt(PlaceOf(lParam));
    pressed_ = node == tree_.Selected() ? node : -1;
  }
  return Win32Control::Process(message, wParam, lParam);
}

// A click on the selected node selects nothing new, and is a click all the same.
LRESULT Win32TreeView::OnNotify(NMHDR& header) {
  if (showing_) return 0;
  if (header.code == TVN_SELCHANGEDW) {
    tree_.UserClicked(NodeOf(reinterpret_cast<NMTREEVIEWW&>(header).itemNew.hItem));
  } else if (header.code == NM_CLICK) {
    tree_.UserClicked(std::exchange(pressed_, -1));
  }
  return 0;
}

Win32ListView::Win32ListView(ControlSite& site, ListView& list)
    : Win32Control(site, list,
                   {.windowClass = WC_LISTVIEWW,
                    .style = LVS_REPORT | LVS_OWNERDATA | LVS_NOCOLUMNHEADER | LVS_SINGLESEL |
                             LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS,
                    .extendedStyle = WS_EX_CLIENTEDGE}),
      list_(list) {}

void Win32ListView::Open() {
  Win32Control::Open();
  ListView_SetExtendedListViewStyle(Window(), LVS_EX_DOUBLEBUFFER);
  LVCOLUMNW column{};
  column.mask = LVCF_WIDTH;
  SendMessageW(Window(), LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
  FitToForm();
  ShowEntries();
}

void Win32ListView::FitToForm() {
  Win32Control::FitToForm();
  UniqueImageList pictures = DrawViewPictures(Site().Dpi());
  SendMessageW(Window(), LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(pictures.get()));
  pictures_ = std::move(pictures);
  FitColumn();
}

void Win32ListView::Refresh(Aspect aspect) {
  switch (aspect) {
    case Aspect::Entries:
      ShowEntries();
      break;
    case Aspect::Index:
      ShowIndex();
      break;
    case Aspect::Label:
      ShowLabel();
      break;
    default:
      Win32Control::Refresh(aspect);
  }
}

LRESULT Win32ListView::OnNotify(NMHDR& header) {
  switch (header.code) {
    case LVN_GETDISPINFOW: {
      LVITEMW& row = reinterpret_cast<NMLVDISPINFOW&>(header).item;
      AnswerRowText(Rows(), row);
      if (row.mask & LVIF_IMAGE) row.iImage = kDocument;
      return 0;
    }
    case LVN_ODFINDITEMW:
      return FindRow(Rows(), reinterpret_cast<NMLVFINDITEMW&>(header));
    case LVN_ITEMCHANGED:
      OnItemChanged(reinterpret_cast<NMLISTVIEW&>(header));
      return 0;
    case NM_CLICK:
    case NM_RCLICK:
      list_.UserClicked();
      return 0;
    case NM_DBLCLK:
      list_.UserDoubleClicked();
      return 0;
    case LVN_ENDLABELEDITW:
      OnLabelEnded(reinterpret_cast<NMLVDISPINFOW&>(header));
      // The text is taken from here when the row is drawn.
      return FALSE;
    default:
      return 0;
  }
}

// The entry under the pointer has its tool tip: to the form it is the tool tip of the list.
std::wstring Win32ListView::ToolTipText() const {
  return hovered_ >= 0 && hovered_ < list_.Count() ? list_.Entry(hovered_).toolTip : Portable().ToolTip();
}

LRESULT Win32ListView::Process(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_MOUSEMOVE) FollowPointer(PlaceOf(lParam));
  const bool isMouse = message >= WM_MOUSEFIRST && message <= WM_MOUSELAST;
  if (!isMouse) return Win32Control::Process(message, wParam, lParam);
  const HWND window = Window();
  byMouse_ = true;
  const LRESULT result = Win32Control::Process(message, wParam, lParam);
  // A handler may have unloaded the form.
  if (GetWindowLongPtrW(window, GWLP_USERDATA) != 0) byMouse_ = false;
  return result;
}

ListRows Win32ListView::Rows() const {
  return {.count = list_.Count(),
          .text = [this](int row) -> const std::wstring& { return list_.Entry(row).text; }};
}

void Win32ListView::ShowEntries() {
  showing_ = true;
  if (std::exchange(isEditing_, false)) ListView_CancelEditLabel(Window());
  hovered_ = -1;
  ListView_SetItemCountEx(Window(), list_.Count(), 0);
  FitColumn();
  showing_ = false;
  ShowIndex();
}

void Win32ListView::ShowIndex() {
  showing_ = true;
  const int index = list_.Index();
  for (const int row :
       {ListView_GetNextItem(Window(), -1, LVNI_SELECTED), ListView_GetNextItem(Window(), -1, LVNI_FOCUSED)})
    if (row >= 0 && row != index) ListView_SetItemState(Window(), row, 0, LVIS_SELECTED | LVIS_FOCUSED);
  if (index >= 0) {
    ListView_SetItemState(Window(), index, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    ListView_EnsureVisible(Window(), index, FALSE);
  }
  showing_ = false;
}

// Opens the editor, or draws a text that has been edited.
void Win32ListView::ShowLabel() {
  if (list_.Edited() < 0) {
    InvalidateRect(Window(), nullptr, FALSE);
    FitColumn();
    return;
  }
  // Texts can be edited from here alone: a second click on an entry would open the editor, too, or under Wine
  // select the entry once more a moment later.
  showing_ = true;
  const LONG_PTR style = GetWindowLongPtrW(Window(), GWL_STYLE);
  SetWindowLongPtrW(Window(), GWL_STYLE, style | LVS_EDITLABELS);
  isEditing_ = ListView_EditLabel(Window(), list_.Edited()) != nullptr;
  SetWindowLongPtrW(Window(), GWL_STYLE, style);
  showing_ = false;
  if (!isEditing_) list_.UserEditedLabel(std::nullopt);
}

void Win32ListView::FitColumn() {
  const int picture = GetSystemMetricsForDpi(SM_CXSMICON, Site().Dpi());
  FitOnlyColumn(Window(), Rows(), picture + ToPixels(240, Site().Dpi()));
}

void Win32ListView::FollowPointer(POINT place) {
  LVHITTESTINFO hit{};
  hit.pt = place;
  const int row = ListView_HitTest(Window(), &hit);
  if (std::exchange(hovered_, row) != row) Site().RefreshToolTip(*this);
}

// A press of the mouse is followed by its click; all else that moves the selection counts as a click itself.
void Win32ListView::OnItemChanged(const NMLISTVIEW& change) {
  if (showing_ || !(change.uChanged & LVIF_STATE)) return;
  const bool isSelected = (change.uNewState & LVIS_SELECTED) != 0;
  const bool wasSelected = (change.uOldState & LVIS_SELECTED) != 0;
  if (isSelected == wasSelected) return;
  if (!isSelected) {
    if (change.iItem < 0 || change.iItem == list_.Index()) list_.UserPressedOn(-1);
    return;
  }
  list_.UserPressedOn(change.iItem);
  if (!byMouse_) list_.UserClicked();
}

void Win32ListView::OnLabelEnded(const NMLVDISPINFOW& edit) {
  isEditing_ = false;
  if (edit.item.pszText)
    list_.UserEditedLabel(edit.item.pszText);
  else
    list_.UserEditedLabel(std::nullopt);
}

Win32StatusBar::Win32StatusBar(ControlSite& site, StatusBar& bar)
    : Win32Control(
          site, bar,
          {.windowClass = STATUSCLASSNAMEW, .style = CCS_NORESIZE | CCS_NOPARENTALIGN | CCS_NODIVIDER}),
      bar_(bar) {}

void Win32StatusBar::Open() {
  Win32Control::Open();
  ShowText();
}

void Win32StatusBar::Refresh(Aspect aspect) {
  if (aspect == Aspect::Text)
    ShowText();
  else
    Win32Control::Refresh(aspect);
}

void Win32StatusBar::ShowText() {
  SendMessageW(Window(), SB_SETTEXTW, SBT_NOBORDERS, reinterpret_cast<LPARAM>(bar_.Text().c_str()));
}

}  // namespace troth
