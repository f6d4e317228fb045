#include "speech/SpeechDriver.h"

#include <cstdint>
#include <utility>

#include "core/MainWindow.h"
#include "core/Program.h"
#include "platform/forms/KeyCodes.h"
#include "platform/services/DialogService.h"
#include "platform/services/KeyboardService.h"
#include "platform/services/TimeService.h"
#include "script/Expansion.h"
#include "script/MessageBoxes.h"
#include "script/Text.h"
#include "speech/GameOutput.h"
#include "speech/Learning.h"
#include "speech/UnattendedSpeech.h"

namespace troth {

namespace {

constexpr EnterPause kEnterPause{300, true};
constexpr std::uint32_t kKeyboardPatienceMs = 1000;
constexpr int kKeyboardPollMs = 10;
constexpr int kMostStepsOverEmptyRows = 100;
constexpr wchar_t kYellHead[] = L"! ";
constexpr wchar_t kEnterKeys[] = L"{ENTER}";

bool HasOwnSpeechMark(std::wstring_view text) {
  return text.size() >= 3 && (text.starts_with(L"; ") || text.starts_with(L": ") || text.starts_with(L"! "));
}

}  // namespace

SpeechDriver::SpeechDriver(Program& program, MainWindow& window, UnattendedSpeech& unattended,
                           Learning& learning, SpeechCallbacks callbacks)
    : program_(program),
      window_(window),
      unattended_(unattended),
      learning_(learning),
      callbacks_(std::move(callbacks)) {}

std::wstring SpeechDriver::ExpandVariables(const std::wstring& text) const {
  return troth::ExpandVariables(text, program_.DynamicVars);
}

std::wstring SpeechDriver::UnicodeTranslate(const std::wstring& text) const {
  return program_.UnicodeTable.Translate(text, program_.platform.text);
}

void SpeechDriver::ShowLanguage() {
  const WeddingScript& script = program_.ScriptNow;
  if (script.sFileName().empty()) {
    ShowNothing();
    return;
  }
  window_.txtFile.SetText(script.LanguageString());
  program_.WindowReady = false;

  const WeddingRows& rows = *script.Rows();
  std::vector<ListEntry> entries;
  std::vector<std::wstring> titles;
  entries.reserve(static_cast<std::size_t>(rows.Count()));
  int lastPointer = 0;
  for (const WeddingRow& row : rows) {
    if (row.IndexPointer() > lastPointer) {
      lastPointer = row.IndexPointer();
      IndexEntry& paragraph = program_.ScriptIndexEntries.Item(lastPointer);
      titles.push_back(paragraph.IText());
      paragraph.ListPointer(static_cast<int>(entries.size()));
    }
    entries.push_back({.text = row.WText(), .ticked = !row.IsComment()});
  }
  const bool hasRows = !entries.empty();
  window_.lstWedding.SetEntries(std::move(entries), hasRows ? 0 : -1);
  callbacks_.showParagraphs(titles, hasRows);
  program_.WindowReady = true;
  lstWedding_Click();
  WarnIfTruncated();
}

// Last of all: a handler that runs while the box is up finds rows, lists and current row in agreement.
void SpeechDriver::WarnIfTruncated() {
  if (!program_.ScriptNow.IsTruncated()) return;
  program_.ScriptNow.IsTruncated(false);
  ShowBox(program_.platform, BoxIcon::Warning,
          L"This script has more than 32767 rows. Only the first 32767 are loaded.");
}

void SpeechDriver::ShowNothing() {
  window_.txtFile.SetText(L"");
  window_.lstWedding.Clear();
  callbacks_.showParagraphs({}, false);
}

void SpeechDriver::lstWedding_Click() {
  const int index = window_.lstWedding.Index();
  program_.ScriptNow.CurrentRow(index + 1);
  window_.cmdSpeak.SetEnabled(index >= 0);
  if (!program_.WindowReady) return;
  if (index < 0) {
    window_.txtNext.SetText(L"");
    return;
  }
  window_.txtNext.SetText(SelectNewText());
  const int paragraph = program_.ScriptNow.Rows()->Item(index + 1).IndexPointer();
  if (paragraph >= 0) callbacks_.selectParagraph(paragraph - 1);
}

std::wstring SpeechDriver::SelectNewText() {
  const int number = program_.ScriptNow.CurrentRow();
  if (number < 1) return {};
  const WeddingRow& row = program_.ScriptNow.Rows()->Item(number);
  const std::wstring prefix(TrimBlanks(window_.txtPrefix.Text()));
  const std::wstring head = Head(prefix);
  program_.RowDelay = row.Delay();
  if (row.IsComment() || !window_.lstWedding.Ticked(number - 1)) return {};

  const std::wstring& text = row.WText();
  if (text.size() <= 1) return head;
  if (text.starts_with(L'~') || text.starts_with(L'/')) return ExpandVariables(text);
  if (head != kYellHead || !HasOwnSpeechMark(text)) return head + ExpandVariables(text);
  // The row's own mark wins over the yell tick, but gives way to a prefix of the same look.
  if (prefix.empty()) return ExpandVariables(text);
  return head + ExpandVariables(text.substr(2));
}

std::wstring SpeechDriver::Head(const std::wstring& prefix) const {
  if (!prefix.empty()) return prefix + L' ';
  return window_.chkYell.Ticked() ? kYellHead : L"";
}

void SpeechDriver::DoSpeechRow(const std::wstring& text) {
  std::wstring sentence(TrimBlanks(text.empty() ? window_.txtNext.Text() : text));
  if (sentence.empty()) {
    AdvanceToNextRow();
    return;
  }
  if (!window_.MOptionsUnicode.Checked()) sentence = UnicodeTranslate(sentence);

  const std::int32_t script = program_.ScriptNow.Loads();
  const auto raisedAt = Speak(sentence);
  if (!raisedAt) {
    window_.StopAutoSpeech();
    if (window_.MOptionsPopup.Checked())
      program_.platform.dialogs.ShowMessage(
          {.text = sentence, .title = L"Can't speak, KM is not running :)", .icon = BoxIcon::Information});
  }
  // Another script that was opened meanwhile starts at its first row.
  if (program_.ScriptNow.Loads() != script) return;
  if (raisedAt && window_.MOptionsLearning.Checked()) learning_.LearnDelay(*raisedAt);

  if (text.empty())
    AdvanceToNextRow();
  else
    endOfScript_ = false;
  if (endOfScript_ && window_.MOptionsPopup.Checked())
    ShowBox(program_.platform, BoxIcon::None, L"End of script, clicking on Speak again will start over.");
}

// Keys go to whatever window has the keyboard, so none may be typed before the game has it.
bool SpeechDriver::GiveKeyboard(WindowHandle game) {
  const Platform& platform = program_.platform;
  platform.windows.Raise(game);
  const std::uint32_t start = platform.time.TickCount();
  while (!platform.windows.HasKeyboard(game)) {
    if (platform.time.TickCount() - start >= kKeyboardPatienceMs) return false;
    platform.time.Pump(kKeyboardPollMs);
  }
  return true;
}

// The sentence is lost, as it is without a game, and the next ones would be.
void SpeechDriver::WarnOfMissingRights() {
  window_.StopAutoSpeech();
  if (!window_.MOptionsPopup.Checked() || std::exchange(hasWarnedOfRights_, true)) return;
  ShowBox(
      program_.platform, BoxIcon::Warning,
      L"Kestrel Moors does not take what Trothline types, because it runs as administrator. Start the game "
      L"as an ordinary program, or start Trothline as administrator, too.");
}

// When the game was raised; nothing without a game window, and for keystrokes also if it does not get the
// keyboard.
std::optional<std::uint32_t> SpeechDriver::Speak(const std::wstring& sentence) {
  const Platform& platform = program_.platform;
  const WindowHandle game = FindGameWindow(platform.windows);
  if (game == WindowHandle::None) return std::nullopt;
  const std::uint32_t raisedAt = platform.time.TickCount();
  const bool autoterminate = window_.MOptionsAuto.Checked();
  if (window_.MOptionsTranslate.Checked()) {
    if (!GiveKeyboard(game)) return std::nullopt;
    if (IsLeadingEnterDue(sentence, autoterminate)) {
      platform.keyboard.TypeKeys(kEnterKeys);
      kEnterPause.Wait(platform.time);
      if (!platform.windows.HasKeyboard(game) && !GiveKeyboard(game)) return std::nullopt;
    }
    platform.keyboard.TypeKeys(sentence + kEnterKeys);
  } else {
    SendLine(platform, game, sentence, autoterminate, kEnterPause);
    if (platform.windows.LacksRights()) WarnOfMissingRights();
  }
  return raisedAt;
}

// Row 1 is the resting place of the script: the walk ends there, whatever the row is. It is never a target,
// and its directive is never carried out; the popup of a comment in it is shown all the same.
void SpeechDriver::AdvanceToNextRow() {
  endOfScript_ = false;
  int index = window_.lstWedding.Index();
  const std::int32_t script = program_.ScriptNow.Loads();
  // Other handlers can run during a popup, so list and script are read again for each row.
  for (;;) {
    const int count = window_.lstWedding.Count();
    if (count == 0) {
      // Nothing else would ever end a run without rows.
      window_.StopAutoSpeech();
      return;
    }
    index = (index + 1) % count;
    const WeddingRow& row = program_.ScriptNow.Rows()->Item(index + 1);
    const bool isTarget = IsAdvanceTarget(row, index);
    if (row.IsComment()) PassComment(row, index > 0);
    if (program_.ScriptNow.Loads() != script) return;
    if (index == 0 || isTarget) break;
  }
  if (index == 0) {
    window_.StopAutoSpeech();
    endOfScript_ = true;
  }
  SelectRow(index);
}

// Builds the sentence again also where the row stays, as in a script of one row.
void SpeechDriver::SelectRow(int index) {
  if (index == window_.lstWedding.Index())
    lstWedding_Click();
  else
    window_.lstWedding.SetIndex(index);
}

// Handlers that run during a popup may load another script: the text of the directive is copied first.
void SpeechDriver::PassComment(const WeddingRow& row, bool carryOut) {
  const std::wstring directive(TrimBlanks(std::wstring_view(row.OriginalText()).substr(1)));
  if (window_.MOptionsPopup.Checked() && row.WText().starts_with(L'&')) {
    unattended_.Hold();
    callbacks_.showPopup(row.WText().substr(1));
  }
  if (carryOut) callbacks_.carryOutDirective(directive);
}

bool SpeechDriver::IsAdvanceTarget(const WeddingRow& row, int index) const {
  if (row.IsComment() || !window_.lstWedding.Ticked(index)) return false;
  const std::wstring& text = row.WText();
  if (text.size() < 2) return true;
  return !(text.starts_with(L'/') && window_.MOptionsCounselor.Checked()) &&
         !(text.starts_with(L':') && window_.MOptionsEmote.Checked());
}

void SpeechDriver::RefreshScript() {
  const int index = window_.lstWedding.Index();
  modScript::ApplyUserVars(program_.ScriptNow, program_.UserVars);
  ShowLanguage();
  window_.lstWedding.SetIndex(index);
}

void SpeechDriver::HandleRowNavKey(KeyPress& press) {
  const int last = window_.lstWedding.Count() - 1;
  if (last < 0) return;
  if (press.shift == kControlDown && (press.keyCode == kEndKey || press.keyCode == kHomeKey)) {
    window_.lstWedding.SetIndex(press.keyCode == kEndKey ? last : 0);
    press.handled = true;
  } else if (press.shift == 0 && (press.keyCode == kUpKey || press.keyCode == kDownKey)) {
    StepOverEmptyRows(press.keyCode == kUpKey ? -1 : 1);
    press.handled = true;
  }
}

void SpeechDriver::MOptionsRestore_Click() {
  const int index = window_.lstWedding.Index();
  if (Confirms(program_.platform,
               L"Do you really want to restore selected rows to the default configuration?"))
    for (int row = window_.lstWedding.Count() - 1; row >= 0; --row)
      window_.lstWedding.SetTicked(row, !program_.ScriptNow.Rows()->Item(row + 1).IsComment());
  window_.lstWedding.SetIndex(-1);
  window_.lstWedding.SetIndex(index);
}

void SpeechDriver::StepOverEmptyRows(int step) {
  const int count = window_.lstWedding.Count();
  int steps = 0;
  do {
    SelectRow((window_.lstWedding.Index() + step + count) % count);
  } while (window_.txtNext.Text().empty() && ++steps < kMostStepsOverEmptyRows);
}

}  // namespace troth
