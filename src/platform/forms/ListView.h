// A list of documents with a small picture each, at most one of them selected. An entry has a tool tip of its
// own, and its text can be edited in place. Built for thousands of entries: the desktop shows them from here.
//
// OnItemClick follows a click with the left or the right button on an entry or on the ground below the
// entries (which selects nothing), and each move of the selection by the keyboard; Index() says what is
// selected then. OnMouseDown, which comes before it, says the button. OnDoubleClick follows a double click on
// an entry, and Enter while one is selected. What the program changes raises nothing.
#pragma once

#include <vector>

#include "platform/forms/Control.h"

namespace troth {

struct ListViewEntry {
  std::wstring key;   // what the program knows the entry by
  std::wstring text;  // what the user sees
  std::wstring toolTip = {};
};

struct ListViewOptions {
  std::wstring name;
  std::wstring toolTip = {};
  Rect bounds;
};

class ListView final : public Control {
 public:
  ListView(ControlHost& host, ListViewOptions options);

  int Count() const { return static_cast<int>(entries_.size()); }
  const ListViewEntry& Entry(int index) const { return entries_.at(static_cast<std::size_t>(index)); }
  // Ends the editing of a text.
  void SetEntries(std::vector<ListViewEntry> entries, int index = -1);

  // 0-based; -1 while nothing is selected. Setting an index that does not exist selects nothing.
  int Index() const { return index_; }
  void SetIndex(int index);

  // Selects the entry, gives the list the keyboard and opens an editor with the entry's text, in place. When
  // the user ends it with Enter or by going elsewhere and has changed the text, OnLabelEdited is raised: the
  // entry has the new text then, and gets its former one back if the handler sets `cancel`. Esc changes
  // nothing.
  void StartLabelEdit(int index);
  // The entry whose text is being edited, or -1.
  int Edited() const { return edited_; }

  std::function<void()> OnItemClick;
  std::function<void()> OnDoubleClick;
  std::function<void(const std::wstring& newText, bool& cancel)> OnLabelEdited;

  // --- Called by the backend only. ---
  // The selection moved without a click that would be raised: a button went down on an entry or on the
  // ground.
  void UserPressedOn(int index);
  void UserClicked();
  void UserDoubleClicked();
  // The editor is gone; nothing if the user gave it up.
  void UserEditedLabel(std::optional<std::wstring> text);
  bool UserPressedEnter() override;

 private:
  std::unique_ptr<ControlPeer> CreatePeer(FormPeer& form) override { return form.Create(*this); }

  std::vector<ListViewEntry> entries_;
  int index_ = -1;
  int edited_ = -1;
};

}  // namespace troth
