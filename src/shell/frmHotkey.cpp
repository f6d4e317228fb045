#include "shell/frmHotkey.h"

#include <string>
#include <utility>
#include <vector>

#include "platform/services/DialogService.h"
#include "platform/services/FileService.h"
#include "script/MessageBoxes.h"
#include "script/Text.h"
#include "shell/Hotkeys.h"
#include "core/Program.h"
#include "core/Settings.h"
#include "core/modMain.h"

namespace troth {

namespace {

// The virtual key codes of F1 to F12, the only keys that are offered.
constexpr int kFirstKey = 112;
constexpr int kKeys = 12;

std::vector<std::wstring> KeyNames() {
  std::vector<std::wstring> names;
  for (int number = 1; number <= kKeys; ++number) names.push_back(L"F" + std::to_wstring(number));
  return names;
}

}  // namespace

frmHotkey::frmHotkey(Program& program, Hotkeys& hotkeys)
    : Form(program.platform.forms, {.name = L"frmHotkey",
                                    .caption = L"Trothline Hotkeys",
                                    .clientSize = {5535, 6735},
                                    .border = BorderStyle::FixedDialog,
                                    .helpContext = 9,
                                    .isCentred = true}),
      program_(program),
      hotkeys_(hotkeys),
      pages_{
          {{L"speech", program.Hotkeys.Speech, chkEnable, chkControl, chkAlt, chkShift, cmbKey},
           {L"screenshot", program.Hotkeys.Screenshot, chkSEnable, chkSControl, chkSAlt, chkSShift, cmbSKey},
           {L"edit box", program.Hotkeys.EditBox, chkEEnable, chkEControl, chkEAlt, chkEShift, cmbEKey}}} {
  tabHotkey.OnClick = [this] { tabHotkey_Click(); };
  for (CheckBox* box : {&chkEnable, &chkSEnable, &chkEEnable, &chkLabel, &chkCounselor})
    box->OnClick = [this] { RefreshHotkeyControls(); };
  picColor.OnClick = [this] { picColor_Click(); };
  cdmHelp.OnClick = [this] { modMain::ShowHelp(program_, *this); };
  cmdOK.OnClick = [this] { cmdOK_Click(); };
  cmdCancel.OnClick = [this] { Unload(); };
}

void frmHotkey::Form_Load() {
  for (const HotkeyPage& page : pages_) {
    const HotkeyRecord& record = page.record;
    page.key.SetEntries(KeyNames());
    page.key.SetIndex(record.key - kFirstKey);
    page.enable.SetTicked(record.enabled);
    page.control.SetTicked(record.control);
    page.alt.SetTicked(record.alt);
    page.shift.SetTicked(record.shift);
    if (record.isRefused)
      page.enable.SetToolTip(L"Does not work now: another program holds this combination of keys");
  }
  ShowScreenshotOptions();
  chkSticky.SetTicked(program_.EditBoxSticky);
  RefreshHotkeyControls();
}

void frmHotkey::ShowScreenshotOptions() {
  const ScreenshotOptions& options = program_.Screenshots;
  lblFile2.SetCaption(program_.platform.files.ProgramFolder() + L"\\Screenshots");
  chkLabel.SetTicked(options.includeLabel);
  chkNames.SetTicked(options.includeNames);
  chkDate.SetTicked(options.includeDate);
  chkCounselor.SetTicked(options.includeCounselor);
  txtCounselor.SetText(options.counselorName);
  cmbPosition.SetEntries({L"Top Left", L"Top Right", L"Bottom Left", L"Bottom Right"});
  cmbPosition.SetIndex(options.labelPosition);
  picColor.SetBackColor(options.textColor);
  txtFileName.SetText(options.baseFileName);
  chkPreview.SetTicked(options.showPreview);
  chkClient.SetTicked(options.removeBorder);
}

void frmHotkey::TakeScreenshotOptions() {
  program_.Screenshots = {.includeLabel = chkLabel.Ticked(),
                          .includeNames = chkNames.Ticked(),
                          .includeDate = chkDate.Ticked(),
                          .includeCounselor = chkCounselor.Ticked(),
                          .counselorName = std::wstring(TrimBlanks(txtCounselor.Text())),
                          .labelPosition = cmbPosition.Index(),
                          .textColor = picColor.BackColor().value_or(0),
                          .baseFileName = std::wstring(TrimBlanks(txtFileName.Text())),
                          .showPreview = chkPreview.Ticked(),
                          .removeBorder = chkClient.Ticked()};
}

void frmHotkey::RefreshHotkeyControls() {
  for (const HotkeyPage& page : pages_) {
    const bool enabled = page.enable.Ticked();
    page.control.SetEnabled(enabled);
    page.alt.SetEnabled(enabled);
    page.shift.SetEnabled(enabled);
    page.key.SetEnabled(enabled);
  }
  const bool labelled = chkLabel.Ticked();
  chkNames.SetEnabled(labelled);
  chkDate.SetEnabled(labelled);
  chkCounselor.SetEnabled(labelled);
  cmbPosition.SetEnabled(labelled);
  txtCounselor.SetVisible(labelled && chkCounselor.Ticked());
}

// The frames lie on top of each other.
void frmHotkey::tabHotkey_Click() {
  const std::wstring& caption = tabHotkey.Tabs()[static_cast<std::size_t>(tabHotkey.Index())].caption;
  for (Frame* frame : {&frmSpeech, &frmScreenShot, &frmBox})
    frame->SetVisible(frame->CaptionText() == caption);
}

void frmHotkey::picColor_Click() {
  const auto color =
      program_.platform.dialogs.AskColor({.title = L"Please select a color for the screenshot label",
                                          .preset = picColor.BackColor().value_or(0)});
  if (color) picColor.SetBackColor(*color);
}

// A key that the list does not offer can stand in the settings alone; without a choice it stays.
HotkeyRecord frmHotkey::Chosen(const HotkeyPage& page) const {
  HotkeyRecord chosen = page.record;
  chosen.enabled = page.enable.Ticked();
  chosen.control = page.control.Ticked();
  chosen.alt = page.alt.Ticked();
  chosen.shift = page.shift.Ticked();
  if (page.key.Index() >= 0) chosen.key = kFirstKey + page.key.Index();
  return chosen;
}

bool frmHotkey::ComplainsOfConflict() const {
  for (const auto& [first, second] : {std::pair{0u, 1u}, {0u, 2u}, {1u, 2u}}) {
    const HotkeyRecord one = Chosen(pages_[first]);
    const HotkeyRecord other = Chosen(pages_[second]);
    if (!one.enabled || !other.enabled || one.key != other.key || one.Modifiers() != other.Modifiers())
      continue;
    ShowBox(program_.platform, BoxIcon::Stop,
            std::wstring(L"You have configured the same hotkey for both the ") + pages_[first].command +
                L" command and the " + pages_[second].command +
                L" command. Please change your selection as they must be different.");
    return true;
  }
  return false;
}

void frmHotkey::cmdOK_Click() {
  if (ComplainsOfConflict()) return;
  for (const HotkeyPage& page : pages_) page.record = Chosen(page);
  TakeScreenshotOptions();
  program_.EditBoxSticky = chkSticky.Ticked();
  StoreHotkeyOptions(program_.platform, program_.Hotkeys, program_.Screenshots);
  WriteFlag(program_.platform, settings::EditBoxSticky, program_.EditBoxSticky);
  hotkeys_.UnregisterHotkeys();
  hotkeys_.RegisterHotkeys();
  Unload();
}

}  // namespace troth
