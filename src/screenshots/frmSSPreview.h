// Shows the picture that was captured, before its file is written. Takes the size of the picture and cannot
// change or discard it. Opened by the screen capture alone, modally.
#pragma once

#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/forms/PictureBox.h"

namespace troth {

class Program;

class frmSSPreview final : public Form {
 public:
  explicit frmSSPreview(Program& program);

  CommandButton OKButton{*this,
                         {.name = L"OKButton",
                          .caption = L"Close",
                          .bounds = {120, 120, 1215, 375},
                          .isDefault = true,
                          .isCancel = true}};
  // Wraps, so that an "&" in the path is an "&".
  Label lblComment{*this, {.name = L"lblComment", .bounds = {1440, 120, 9015, 375}, .wraps = true}};
  PictureBox picScreenShot{*this, {.name = L"picScreenShot", .bounds = {120, 600, 10350, 7245}}};

  // Shows the latest picture and its path, also in a preview that is open already.
  void ShowPicture();

 private:
  void Form_Load() override;

  Program& program_;
  // What the window has around its picture, in twips.
  Size margins_;
};

}  // namespace troth
