#include "platform/forms/ListView.h"

#include <utility>

#include "platform/forms/ControlHost.h"

namespace troth {

ListView::ListView(ControlHost& host, ListViewOptions options)
    : Control(host, {.name = std::move(options.name),
                     .toolTip = std::move(options.toolTip),
                     .bounds = options.bounds}) {}

void ListView::SetEntries(std::vector<ListViewEntry> entries, int index) {
  edited_ = -1;
  entries_ = std::move(entries);
  index_ = index < Count() ? index : -1;
  Refresh(Aspect::Entries);
}

void ListView::SetIndex(int index) {
  index_ = index >= 0 && index < Count() ? index : -1;
  Refresh(Aspect::Index);
}

void ListView::StartLabelEdit(int index) {
  SetIndex(index);
  if (index_ < 0) return;
  SetFocus();
  edited_ = index_;
  Refresh(Aspect::Label);
}

void ListView::UserPressedOn(int index) { index_ = index >= 0 && index < Count() ? index : -1; }

void ListView::UserClicked() { Host().Raise(OnItemClick); }

void ListView::UserDoubleClicked() {
  if (index_ >= 0) Host().Raise(OnDoubleClick);
}

void ListView::UserEditedLabel(std::optional<std::wstring> text) {
  const ControlHost::Hold hold(Host());  // the handler may unload the form
  const int edited = std::exchange(edited_, -1);
  if (edited < 0 || !text || *text == Entry(edited).text) return;
  const std::wstring former = std::exchange(entries_[static_cast<std::size_t>(edited)].text, *text);
  bool cancel = false;
  Host().Raise(OnLabelEdited, *text, cancel);
  if (cancel && edited < Count()) entries_[static_cast<std::size_t>(edited)].text = former;
  Refresh(Aspect::Label);
}

bool ListView::UserPressedEnter() {
  if (index_ < 0) return false;
  UserDoubleClicked();
  return true;
}

}  // namespace troth
