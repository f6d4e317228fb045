// A text box of several lines, with both scroll bars. The system's box takes seconds to lay out megabytes: of
// a long text that is only read it gets the beginning, and more whenever the user comes near the end of what
// it has.
#pragma once

#include <string>
#include <string_view>

#include "platform/win32/Win32Control.h"

namespace troth {

class TextBox;

class Win32TextLines final : public Win32Control {
 public:
  Win32TextLines(ControlSite& site, TextBox& box);
  void Open() override;
  void Refresh(Aspect aspect) override;
  void OnCommand(WORD code) override;
  bool TakesEnter() const override;

 private:
  bool IsNamedByLabel() const override { return true; }
  LRESULT Process(UINT message, WPARAM wParam, LPARAM lParam) override;
  LRESULT CopyText(wchar_t* place, std::size_t size) const;
  void ShowText();
  std::wstring NextPiece();
  bool IsNearEnd() const;
  void AppendPiece();

  TextBox& box_;
  std::size_t shown_ = 0;  // how many characters of the text the window has got
  bool showing_ = false;
};

}  // namespace troth
