#include "platform/win32/Win32Menu.h"

#include <algorithm>

namespace troth {

namespace {

constexpr WORD kFirstId = 1000;

UINT StateOf(const MenuItem& item) {
  return (item.Checked() ? MFS_CHECKED : MFS_UNCHECKED) | (item.Enabled() ? MFS_ENABLED : MFS_DISABLED);
}

MenuItem* FindNamed(const std::vector<MenuItem*>& items, const std::wstring& name) {
  for (MenuItem* item : items) {
    if (item->Name() == name) return item;
    if (MenuItem* below = FindNamed(item->Children(), name)) return below;
  }
  return nullptr;
}

}  // namespace

HMENU Win32Menu::Build(const std::vector<MenuItem*>& topLevel) {
  topLevel_ = topLevel;
  menu_ = Make();
  return menu_.get();
}

void Win32Menu::Refresh(const MenuItem& item) {
  const auto built = shown_.find(&item);
  if (built == shown_.end() || built->second != item.Visible()) {
    Rebuild();
    return;
  }
  const auto place = std::find(items_.begin(), items_.end(), &item);
  if (!built->second || place == items_.end()) return;
  std::wstring caption = item.CaptionWithShortcut();
  MENUITEMINFOW info{};
  info.cbSize = sizeof info;
  info.fMask = MIIM_STATE | MIIM_STRING;
  info.fState = StateOf(item);
  info.dwTypeData = caption.data();
  SetMenuItemInfoW(menu_.get(), IdAt(place), FALSE, &info);
  if (std::find(topLevel_.begin(), topLevel_.end(), &item) != topLevel_.end()) DrawMenuBar(window_);
}

MenuItem* Win32Menu::ItemOf(WORD id) const {
  const auto place = static_cast<std::size_t>(id) - kFirstId;
  return id >= kFirstId && place < items_.size() ? items_[place] : nullptr;
}

UINT Win32Menu::QuestionMessage() {
  static const UINT message = RegisterWindowMessageW(L"Trothline.MenuItem");
  return message;
}

LRESULT Win32Menu::Answer(HWND window, WPARAM wParam, LPARAM lParam) const {
  wchar_t name[256];
  if (GlobalGetAtomNameW(static_cast<ATOM>(wParam), name, 256) == 0) return 0;
  MenuItem* const item = FindNamed(topLevel_, name);
  if (!item) return 0;
  if (lParam == 0)
    return 1 | (item->Checked() ? 2 : 0) | (item->Enabled() ? 4 : 0) | (item->Visible() ? 8 : 0);
  const auto place = std::find(items_.begin(), items_.end(), item);
  if (lParam != 1 || place == items_.end() || !IsWindowEnabled(window)) return 0;
  return PostMessageW(window, WM_COMMAND, IdAt(place), 0);
}

MenuItem* Win32Menu::TrackPopup(HWND window, POINT place, const MenuItem& menu) {
  Win32Menu popup;
  UniqueMenu handle(CreatePopupMenu());
  for (MenuItem* item : menu.Children()) popup.Append(handle.get(), *item);
  SetForegroundWindow(window);
  const int id = TrackPopupMenu(handle.get(), TPM_RIGHTBUTTON | TPM_RETURNCMD | TPM_NONOTIFY, place.x,
                                place.y, 0, window, nullptr);
  return popup.ItemOf(static_cast<WORD>(id));
}

void Win32Menu::Rebuild() {
  UniqueMenu menu = Make();
  SetMenu(window_, menu.get());
  menu_ = std::move(menu);
}

UniqueMenu Win32Menu::Make() {
  shown_.clear();
  items_.clear();
  UniqueMenu menu(CreateMenu());
  for (MenuItem* item : topLevel_) Append(menu.get(), *item);
  if (GetMenuItemCount(menu.get()) == 0) menu.reset();
  return menu;
}

void Win32Menu::Append(HMENU menu, MenuItem& item) {
  shown_[&item] = item.Visible();
  if (!item.Visible()) return;
  items_.push_back(&item);
  const WORD id = IdAt(items_.end() - 1);
  std::wstring caption = item.CaptionWithShortcut();
  MENUITEMINFOW info{};
  info.cbSize = sizeof info;
  info.fMask = MIIM_ID | MIIM_STATE | MIIM_STRING | MIIM_FTYPE;
  info.fType = item.IsSeparator() ? MFT_SEPARATOR : MFT_STRING;
  info.fState = StateOf(item);
  info.wID = id;
  info.dwTypeData = caption.data();
  if (!item.Children().empty()) {
    const HMENU below = CreatePopupMenu();
    for (MenuItem* child : item.Children()) Append(below, *child);
    info.fMask |= MIIM_SUBMENU;
    info.hSubMenu = below;
  }
  InsertMenuItemW(menu, static_cast<UINT>(GetMenuItemCount(menu)), TRUE, &info);
}

WORD Win32Menu::IdAt(std::vector<MenuItem*>::const_iterator place) const {
  return static_cast<WORD>(kFirstId + (place - items_.begin()));
}

}  // namespace troth
