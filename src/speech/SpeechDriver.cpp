#include "speech/SpeechDriver.h"

#include <array>
#include <utility>

#include "platform/forms/KeyCodes.h"
#include "platform/services/DialogService.h"
#include "platform/services/KeyboardService.h"
#include "platform/services/TimeService.h"
#include "script/MessageBoxes.h"
#include "script/Text.h"
#include "core/MainWindow.h"
#include "core/Program.h"
#include "speech/GameOutput.h"

namespace troth {

namespace {

constexpr int kPauseBehindEnterMs = 300;
constexpr int kMostStepsOverEmptyRows = 100;
constexpr wchar_t kYellHead[] = L"! ";
constexpr wchar_t kEnterKeys[] = L"{ENTER}";

template <class Joint, class... Args>
void Call(const Joint& joint, Args&&... args) {
  if (joint) joint(std::forward<Args>(args)...);
}

std::wstring Through(const std::function<std::wstring(const std::wstring&)>& joint,
                     const std::wstring& text) {
  return joint ? joint(text) : text;
}

bool HasOwnSpeechMark(std::wstring_view text) {
  return text.size() >= 3 && (text.starts_with(L"; ") || text.starts_with(L": ") || text.starts_with(L"! "));
}

}  // namespace

SpeechDriver::SpeechDriver(Program& program, MainWindow& window, SpeechJoints joints)
    : program_(program), window_(window), joints_(std::move(joints)) {}

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
  Call(joints_.showParagraphs, std::move(titles));
  Call(joints_.selectParagraph, -1);
  program_.WindowReady = true;
  Call(joints_.enableGoto, hasRows);
  lstWedding_Click();
}

void SpeechDriver::ShowNothing() {
  window_.txtFile.SetText(L"");
  window_.lstWedding.Clear();
  Call(joints_.showParagraphs, std::vector<std::wstring>());
  Call(joints_.selectParagraph, -1);
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
  if (paragraph >= 0) Call(joints_.selectParagraph, paragraph - 1);
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
  if (text.starts_with(L'~') || text.starts_with(L'/')) return Through(joints_.expandVariables, text);
  if (head != kYellHead || !HasOwnSpeechMark(text)) return head + Through(joints_.expandVariables, text);
  // The row's own mark wins over the yell tick, but gives way to a prefix of the same look.
  if (prefix.empty()) return Through(joints_.expandVariables, text);
  return head + Through(joints_.expandVariables, text.substr(2));
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
  if (!window_.MOptionsUnicode.Checked()) sentence = Through(joints_.unicodeTranslate, sentence);

  if (!Speak(sentence)) {
    if (window_.tmrSpeak.Enabled()) Call(joints_.stopAutoSpeech);
    if (window_.MOptionsPopup.Checked())
      program_.platform.dialogs.ShowMessage(
          {.text = sentence, .title = L"Can't speak, KM is not running :)", .icon = BoxIcon::Information});
  }

  if (text.empty())
    AdvanceToNextRow();
  else
    endOfScript_ = false;
  if (endOfScript_ && window_.MOptionsPopup.Checked())
    ShowBox(program_.platform, BoxIcon::None,
            L"End of script, clicking on Speak again will start over.");
}

// False without a game window.
bool SpeechDriver::Speak(const std::wstring& sentence) {
  const Platform& platform = program_.platform;
  const WindowHandle game = FindGameWindow(platform.windows);
  if (game == WindowHandle::None) return false;
  platform.windows.Raise(game);
  const std::uint32_t raisedAt = platform.time.TickCount();

  bool isTaken = true;
  if (IsLeadingEnterDue(sentence, window_.MOptionsAuto.Checked())) {
    if (window_.MOptionsTranslate.Checked())
      platform.keyboard.TypeKeys(kEnterKeys);
    else
      isTaken = PostEnter(platform, game);
    WaitPumping(kPauseBehindEnterMs);
  }
  if (window_.MOptionsTranslate.Checked())
    platform.keyboard.TypeKeys(sentence + kEnterKeys);
  else if (isTaken)
    PostLine(platform, game, sentence);
  if (window_.MOptionsLearning.Checked()) Call(joints_.learnDelay, raisedAt);
  return true;
}

// Row 1 is the resting place of the script: the walk ends there, whatever the row is.
void SpeechDriver::AdvanceToNextRow() {
  endOfScript_ = false;
  int index = window_.lstWedding.Index();
  // A popup lets other handlers in, so the script is looked at anew for each row.
  for (;;) {
    const int count = window_.lstWedding.Count();
    if (count == 0) {
      // Nothing would ever end a run over nothing.
      Call(joints_.stopAutoSpeech);
      return;
    }
    index = (index + 1) % count;
    const WeddingRow& row = program_.ScriptNow.Rows()->Item(index + 1);
    const bool isTarget = IsAdvanceTarget(row, index);
    if (row.IsComment()) PassComment(row, index > 0);
    if (index == 0 || isTarget) break;
  }
  if (index == 0) {
    Call(joints_.stopAutoSpeech);
    endOfScript_ = true;
  }
  SelectRow(index);
}

// Builds the sentence anew also where the row stays, as in a script of one row.
void SpeechDriver::SelectRow(int index) {
  if (index == window_.lstWedding.Index())
    lstWedding_Click();
  else
    window_.lstWedding.SetIndex(index);
}

// A popup lets other handlers in, which may load another script: the texts are taken beforehand.
void SpeechDriver::PassComment(const WeddingRow& row, bool carryOut) {
  const std::wstring directive(TrimBlanks(std::wstring_view(row.OriginalText()).substr(1)));
  if (window_.MOptionsPopup.Checked() && row.WText().starts_with(L'&')) ShowPopup(row.WText().substr(1));
  if (carryOut) Call(joints_.carryOutDirective, directive);
}

// Unattended speech holds its breath while the officiant reads.
void SpeechDriver::ShowPopup(const std::wstring& text) {
  const bool wasSpeaking = window_.tmrSpeak.Enabled();
  window_.tmrSpeak.SetEnabled(false);
  Call(joints_.showPopup, text);
  if (wasSpeaking) window_.tmrSpeak.SetEnabled(true);
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
  Call(joints_.applyUserVars);
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

void SpeechDriver::WaitPumping(int ms) {
  const std::uint32_t start = program_.platform.time.TickCount();
  for (;;) {
    const auto passed = static_cast<int>(program_.platform.time.TickCount() - start);
    if (passed >= ms) return;
    program_.platform.time.Pump(ms - passed);
  }
}

}  // namespace troth
