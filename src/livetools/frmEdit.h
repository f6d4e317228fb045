// A line for what stands in no script: Enter sends it to the game, the arrows bring back what was said
// before. Stands at the lower edge of the game, if that is wanted, and follows it. Never touches the script.
#pragma once

#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/TextBox.h"
#include "platform/forms/Timer.h"

namespace troth {

class MainWindow;
class Program;

class frmEdit final : public Form {
 public:
  frmEdit(Program& program, MainWindow& main);

  TextBox txtEdit{*this,
                  {.name = L"txtEdit",
                   .toolTip = L"Type the text you wish to pronounce. Use up and down arrows to cycle through "
                              L"previous speech",
                   .bounds = {0, 0, 6135, 285},
                   .backColor = kGround,
                   .accessibleName = L"Sentence"}};
  // Below the window's edge, for the sake of Enter and Esc.
  CommandButton cmdOK{*this,
                      {.name = L"cmdOK",
                       .caption = L"OK",
                       .bounds = {0, 360, 1215, 375},
                       .isDefault = true,
                       .isTabStop = false}};
  CommandButton cmdCancel{*this,
                          {.name = L"cmdCancel",
                           .caption = L"Cancel",
                           .bounds = {1320, 360, 1215, 375},
                           .isCancel = true,
                           .isTabStop = false}};
  Timer tmrMove{*this, {.name = L"tmrMove", .intervalMs = 100, .enabled = true}};

 private:
  static constexpr Color kGround = Rgb(192, 255, 255);

  void Form_Load() override;
  void Form_Activate() override { txtEdit.SetFocus(); }
  void Form_Unload() override;
  void txtEdit_KeyDown(KeyPress& press);
  void cmdOK_Click();
  void cmdCancel_Click();
  bool FollowGame();
  void GoBelow(const PixelRect& game);
  void Send(const std::wstring& text);

  Program& program_;
  MainWindow& main_;
  // Left and bottom edge of the game as last seen, in pixels of the screen.
  PixelPoint gameCorner_{-1, -1};
};

// Opens the edit window, or brings it back to the front.
void ShowEditBox(Program& program, MainWindow& owner);

}  // namespace troth
