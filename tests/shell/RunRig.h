// A whole run of the program on the headless desktop, for the tests of its start, its windows and its end.
// Files that the program touches and settings that it saves join the journal: "write PATH", "copy PATH to
// PATH", "delete PATH", "save APPLICATION\SECTION\KEY=VALUE".
#pragma once

#include <functional>
#include <optional>

#include "core/Program.h"
#include "core/Version.h"
#include "guide/frmAbout.h"
#include "guide/frmIntro.h"
#include "guide/frmTip.h"
#include "shell/StartUp.h"
#include "shell/frmTroth.h"
#include "tests/HeadlessTest.h"

namespace troth {

class RunTest : public HeadlessTest {
 protected:
  const std::wstring version = RunningVersion().Text();
  static constexpr wchar_t kTipPath[] = L"C:\\Games\\Trothline\\TIPOFDAY.TXT";

  Platform& platform = desktop.platform;
  std::optional<Program> program;

  RunTest() {
    files.RecordIn(desktop.journal);
    desktop.settings.RecordIn(desktop.journal);
  }

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
  Lines Windows() const {
    Lines names;
    for (const HeadlessForm* form : desktop.forms.StackingOrder())
      names.push_back(Readable(form->Portable().Name()));
    return names;
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
