// A whole run of the program on the headless desktop, for the tests of its start, its windows and its end.
// Files that the program touches and settings that it saves join the journal, so that one story contains all:
// "write PATH", "copy PATH to PATH", "delete PATH", "save APPLICATION\SECTION\KEY=VALUE".
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/Program.h"
#include "core/Version.h"
#include "guide/frmAbout.h"
#include "guide/frmIntro.h"
#include "guide/frmTip.h"
#include "platform/forms/KeyCodes.h"
#include "platform/headless/HeadlessDesktop.h"
#include "shell/StartUp.h"
#include "shell/frmTroth.h"

namespace troth {

class JournalledSettings final : public SettingsStore {
 public:
  explicit JournalledSettings(HeadlessDesktop& desktop)
      : store_(desktop.settings), journal_(desktop.journal) {}

  std::optional<std::wstring> Read(const std::wstring& application, const std::wstring& section,
                                   const std::wstring& key) const override {
    return store_.Read(application, section, key);
  }
  void Write(const std::wstring& application, const std::wstring& section, const std::wstring& key,
             const std::wstring& value) override {
    journal_.Add("save " +
                 HeadlessJournal::Readable(application + L'\\' + section + L'\\' + key + L'=' + value));
    store_.Write(application, section, key, value);
  }

 private:
  HeadlessSettings& store_;
  HeadlessJournal& journal_;
};

class RunTest : public testing::Test {
 protected:
  using Story = std::vector<std::string>;

  const std::wstring version = RunningVersion().Text();
  static constexpr wchar_t kTipPath[] = L"C:\\Games\\Trothline\\TIPOFDAY.TXT";

  HeadlessDesktop desktop;
  HeadlessUser& user = desktop.user;
  HeadlessFiles& files = desktop.files;
  JournalledSettings settings{desktop};
  Platform platform{.forms = desktop.forms,
                    .windows = desktop.windows,
                    .keyboard = desktop.keyboard,
                    .time = desktop.time,
                    .files = files,
                    .settings = settings,
                    .shell = desktop.shell,
                    .dialogs = desktop.dialogs,
                    .text = desktop.text,
                    .process = desktop.process,
                    .graphics = desktop.graphics};
  std::optional<Program> program;

  RunTest() { files.RecordIn(desktop.journal); }

  // One run from its first window to its last. `act` is the person at the desk, who has to leave in the end.
  void Run(std::function<void()> act) {
    program.emplace(platform);
    desktop.time.After(100, std::move(act));
    RunProgram(*program);
  }

  // A run whose first window is the main window, alone; the person leaves by Exit.
  void RunMain(const std::function<void()>& act) {
    Store(L"Show Tips at Startup", L"0");
    Store(L"Last Installed Version", version);
    Store(L"Index Visible", L"0");
    Run([&] {
      act();
      if (program->Opened<frmTroth>()) user.Choose(Main().MFileQuit);
    });
  }

  // A run that starts with a tip, and goes to the main window without release notes.
  void RunFromTip(const std::function<void()>& act) {
    Store(L"Last Installed Version", version);
    Store(L"Index Visible", L"0");
    Run([&] {
      act();
      if (auto* tip = program->Opened<frmTip>()) user.Click(tip->cmdOK);
      user.Choose(Main().MFileQuit);
    });
  }

  // What the person does in the about window, opened from the menu. It is closed afterwards.
  void InAbout(const std::function<void()>& act) {
    desktop.forms.WhenModal(L"frmAbout", [this, act] {
      act();
      user.Click(About().cmdOK);
    });
    user.Choose(Main().MFileAbout);
  }

  frmTroth& Main() { return The<frmTroth>("frmTroth"); }
  frmTip& Tip() { return The<frmTip>("frmTip"); }
  frmIntro& Intro() { return The<frmIntro>("frmIntro"); }
  frmAbout& About() { return The<frmAbout>("frmAbout"); }

  // Names of the windows that one sees, the topmost first.
  Story Shown() const {
    Story names;
    for (const HeadlessForm* form : desktop.forms.StackingOrder())
      names.push_back(HeadlessJournal::Readable(form->Portable().Name()));
    return names;
  }

  // Section "Options" of the program's own settings.
  void Store(const std::wstring& key, const std::wstring& value) {
    desktop.settings.Write(L"Troth", L"Options", key, value);
  }
  std::wstring Stored(const std::wstring& key) const {
    return desktop.settings.Read(L"Troth", L"Options", key).value_or(L"(nothing)");
  }

  // What the outside saw since the last time.
  Story TakeStory() {
    Story story = desktop.journal.Lines();
    desktop.journal.Clear();
    return story;
  }

 private:
  template <class Window>
  Window& The(const char* name) {
    auto* window = program->Opened<Window>();
    if (!window) throw HeadlessFailure(std::string("there is no ") + name);
    return *window;
  }
};

}  // namespace troth
