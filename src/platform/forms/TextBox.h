// A box with one line of text, or one with several lines, separated by CR LF, and scroll bars. OnChange
// follows every change of the text, by the user or by the program; setting the text that already stands there
// changes nothing.
#pragma once

#include "platform/forms/Control.h"

namespace troth {

struct TextBoxOptions {
  std::wstring name;
  std::wstring text;
  std::wstring toolTip;
  Rect bounds;
  bool visible = true;
  bool enabled = true;
  bool readOnly = false;
  bool isMultiLine = false;
  std::optional<Color> backColor = std::nullopt;
  std::optional<Color> foreColor = std::nullopt;  // also while the box is disabled
  std::optional<ControlFont> font = std::nullopt;
  std::wstring accessibleName = {};  // where no label stands before the box
};

class TextBox final : public Control {
 public:
  TextBox(ControlHost& host, TextBoxOptions options);

  const std::wstring& Text() const { return text_; }
  void SetText(std::wstring text);

  bool ReadOnly() const { return readOnly_; }
  bool IsMultiLine() const { return isMultiLine_; }

  // Where the next character goes: in place of the whole text, or after it with nothing selected.
  void SelectAll();
  void PutCaretAtEnd();
  bool IsAllSelected() const { return allSelected_; }

  std::function<void()> OnChange;

  // --- Called by the backend only. ---
  void UserTyped(std::wstring wholeText);
  // Enter begins a line where several can be typed.
  bool TakesEnter() const { return isMultiLine_ && !readOnly_; }

 private:
  std::unique_ptr<ControlPeer> CreatePeer(FormPeer& form) override { return form.Create(*this); }

  std::wstring text_;
  bool readOnly_;
  bool isMultiLine_;
  bool allSelected_ = false;
};

}  // namespace troth
