#include "shell/frmHotkey.h"

#include <string>
#include <utility>
#include <vector>

#include "core/Program.h"
#include "core/Settings.h"
#include "core/modMain.h"
#include "platform/forms/KeyCodes.h"
#include "platform/services/DialogService.h"
#include "platform/services/FileService.h"
#include "script/MessageBoxes.h"
#include "script/Text.h"
#include "shell/HotkeyAdvice.h"
#include "shell/HotkeySettings.h"
#include "shell/Hotkeys.h"

namespace troth {

namespace {

// Only F1 to F12 are offered.
std::vector<std::wstring> KeyNames() {
  std::vector<std::wstring> names;
  for (int key = kF1Key; key <= kF12Key; ++key) names.push_back(L"F" + std::to_wstring(key - kF1Key + 1));
  return names;
}

// The entry of a key, or -1: the settings may hold any number.
int EntryOf(int key) { return key < kF1Key || key > kF12Key ? -1 : key - kF1Key; }

// For registrations that are taken back at once; no atom is that low.
constexpr std::uint16_t kTrialId = 1;

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
      pages_{{{frmSpeech, chkEnable, chkControl, chkAlt, chkShift, cmbKey, lblState},
              {frmScreenShot, chkSEnable, chkSControl, chkSAlt, chkSShift, cmbSKey, lblSState},
              {frmBox, chkEEnable, chkEControl, chkEAlt, chkEShift, cmbEKey, lblEState}}} {
  tabHotkey.OnClick = [this] { tabHotkey_Click(); };
  for (const HotkeyPage& page : pages_) {
    page.enable.OnClick = [this] { RefreshHotkeyControls(); };
    for (CheckBox* modifier : {&page.control, &page.alt, &page.shift})
      modifier->OnClick = [this] { ShowHotkeyStates(); };
  }
  for (CheckBox* box : {&chkLabel, &chkCounselor}) box->OnClick = [this] { RefreshHotkeyControls(); };
  picColor.OnClick = [this] { picColor_Click(); };
  cdmHelp.OnClick = [this] { modMain::ShowHelp(program_, *this); };
  cmdOK.OnClick = [this] { cmdOK_Click(); };
  cmdCancel.OnClick = [this] { Unload(); };
}

void frmHotkey::Form_Load() {
  for (std::size_t number = 0; number < pages_.size(); ++number) {
    const HotkeyPage& page = pages_[number];
    const HotkeyRecord& record = program_.Hotkeys.*kHotkeyTable[number].record;
    page.key.SetEntries(KeyNames());
    page.key.SetIndex(EntryOf(record.key));
    page.key.OnClick = [this] { ShowHotkeyStates(); };
    page.enable.SetTicked(record.enabled);
    page.control.SetTicked(record.control);
    page.alt.SetTicked(record.alt);
    page.shift.SetTicked(record.shift);
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
  program_.Screenshots = {
      .includeLabel = chkLabel.Ticked(),
      .includeNames = chkNames.Ticked(),
      .includeDate = chkDate.Ticked(),
      .includeCounselor = chkCounselor.Ticked(),
      .counselorName = std::wstring(TrimBlanks(txtCounselor.Text())),
      .labelPosition = cmbPosition.Index() >= 0 ? cmbPosition.Index() : program_.Screenshots.labelPosition,
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
  ShowHotkeyStates();
}

void frmHotkey::ShowHotkeyStates() {
  for (std::size_t number = 0; number < pages_.size(); ++number) {
    std::vector<HotkeyRecord> others;
    for (std::size_t other = 0; other < pages_.size(); ++other)
      if (other != number) others.push_back(Chosen(other));
    pages_[number].state.SetCaption(HotkeyAdvice(
        Chosen(number), others, [this](const HotkeyRecord& hotkey) { return WouldBeTaken(hotkey); }));
  }
}

// What the program itself has registered at this moment can be registered again by OK.
bool frmHotkey::WouldBeTaken(const HotkeyRecord& hotkey) {
  for (const HotkeyKind& kind : kHotkeyTable) {
    const HotkeyRecord& own = program_.Hotkeys.*kind.record;
    if (own.isRegistered && own.IsSameCombination(hotkey)) return true;
  }
  const bool isTaken = RegisterHotkey(kTrialId, hotkey.Modifiers(), hotkey.key);
  UnregisterHotkey(kTrialId);
  return isTaken;
}

// The frames lie on top of each other.
void frmHotkey::tabHotkey_Click() {
  const HotkeyPage& open = pages_[static_cast<std::size_t>(tabHotkey.Index())];
  for (const HotkeyPage& page : pages_) page.frame.SetVisible(&page.frame == &open.frame);
}

void frmHotkey::picColor_Click() {
  const auto color =
      program_.platform.dialogs.AskColor({.title = L"Please select a color for the screenshot label",
                                          .preset = picColor.BackColor().value_or(0)});
  if (color) picColor.SetBackColor(*color);
}

// A key that the list does not offer can stand in the settings alone; without a choice it stays.
HotkeyRecord frmHotkey::Chosen(std::size_t number) const {
  const HotkeyPage& page = pages_[number];
  HotkeyRecord chosen = program_.Hotkeys.*kHotkeyTable[number].record;
  chosen.enabled = page.enable.Ticked();
  chosen.control = page.control.Ticked();
  chosen.alt = page.alt.Ticked();
  chosen.shift = page.shift.Ticked();
  if (page.key.Index() >= 0) chosen.key = kF1Key + page.key.Index();
  return chosen;
}

bool frmHotkey::ComplainsOfConflict() const {
  for (const auto& [first, second] : {std::pair{0u, 1u}, {0u, 2u}, {1u, 2u}}) {
    const HotkeyRecord one = Chosen(first);
    const HotkeyRecord other = Chosen(second);
    if (!one.enabled || !other.enabled || !one.IsSameCombination(other)) continue;
    ShowBox(program_.platform, BoxIcon::Stop,
            std::wstring(L"You have configured the same hotkey for both the ") + kHotkeyTable[first].command +
                L" command and the " + kHotkeyTable[second].command +
                L" command. Please change your selection as they must be different.");
    return true;
  }
  return false;
}

void frmHotkey::cmdOK_Click() {
  if (ComplainsOfConflict()) return;
  for (std::size_t number = 0; number < pages_.size(); ++number)
    program_.Hotkeys.*kHotkeyTable[number].record = Chosen(number);
  TakeScreenshotOptions();
  program_.EditBoxSticky = chkSticky.Ticked();
  StoreHotkeyOptions(program_.platform, program_.Hotkeys, program_.Screenshots);
  WriteFlag(program_.platform, settings::EditBoxSticky, program_.EditBoxSticky);
  hotkeys_.UnregisterHotkeys();
  hotkeys_.RegisterHotkeys();
  Unload();
}

}  // namespace troth
