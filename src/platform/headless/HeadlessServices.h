// The small services of the headless backend: settings, message boxes, keys, the 8-bit page, and the
// end of the process. Each behaves, and each can be made to fail.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>

#include "platform/headless/HeadlessJournal.h"
#include "platform/services/DialogService.h"
#include "platform/services/KeyboardService.h"
#include "platform/services/ProcessService.h"
#include "platform/services/SettingsStore.h"
#include "platform/services/ShellService.h"
#include "platform/services/TextService.h"

namespace troth {

class HeadlessSettings final : public SettingsStore {
 public:
  std::optional<std::wstring> Read(const std::wstring& application, const std::wstring& section,
                                   const std::wstring& key) const override;
  void Write(const std::wstring& application, const std::wstring& section, const std::wstring& key,
             const std::wstring& value) override;

  // As the user or an earlier run has left it.
  void Put(const std::wstring& application, const std::wstring& section, const std::wstring& key,
           const std::wstring& value);
  // Notes each write from now on: "save APPLICATION\\SECTION\\KEY=VALUE".
  void RecordIn(HeadlessJournal& journal) { journal_ = &journal; }

 private:
  static std::wstring Name(const std::wstring& application, const std::wstring& section,
                           const std::wstring& key);

  std::map<std::wstring, std::wstring> values_;
  HeadlessJournal* journal_ = nullptr;
};

// Records what is opened and started; a test says what is registered and what fails.
class HeadlessShell final : public ShellService {
 public:
  explicit HeadlessShell(HeadlessJournal& journal) : journal_(journal) {}
  bool Open(const std::wstring& file, const std::wstring& parameters, const std::wstring& folder) override;
  std::optional<std::wstring> FindProgramFor(const std::wstring& file) override;
  bool Start(const std::wstring& commandLine) override;
  std::optional<std::wstring> ReadRegistry(RegistryRoot root, const std::wstring& key,
                                           const std::wstring& valueName) override;
  bool ShowHelpFile(const std::wstring& helpFile, int topic) override;
  void CloseHelpFile(const std::wstring& helpFile) override;

  std::optional<std::wstring> programForAll = L"C:\\Programs\\Browser.exe";
  std::map<std::wstring, std::wstring> registry;  // "KEY" or "KEY\\NAME" to the value
  bool opens = true;
  bool starts = true;
  bool hasHelpViewer = false;

 private:
  HeadlessJournal& journal_;
};

// A box with OK alone is answered by itself; one that asks needs an answer given beforehand, or the test
// fails. A question for a text, a colour or a file reads "ask TITLE: PROMPT [PRESET]" in the journal, a sound
// "beep".
class HeadlessDialogs final : public DialogService {
 public:
  explicit HeadlessDialogs(HeadlessJournal& journal) : journal_(journal) {}
  BoxAnswer ShowMessage(const MessageBoxRequest& request) override;
  std::optional<std::wstring> AskText(const TextRequest& request) override;
  std::optional<Color> AskColor(const ColorRequest& request) override;
  std::optional<std::wstring> AskOpenFile(const FileRequest& request) override;
  std::optional<std::wstring> AskSaveFile(const FileRequest& request) override;
  void Beep() override { journal_.Add("beep"); }

  void Answer(BoxAnswer answer) { answers_.push_back(answer); }
  // Nothing is Cancel.
  void AnswerText(std::optional<std::wstring> answer) { texts_.push_back(std::move(answer)); }
  void AnswerColor(std::optional<Color> answer) { colors_.push_back(answer); }
  void AnswerFile(std::optional<std::wstring> path) { paths_.push_back(std::move(path)); }
  // Runs while the next box is up, before it is answered.
  void WhileNextBox(std::function<void()> act) { whileUp_ = std::move(act); }
  const std::vector<MessageBoxRequest>& Shown() const { return shown_; }
  // The requests for a file, open and save.
  const std::vector<FileRequest>& FilesAsked() const { return filesAsked_; }

 private:
  std::optional<std::wstring> AskFile(const FileRequest& request);

  HeadlessJournal& journal_;
  std::deque<BoxAnswer> answers_;
  std::deque<std::optional<std::wstring>> texts_;
  std::deque<std::optional<Color>> colors_;
  std::deque<std::optional<std::wstring>> paths_;
  std::vector<FileRequest> filesAsked_;
  std::function<void()> whileUp_;
  std::vector<MessageBoxRequest> shown_;
};

class HeadlessKeyboard final : public KeyboardService {
 public:
  explicit HeadlessKeyboard(HeadlessJournal& journal) : journal_(journal) {}
  void TypeKeys(std::wstring_view notation) override {
    journal_.Add("keys " + HeadlessJournal::Readable(notation));
  }
  std::uint16_t AddGlobalAtom(const std::wstring& name) override;
  void DeleteGlobalAtom(std::uint16_t atom) override;

  // The names that are held, by their numbers.
  const std::map<std::uint16_t, std::wstring>& Atoms() const { return atoms_; }

 private:
  HeadlessJournal& journal_;
  std::map<std::uint16_t, std::wstring> atoms_;
  std::map<std::uint16_t, int> holders_;
  std::uint16_t lastAtom_ = 0xBFFF;
};

// Code page 1252, the page of western systems.
class HeadlessText final : public TextService {
 public:
  std::wstring Decode(std::string_view bytes) const override;
  std::string Encode(std::wstring_view text) const override;
};

// What EndNow throws through to the test.
struct ProcessEnded {
  int exitCode;
};

class HeadlessProcess final : public ProcessService {
 public:
  explicit HeadlessProcess(HeadlessJournal& journal) : journal_(journal) {}
  bool IsSecondInstance() override { return isSecondInstance; }
  std::uint32_t RandomSeed() override { return seed; }
  [[noreturn]] void EndNow(int exitCode) override {
    journal_.Add("end " + std::to_string(exitCode));
    throw ProcessEnded{exitCode};
  }

  bool isSecondInstance = false;
  std::uint32_t seed = 1;

 private:
  HeadlessJournal& journal_;
};

}  // namespace troth
