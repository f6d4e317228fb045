// Ten short texts - emotes, stock phrases - at a click, outside the script. Opened from the menu of the main
// window, and at start-up if it was open when the program ended. The user changes the texts by the menu of a
// right click, and lays the bar out as a row or a column.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "livetools/ButtonFile.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/MenuItem.h"

namespace troth {

class MainWindow;
class Program;

class frmButtonBar final : public Form {
 public:
  frmButtonBar(Program& program, MainWindow& main);

  // The last one changes the layout; the others have a text.
  static constexpr std::size_t kLayoutButton = kSpeechButtons;
  std::array<CommandButton, kSpeechButtons + 1> MacroButton;

  MenuItem MConfigure{*this, {.name = L"MConfigure", .caption = L"&Configure", .visible = false}};
  MenuItem MConfigureConfigure{MConfigure, {.name = L"MConfigureConfigure", .caption = L"&Change..."}};
  MenuItem MConfigureLoadSingle{MConfigure,
                                {.name = L"MConfigureLoadSingle", .caption = L"&Load This Button From..."}};
  MenuItem MConfigureLoadAll{MConfigure,
                             {.name = L"MConfigureLoadAll", .caption = L"L&oad All Buttons From..."}};
  MenuItem MConfigureSave{MConfigure, {.name = L"MConfigureSave", .caption = L"Save Current Buttons To..."}};

  // 0 for a row, anything else for a column: places the buttons and sizes the window.
  void ChangeLayout(int layout);
  // Asks for a button file and takes the text of the button `index` from it, or all texts for -1.
  void LoadButtons(int index);

 private:
  void Form_Load() override;
  void Form_QueryUnload(bool& cancel, CloseReason reason) override;
  void Form_Unload() override;
  void MacroButton_Click(std::size_t index);
  void MacroButton_MouseDown(std::size_t index, const MouseEvent& event);
  void MConfigureConfigure_Click();
  void MConfigureSave_Click();
  void ShowLayoutToCome();
  void SetText(std::size_t index, const std::wstring& text);
  void SetAndKeepText(std::size_t index, const std::wstring& text);
  void Complain();
  std::wstring ButtonFolder() const;

  Program& program_;
  MainWindow& main_;
  int ButtonLayout = 1;
  // On which the last press without Shift, Ctrl or Alt fell.
  std::size_t CurrentButton = 0;
  // What stands beside and below the corner of the last button, frame included.
  int widthMargin_ = 0;
  int heightMargin_ = 0;
};

}  // namespace troth
