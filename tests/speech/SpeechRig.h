// A run of the program on the headless desktop: a script, a game window that records, and a person who
// clicks and types. The story of a run is the journal with the posted characters of one go in one line.
#pragma once

#include <functional>
#include <utility>

#include "core/Program.h"
#include "core/Version.h"
#include "script/modScript.h"
#include "shell/frmTroth.h"
#include "speech/GameOutput.h"
#include "speech/Learning.h"
#include "speech/SpeechDriver.h"
#include "speech/UnattendedSpeech.h"
#include "tests/HeadlessTest.h"

namespace troth {

inline const std::wstring kScriptPath = L"C:\\Games\\Trothline\\wedscripts\\Vows.txt";
inline const std::string kRaise = "raise Kestrel Moors";
inline const std::string kEndOfScriptBox =
    "box plain Trothline: End of script, clicking on Speak again will start over.";

// A main window over a speech driver whose callbacks are the test's own.
class DriverWindow final : public MainWindow {
 public:
  DriverWindow(Program& program, SpeechCallbacks callbacks, std::function<void()> onStop)
      : MainWindow(program.platform.forms, {.name = L"frmTroth", .clientSize = {8160, 3225}}),
        unattended_(program, *this),
        learning_(program, *this),
        speech_(program, *this, unattended_, learning_, std::move(callbacks)),
        onStop_(std::move(onStop)) {
    cmdSpeak.OnClick = [this] { DoSpeechRow(L""); };
    lstWedding.OnClick = [this] { speech_.lstWedding_Click(); };
    txtNext.OnKeyDown = [this](KeyPress& press) { speech_.HandleRowNavKey(press); };
  }

  void DoSpeechRow(const std::wstring& text) override { speech_.DoSpeechRow(text); }
  std::wstring SelectNewText() override { return speech_.SelectNewText(); }
  void ShowLanguage() override { speech_.ShowLanguage(); }
  void RefreshScript() override { speech_.RefreshScript(); }
  void OpenScript(const std::wstring&) override {}
  void StopAutoSpeech() override { onStop_(); }
  std::wstring ExpandVariables(const std::wstring& text) override { return speech_.ExpandVariables(text); }
  std::wstring UnicodeTranslate(const std::wstring& text) override { return speech_.UnicodeTranslate(text); }

 private:
  UnattendedSpeech unattended_;
  Learning learning_;
  SpeechDriver speech_;
  std::function<void()> onStop_;
};

// As after the first run: the greetings have been seen and put away.
inline void SkipGreetings(HeadlessDesktop& desktop) {
  desktop.settings.Put(L"Troth", L"Options", L"Show Tips at Startup", L"0");
  desktop.settings.Put(L"Troth", L"Options", L"Last Installed Version", RunningVersion().Text());
}

class SpeechTest : public HeadlessTest {
 protected:
  SpeechTest() { SkipGreetings(desktop); }

  // The program as it starts, with a script of these lines.
  void Start(const Lines& lines) {
    PutScript(lines);
    Store(L"Last Script", kScriptPath);
    window = &program.Open<frmTroth>();
    window->Show();
  }

  // A main window with `callbacks`, which by then are as the test wants them.
  void StartDriver(const Lines& lines) {
    window = &program.Open<DriverWindow>(callbacks, [this] { desktop.journal.Add("stop"); });
    window->Show();
    LoadScript(lines);
  }

  void LoadScript(const Lines& lines) {
    PutScript(lines);
    program.ScriptNow.sFileName(kScriptPath);
    modScript::LoadScriptFile(program.ScriptNow, program.ScriptIndexEntries, desktop.platform);
    window->ShowLanguage();
  }

  void UnloadScript() {
    program.ScriptNow.sFileName(L"");
    program.ScriptNow.Rows(nullptr);
    window->ShowLanguage();
  }

  void PutScript(const Lines& lines) {
    std::string bytes;
    for (const std::string& line : lines) bytes += line + "\r\n";
    files.Put(kScriptPath, bytes);
  }

  void StartGame(const wchar_t* windowClass = kGameClass) { game = &desktop.windows.Open(windowClass); }

  // --- What the person does. ---
  void Speak() { user.Click(window->cmdSpeak); }
  void SelectRow(int number) { user.Select(window->lstWedding, number - 1); }
  void Check(MenuItem& item, bool checked) {
    if (item.Checked() != checked) user.Choose(item);
  }
  void Tick(CheckBox& box, bool ticked) {
    if (box.Ticked() != ticked) user.Click(box);
  }
  void TypeOver(TextBox& box, std::wstring_view text) {
    user.Click(box);
    while (!box.Text().empty()) user.Press(kBackspaceKey);
    user.Type(text);
  }

  // --- What comes of it. ---
  int Row() const { return window->lstWedding.Index() + 1; }
  std::string Next() const { return Readable(window->txtNext.Text()); }

  // What happened since the last time. Posted characters read "posts Hi<13>".
  Lines TakeStory() {
    Lines story;
    bool isPosting = false;
    for (const std::string& line : HeadlessTest::TakeStory()) {
      const bool isPost = line.starts_with("post ");
      if (isPost && !isPosting) story.push_back("posts ");
      if (!isPost) story.push_back(line);
      isPosting = isPost;
      if (!isPost) continue;
      const int code = std::stoi(line.substr(5));
      story.back() += code >= 32 && code < 127 ? std::string(1, static_cast<char>(code))
                                               : "<" + std::to_string(code) + ">";
    }
    return story;
  }

  // A callback that writes its argument into the story.
  auto Writer(const std::string& what) {
    return [this, what](const std::wstring& text) { desktop.journal.Add(what + " " + Readable(text)); };
  }

  HeadlessWindow* game = nullptr;
  Program program{desktop.platform};
  SpeechCallbacks callbacks{.showPopup = [](const std::wstring&) {},
                            .carryOutDirective = [](const std::wstring&) {},
                            .showParagraphs = [](const std::vector<std::wstring>&, bool) {},
                            .selectParagraph = [](int) {}};
  MainWindow* window = nullptr;
};

}  // namespace troth
