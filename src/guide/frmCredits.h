// Who has a part in the program: an endless roll of headings and names that grow from tiny to full size.
// Shown modally from the menu, the release notes and the about window. While a name grows and stands, no
// other message of the program is served: a click takes effect after at most two seconds and a half.
#pragma once

#include <string>

#include "guide/CCredits.h"
#include "platform/forms/Canvas.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/PictureBox.h"
#include "platform/forms/Timer.h"

namespace troth {

class Program;

class frmCredits final : public Form {
 public:
  explicit frmCredits(Program& program);

  CommandButton cmdClose{*this,
                         {.name = L"cmdClose",
                          .caption = L"Close",
                          .bounds = {3000, 4860, 1200, 375},
                          .isDefault = true,
                          .isCancel = true}};
  PictureBox picLogo{*this,
                     {.name = L"picLogo",
                      .bounds = {1230, 420, 1440, 1440},
                      .picture = Picture::ProgramIcon,
                      .backColor = kGround}};
  // The ground of the window; what stands on it comes before it.
  Canvas Ground{*this,
                {.name = L"Ground", .bounds = {{}, {}, kWindow.width, kWindow.height}, .ground = kGround}};
  Timer tmrEffects{*this, {.name = L"tmrEffects", .intervalMs = 20}};

 private:
  static constexpr Size kWindow{7200, 5400};
  static constexpr Color kGround = 0;
  static constexpr Color kLetters = Rgb(255, 255, 0);

  void Form_Load() override;
  void tmrEffects_Timer();
  void ShowHeading(const std::wstring& heading);
  void Grow(const std::wstring& text, double top, int lastSize);
  void PrintTitle(const std::wstring& text, double top, int points);
  void CreditsPause(int ms);

  Program& program_;
  CCredits credits_;
  int CreditNumber = 1;
  int LineNumber = 0;  // 0 for the heading
  bool TickBusy = false;
};

}  // namespace troth
