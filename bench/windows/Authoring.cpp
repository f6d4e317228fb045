// A journal of a million lines imported in the real dialog, beside a bare read and line scan of the same
// bytes; and a script generated from wizard files.
#include <windows.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>

#include "authoring/ScriptGenerator.h"
#include "authoring/frmJournal.h"
#include "bench/windows/Measure.h"
#include "core/Program.h"
#include "platform/services/DialogService.h"
#include "platform/services/FileService.h"
#include "platform/win32/Win32Desktop.h"

namespace troth::bench {

namespace {

constexpr int kLines = 1000000;
constexpr int kTurns = 9;
constexpr double kMostRatio = 2;
constexpr double kMostGenerateMs = 50;

// Nobody is there to press OK.
class QuietDialogs final : public DialogService {
 public:
  BoxAnswer ShowMessage(const MessageBoxRequest&) override { return BoxAnswer::Yes; }
  std::optional<std::wstring> AskText(const TextRequest&) override { return std::nullopt; }
  std::optional<Color> AskColor(const ColorRequest&) override { return std::nullopt; }
  std::optional<std::wstring> AskOpenFile(const FileRequest&) override { return std::nullopt; }
  std::optional<std::wstring> AskSaveFile(const FileRequest&) override { return std::nullopt; }
  void Beep() override {}
};

// A folder for the files of this figure, and the user's scripts beside this program; both go at the end.
class Folders {
 public:
  explicit Folders(const FileService& files)
      : scratch_(std::filesystem::temp_directory_path() / "authoring_bench"),
        scripts_(std::filesystem::path(files.ProgramFolder()) / "wedscripts") {
    std::filesystem::create_directories(scratch_);
    std::filesystem::create_directories(scripts_);
  }
  ~Folders() {
    std::error_code ignored;
    std::filesystem::remove_all(scratch_, ignored);
    std::filesystem::remove_all(scripts_, ignored);
  }
  Folders(const Folders&) = delete;
  Folders& operator=(const Folders&) = delete;
  const std::filesystem::path& Scratch() const { return scratch_; }

 private:
  std::filesystem::path scratch_;
  std::filesystem::path scripts_;
};

// A crowd of eight, of which one name has the length of the character's.
void WriteJournal(const std::filesystem::path& path) {
  constexpr const char* kSpeakers[] = {"Anna",   "Rowan",   "Bram", "Old Tom",
                                       "Isolde", "You see", "Hob",  "Merewen"};
  std::ofstream file(path, std::ios::binary);
  for (int line = 0; line < kLines; ++line)
    file << kSpeakers[line % 8] << ": Dearly beloved, we stand in front of the old oak, line " << line
         << "\r\n";
}

double TimeBare(const FileService& files, const std::wstring& path) {
  const double start = NowMs();
  const auto reader = files.Open(path);
  std::string piece(65536, '\0');
  int lines = 0;
  for (std::size_t count = 0; (count = reader->Read(piece).value_or(0)) > 0;) {
    const char* at = piece.data();
    const char* const end = at + count;
    while (const void* found = std::memchr(at, '\r', static_cast<std::size_t>(end - at))) {
      at = static_cast<const char*>(found) + 1;
      ++lines;
    }
  }
  if (lines != kLines) std::abort();
  return NowMs() - start;
}

double TimeImport(Program& program, const std::wstring& path) {
  frmJournal& dialog = program.Make<frmJournal>(path);
  dialog.Show();
  dialog.txtCharName.SetText(L"Anna");
  dialog.txtScriptName.SetText(L"bench");
  program.platform.time.Pump();
  const double start = NowMs();
  dialog.OKButton.UserClicked();
  return NowMs() - start;
}

void MeasureImport(Program& program, const Folders& folders) {
  const std::filesystem::path path = folders.Scratch() / "journal.txt";
  WriteJournal(path);
  std::vector<double> bareMs;
  std::vector<double> importMs;
  for (int turn = 0; turn < kTurns; ++turn) {
    bareMs.push_back(TimeBare(program.platform.files, path.wstring()));
    importMs.push_back(TimeImport(program, path.wstring()));
  }
  Report("journal of 1000000 lines, bare", Median(bareMs), " ms", {.atMost = true, .value = 1000});
  Report("journal of 1000000 lines, imported", Median(importMs), " ms", {.atMost = true, .value = 2000});
  Report("  as a ratio to a bare read and line scan", Median(importMs) / Median(bareMs), "",
         {.atMost = true, .value = kMostRatio});
}

void MeasureGenerator(const Platform& platform, const Folders& folders) {
  WizardChoices choices{.LanguagePath = folders.Scratch().wstring(),
                        .StyleName = L"Formal",
                        .emotes = true,
                        .tellGroom = true,
                        .tellBride = true,
                        .verbous = true};
  choices.sections.fill(true);
  for (const WizardOption& section : kWizardSections) {
    std::ofstream file(folders.Scratch() / (std::wstring(section.tag) + L"Formal.scr"), std::ios::binary);
    for (int row = 0; row < 100; ++row)
      file << (row % 5 == 0 ? "*lifts the book a little" : "Dearly beloved, we stand in front of the old oak")
           << "\r\n";
  }
  const std::wstring path = (folders.Scratch() / "generated.txt").wstring();
  std::vector<double> ms;
  for (int turn = 0; turn < kTurns; ++turn) {
    const double start = NowMs();
    const auto script = platform.files.Create(path);
    ScriptGenerator generator(platform.files, platform.text,
                              [&](std::string_view bytes) { return script->Append(bytes); });
    if (generator.Generate(choices, L"today") != ScriptGenerator::Outcome::Done) std::abort();
    script->Close();
    ms.push_back(NowMs() - start);
  }
  Report("script of 900 rows generated", Median(ms), " ms", {.atMost = true, .value = kMostGenerateMs});
}

}  // namespace

void MeasureAuthoring() {
  Win32Desktop desktop;
  QuietDialogs dialogs;
  const Platform& real = desktop.platform;
  Platform platform{.forms = real.forms,
                    .windows = real.windows,
                    .keyboard = real.keyboard,
                    .time = real.time,
                    .files = real.files,
                    .settings = real.settings,
                    .shell = real.shell,
                    .dialogs = dialogs,
                    .text = real.text,
                    .process = real.process,
                    .graphics = real.graphics};
  Program program(platform);
  const Folders folders(platform.files);
  MeasureGenerator(platform, folders);
  MeasureImport(program, folders);
}

}  // namespace troth::bench
