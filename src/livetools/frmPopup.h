// An instruction for the officiant, in front of the game whatever the other windows do, at the place to which
// the user last dragged it. Opened by the main window alone.
#pragma once

#include <string>

#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/forms/PictureBox.h"

namespace troth {

class MainWindow;
class Program;

class frmPopup final : public Form {
 public:
  // Shows the text modally over the main window and returns true once it has been read. If a popup is up
  // already, as when the speech hotkey is pressed meanwhile, that one takes the text, and the result is false
  // at once. A text that comes while the popup is closing is shown after it.
  static bool ShowText(Program& program, MainWindow& main, const std::wstring& text);

  explicit frmPopup(Program& program);

  PictureBox Image1{*this,
                    {.name = L"Image1", .bounds = {120, 120, 480, 480}, .picture = Picture::ProgramIcon}};
  Label lblMsg{
      *this, {.name = L"lblMsg", .bounds = {840, 120, 5775, 855}, .wraps = true, .letters = {.bold = true}}};
  CommandButton Command1{*this,
                         {.name = L"Command1",
                          .caption = L"OK",
                          .bounds = {2760, 1080, 1335, 375},
                          .isDefault = true,
                          .isCancel = true}};
  Label lblNote{*this,
                {.name = L"lblNote",
                 .caption = L"* Note: just drag this window to permanently move it to a different location.",
                 .bounds = {120, 1560, 6615, 255}}};

 private:
  void Form_Load() override;
  void Form_Unload() override;

  Program& program_;
};

}  // namespace troth
