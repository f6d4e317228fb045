// The fixture of an end-to-end test: the shipped program with its settings and script files, and the game
// simulator with its transcript. TROTH_PROGRAM names the folder of both programs, TROTH_TEMP
// one for scratch files.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "core/VersionRecord.h"
#include "tests/desktop/Driver.h"
#include "tests/desktop/ForeignList.h"
#include "tests/desktop/RealHands.h"

namespace troth::desktop {

inline constexpr wchar_t kVersion[] = L"" TROTH_VERSION_TEXT;

std::wstring ProgramPath(const std::wstring& executable);
// A script of the program folder, by its path below "wedscripts".
std::wstring SampleScriptPath(const std::wstring& script);
std::string ReadBytes(const std::wstring& path);
void WriteBytes(const std::wstring& path, const std::string& bytes);

// A file of the program folder with the bytes that a test wants. At the end the folder is as it was.
class ProgramFile {
 public:
  ProgramFile(const std::wstring& name, const std::string& bytes);
  ~ProgramFile();
  ProgramFile(const ProgramFile&) = delete;
  ProgramFile& operator=(const ProgramFile&) = delete;

  std::string Bytes() const { return ReadBytes(path_); }

 private:
  std::wstring path_;
  std::optional<std::string> before_;
};

// What the game heard: each character message's code as a byte, and the second parameters that occurred.
struct Heard {
  std::string bytes;
  std::set<long long> seconds;
};

// The game simulator. One without a transcript would be of no use here, so each has its own.
class Game {
 public:
  explicit Game(const std::vector<std::wstring>& arguments = {});
  ~Game();

  HWND Window() const { return window_; }
  // So far. Only whole lines count.
  Heard HeardSoFar() const;
  // All that was posted before now: closes the game after it and reads on to the end.
  Heard HeardToTheEnd();
  void EndStall();

 private:
  std::wstring transcript_;
  Process process_;
  HWND window_ = nullptr;
};

// The program at work.
class Troth {
 public:
  // Does not wait for the window: a box may come first, or nothing.
  Troth();

  const Process& Running() const { return process_; }
  // The main window, shown. Throws if it does not come.
  HWND Window();
  RealHands Hands() { return RealHands(Window()); }
  // The form of that name, shown. Throws if it does not come.
  HWND AwaitForm(const std::wstring& name) const;
  // Through its menu. False if it does not end well.
  bool Quit();

  // Throws if the main window has no such control.
  HWND Control(const std::wstring& name);
  std::wstring Text(const std::wstring& name) { return TextOf(Control(name)); }
  bool Enabled(const std::wstring& name) { return IsWindowEnabled(Control(name)); }
  bool Visible(const std::wstring& name) { return IsWindowVisible(Control(name)); }
  ForeignList List() { return ForeignList(process_, Control(L"lstWedding")); }
  // The name of the control that has the keyboard.
  std::wstring Focus() { return NameOf(FocusOf(Window())); }

  void Speak() { ClickButton(Control(L"cmdSpeak")); }
  void Choose(const std::wstring& item) { ChooseMenu(Window(), item); }
  bool Checked(const std::wstring& item) { return MenuState(Window(), item) & kMenuChecked; }
  // Leaves the item with that check mark.
  void SetChecked(const std::wstring& item, bool checked);

  // The box that comes up. Throws if none does.
  Box AwaitBox() const;
  // Presses its button and waits until it has gone.
  void Answer(const Box& box) const;
  // The same with the keyboard, once it shows the text.
  void AnswerBox(const std::wstring& text) const;
  // Types into the question for a line that comes up, and presses Enter.
  void AnswerQuestion(const std::wstring& prompt, const std::string& answer) const;
  bool BoxIsUp() const { return process_.FindBox().has_value(); }

 private:
  Process process_;
  HWND window_ = nullptr;
};

// Makes a program the one that opens files of that extension, for the time of a test.
class RegisteredReader {
 public:
  RegisteredReader(const std::wstring& extension, const std::wstring& commandLine);
  ~RegisteredReader();
  RegisteredReader(const RegisteredReader&) = delete;
  RegisteredReader& operator=(const RegisteredReader&) = delete;

 private:
  std::wstring extension_;
  std::wstring before_;
};

// A window manager may shift a new window by the width of its own frame.
void ExpectNear(HWND window, POINT corner);

// Leaves no settings and no files behind, and starts none of its own.
class DesktopTest : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // Writes the bytes to a scratch file and makes it the script of the next run. Lines end in CR LF.
  std::wstring UseScript(const std::string& bytes, const std::wstring& name = L"Vows.txt");
  void UseScriptPath(const std::wstring& path);

  // Settings of the program, as the registry has them. A test finds none but those that skip the greetings.
  static void ForgetAllSettings();
  static void SkipGreetings();
  static void StoreSetting(const std::wstring& section, const std::wstring& key, const std::wstring& value);
  // Empty if nothing is stored.
  static std::wstring StoredSetting(const std::wstring& section, const std::wstring& key);

  std::wstring ScratchPath(const std::wstring& name) const;

 private:
  bool hadScreenshots_ = false;
};

}  // namespace troth::desktop
