// Asks for the pace of unattended speech, with a warning, and starts it. Opened modally from the main window.
#pragma once

#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/forms/TextBox.h"

namespace troth {

class Program;
class UnattendedSpeech;

class frmMacro final : public Form {
 public:
  frmMacro(Program& program, UnattendedSpeech& speech);

  Label Label1{*this,
               {.name = L"Label1", .caption = L"&Speech Interval [ms]", .bounds = {240, 240, 1860, 255}}};
  TextBox txtMS{*this, {.name = L"txtMS", .bounds = {2160, 210, 1215, 285}}};
  Label Label2{*this, WarningLine(2, L"Warning! Unattended macroing is considered")};
  Label Label3{*this, WarningLine(3, L"unacceptable and bannable in Kestrel Moors. This option")};
  Label Label4{*this, WarningLine(4, L"allows you to pronounce an unattended speech without")};
  Label Label5{*this, WarningLine(5, L"actually having to be present at the keyboard.")};
  Label Label6{*this, WarningLine(6, L"The decision whether to keep watching at the screen or")};
  Label Label7{*this, WarningLine(7, L"not while using this feature is ultimately up to you.")};
  Label Label8{*this, WarningLine(8, L"The author will not be considered responsible for any")};
  Label Label9{*this, WarningLine(9, L"consequence coming from misuse of this option.")};
  CommandButton cdmOk{
      *this, {.name = L"cdmOk", .caption = L"OK", .bounds = {240, 2790, 1395, 375}, .isDefault = true}};
  CommandButton cmdCancel{
      *this,
      {.name = L"cmdCancel", .caption = L"Cancel", .bounds = {1755, 2790, 1395, 375}, .isCancel = true}};
  CommandButton cdmHelp{*this, {.name = L"cdmHelp", .caption = L"&Help", .bounds = {3270, 2790, 1395, 375}}};

 private:
  static LabelOptions WarningLine(int number, const wchar_t* caption);

  void Form_Load() override;
  void cdmOk_Click();
  void Refuse(const wchar_t* why);

  Program& program_;
  UnattendedSpeech& speech_;
};

}  // namespace troth
