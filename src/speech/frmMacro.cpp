#include "speech/frmMacro.h"

#include <string>

#include "core/Program.h"
#include "core/modMain.h"
#include "script/MessageBoxes.h"
#include "script/NumberReader.h"
#include "speech/UnattendedSpeech.h"

namespace troth {

namespace {
constexpr int kShortestIntervalMs = 2000;
constexpr int kLongestIntervalMs = 30000;
}  // namespace

frmMacro::frmMacro(Program& program, UnattendedSpeech& speech)
    : Form(program.platform.forms, {.name = L"frmMacro",
                                    .caption = L"Unattended Speech",
                                    .clientSize = {4905, 3375},
                                    .border = BorderStyle::FixedDialog,
                                    .helpContext = 1,
                                    .isCentred = true}),
      program_(program),
      speech_(speech) {
  cdmOk.OnClick = [this] { cdmOk_Click(); };
  cmdCancel.OnClick = [this] { Unload(); };
  cdmHelp.OnClick = [this] { modMain::ShowHelp(program_, *this); };
}

// The lines below the box, numbered from 2, the last four a little apart from the rest.
LabelOptions frmMacro::WarningLine(int number, const wchar_t* caption) {
  const int top = 690 + (number - 2) * 240 + (number > 5 ? 60 : 0);
  return {.name = L"Label" + std::to_wstring(number), .caption = caption, .bounds = {240, top, 4425, 240}};
}

void frmMacro::Form_Load() {
  txtMS.SetText(std::to_wstring(program_.SpeechInterval));
  txtMS.SelectAll();
}

void frmMacro::cdmOk_Click() {
  const int intervalMs = ReadNumber(txtMS.Text());
  if (intervalMs < kShortestIntervalMs)
    return Refuse(L"Error: cannot set a speech interval lower than 2000 ms");
  if (intervalMs > kLongestIntervalMs)
    return Refuse(L"Error: cannot set a speech interval greater than 30000 ms");
  speech_.Start(intervalMs);
  Unload();
}

void frmMacro::Refuse(const wchar_t* why) { ShowBox(program_.platform, BoxIcon::Information, why); }

}  // namespace troth
