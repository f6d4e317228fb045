// One run of the program: everything that lives as long as the run, in one object made by app/ (or a test)
// and handed on by reference. Knows no window by name: each is a slot, found by its type.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <typeindex>
#include <unordered_map>
#include <utility>

#include "core/EditHistory.h"
#include "core/HotkeyOptions.h"
#include "platform/Platform.h"
#include "platform/forms/Form.h"
#include "script/CustVars.h"
#include "script/IndexEntries.h"
#include "script/UnicodeTable.h"
#include "script/WeddingScript.h"

namespace troth {

class Bitmap;

// The patch program's settings as last read. Nothing acts on them here.
struct PatchSettings {
  std::int32_t frequency = 0;
  std::int32_t connectionType = 0;
  std::wstring proxyName;
  double lastPatchDate = 0;
};

class Program {
 public:
  explicit Program(Platform& runsOn) : platform(runsOn) {}
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  Platform& platform;

  // The live script; exists also while no script is loaded.
  WeddingScript ScriptNow;
  // Paragraphs of the live script.
  IndexEntries ScriptIndexEntries;
  // The user's own variables, groom and bride before them; and those that a ceremony sets as it goes.
  CustVars UserVars;
  CustVars DynamicVars;
  // Replacements for characters that the game client cannot take.
  troth::UnicodeTable UnicodeTable;
  // What the popup window says, and whether the user has yet to close it.
  std::wstring PopupText;
  bool PopupIsUnread = false;
  // Place of the index window in twips, and whether it is wanted.
  std::int16_t IndexX = 0;
  std::int16_t IndexY = 0;
  bool IndexVisible = false;
  // The list is complete and its click may build a sentence.
  bool WindowReady = false;
  // Delay in ms of the row for which the sentence was last built.
  int RowDelay = 0;
  // Place of the main window and its tool windows in the stacking order.
  Stacking TopMostState = Stacking::TopMost;
  // General wait of unattended speech, in ms.
  std::int32_t SpeechInterval = 0;
  // The main window has been asked to show. Set once and never cleared.
  bool MainWindowShown = false;
  // The global hotkeys, and what the dialog of hotkeys sets besides.
  HotkeyRecords Hotkeys;
  ScreenshotOptions Screenshots;
  // The folder of this run's screenshots, empty until the first attempt; the number of the next file; the
  // path of the latest file; and the latest picture, which the preview shows.
  std::wstring ScreenshotSession;
  std::int32_t ScreenshotCounter = 0;
  std::wstring LastScreenshotFile;
  std::shared_ptr<const Bitmap> CapturedPicture;
  // The edit window follows the game.
  bool EditBoxSticky = false;
  // What was said from the edit window.
  EditHistory EditBoxHistory;
  // What the patch program has set for itself.
  PatchSettings Patch;
  // Full path of a script that the user started the program with; empty for the script of the last run.
  std::wstring StartScript;
  // Full path of the help file of the old viewer.
  std::wstring HelpFile;
  std::mt19937 Random;  // near seeds give unlike numbers
  // The user knows that nothing can be written to the program folder.
  bool FolderExplained = false;
  // Asks the slow senders of the book writer to stop.
  bool BookStop = false;

  // Windows that open each other, or the main window, do it through here, since no two may include each
  // other. Set once, at the start of the run.
  struct {
    std::function<void()> ShowMainWindow;
    std::function<void()> ShowAbout;  // modally
    std::function<void()> ShowTip;    // modally
  } navigation;

  // The window, made if it is not there, but not yet loaded: showing it does that. `with` goes to its
  // constructor after the program.
  template <class Window, class... With>
  Window& Make(With&&... with) {
    std::unique_ptr<Form>& slot = windows_[typeid(Window)];
    if (!slot) {
      slot = std::make_unique<Window>(*this, std::forward<With>(with)...);
      slot->WhenGone([this] { windows_.erase(typeid(Window)); });
    }
    return static_cast<Window&>(*slot);
  }

  // The window, made and loaded. Not for one that unloads itself while it loads.
  template <class Window, class... With>
  Window& Open(With&&... with) {
    Window& window = Make<Window>(std::forward<With>(with)...);
    window.Load();
    return window;
  }

  // The window if it is loaded, otherwise null.
  template <class Window>
  Window* Opened() {
    const auto slot = windows_.find(typeid(Window));
    return slot == windows_.end() ? nullptr : static_cast<Window*>(slot->second.get());
  }

 private:
  std::unordered_map<std::type_index, std::unique_ptr<Form>> windows_;
};

}  // namespace troth
