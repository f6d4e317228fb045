// The script browser opened on 1000 scripts in 50 folders, from the request to the painted window, beside the
// least that anybody could do: listing the same folders.
#include <windows.h>

#include <filesystem>
#include <fstream>

#include "authoring/frmBrowse.h"
#include "bench/windows/Measure.h"
#include "core/Program.h"
#include "core/Settings.h"
#include "core/Version.h"
#include "platform/win32/Win32Desktop.h"
#include "shell/frmTroth.h"

namespace troth::bench {

namespace {

namespace fs = std::filesystem;

constexpr int kFolders = 50;
constexpr int kScriptsInEach = 20;
constexpr int kTurns = 15;
constexpr double kMostMs = 150;

// Below the program folder, which is that of the benchmark.
class ScriptFolders {
 public:
  ScriptFolders() : root_(ProgramFolder() / "wedscripts") {
    for (int folder = 0; folder < kFolders; ++folder) {
      const fs::path path = root_ / ("Folder " + std::to_string(folder));
      fs::create_directories(path);
      for (int script = 0; script < kScriptsInEach; ++script)
        std::ofstream(path / ("Script " + std::to_string(script) + ".txt")) << "One\r\n";
    }
  }
  ~ScriptFolders() {
    std::error_code ignored;
    fs::remove_all(root_, ignored);
  }
  ScriptFolders(const ScriptFolders&) = delete;
  ScriptFolders& operator=(const ScriptFolders&) = delete;

  double TimeListing() const {
    const double start = NowMs();
    int count = 0;
    for (const auto& entry : fs::recursive_directory_iterator(root_)) count += entry.is_directory();
    return count == kFolders ? NowMs() - start : 0;
  }

 private:
  static fs::path ProgramFolder() {
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return fs::path(path).parent_path();
  }
  fs::path root_;
};

void PaintAllOfThread() {
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM) {
        RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        return TRUE;
      },
      0);
}

}  // namespace

void MeasureBrowser() {
  const ScriptFolders folders;
  Win32Desktop desktop;
  Program program(desktop.platform);
  WriteText(desktop.platform, settings::LastInstalledVersion, RunningVersion().Text());
  MainWindow& window = program.Open<frmTroth>();
  window.Show();
  std::vector<double> realMs;
  std::vector<double> bareMs;
  for (int turn = 0; turn < kTurns; ++turn) {
    desktop.platform.time.Pump();
    bareMs.push_back(folders.TimeListing());
    const double start = NowMs();
    auto& browser = program.Make<frmBrowse>(window);
    browser.Show();
    PaintAllOfThread();
    realMs.push_back(NowMs() - start);
    browser.Unload();
  }
  Report("browser opened on 1000 scripts in 50 folders", Median(realMs), " ms",
         {.atMost = true, .value = kMostMs});
  Report("  as a ratio to listing the folders", Median(realMs) / Median(bareMs), "",
         {.atMost = true, .value = 20});
  window.Unload();
}

}  // namespace troth::bench
