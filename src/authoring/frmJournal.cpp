#include "authoring/frmJournal.h"

#include <utility>

#include "authoring/JournalParser.h"
#include "authoring/LineStream.h"
#include "core/Program.h"
#include "core/ProtectedFolder.h"
#include "core/modMain.h"
#include "platform/services/DialogService.h"
#include "platform/services/FileService.h"
#include "platform/services/TimeService.h"
#include "script/FileName.h"
#include "script/MessageBoxes.h"
#include "script/ProgramTitle.h"
#include "script/ScriptFileName.h"
#include "script/Text.h"

namespace troth {

namespace {

constexpr std::int64_t kRowsPerReport = 20;
// Showing progress takes far longer than reading 20 rows. Once a journal has turned out to be long, the rows
// are reported twenty times a second.
constexpr std::int64_t kRowsOfShortJournal = 200;
constexpr std::uint32_t kReportMs = 50;

// The rows are handed to the disk in portions of about so many bytes.
constexpr std::size_t kPortion = 65536;

std::wstring Trimmed(const TextBox& box) { return std::wstring(TrimBlanks(box.Text())); }

}  // namespace

frmJournal::frmJournal(Program& program, std::wstring journalPath)
    : Form(program.platform.forms, {.name = L"frmJournal",
                                    .clientSize = {5895, 2400},
                                    .border = BorderStyle::FixedDialog,
                                    .helpContext = 5,
                                    .isCentred = true}),
      program_(program),
      JournalPath(std::move(journalPath)) {
  txtCharName.OnChange = [this] { UpdateOKButton(); };
  txtScriptName.OnChange = [this] { UpdateOKButton(); };
  OKButton.OnClick = [this] { OKButton_Click(); };
  CancelButton.OnClick = [this] { Unload(); };
  cmdStop.OnClick = [this] { cmdStop_Click(); };
  cdmHelp.OnClick = [this] { modMain::ShowHelp(program_, *this); };
}

void frmJournal::Form_Load() {
  SetCaption(L"Import KM Journal (" + JournalPath + L")");
  StatusBar.SetText(L"Please type the character name exactly as it appears in the KM journal");
  StopRequested = false;
}

// Closing the window during an import stops the import as well.
void frmJournal::Form_QueryUnload(bool&, CloseReason) { StopRequested = true; }

void frmJournal::UpdateOKButton() {
  OKButton.SetEnabled(!Trimmed(txtCharName).empty() && !Trimmed(txtScriptName).empty());
}

void frmJournal::cmdStop_Click() {
  StopRequested = true;
  OKButton.SetFocus();
  cmdStop.SetVisible(false);
  CancelButton.SetEnabled(true);
}

// The button stays enabled while an import runs: a second press does nothing.
void frmJournal::OKButton_Click() {
  if (isImporting_) return;
  isImporting_ = true;
  Import();
  isImporting_ = false;
}

void frmJournal::Import() {
  const FileService& files = program_.platform.files;
  StopRequested = false;
  CancelButton.SetEnabled(false);
  cmdStop.SetVisible(true);
  const std::wstring folder = MyScriptsFolder(files);
  program_.platform.files.CreateFolder(folder);
  const std::unique_ptr<FileReader> journal = files.Open(JournalPath);
  if (!journal) {
    ShowBox(program_.platform, BoxIcon::Stop, L"Error opening input file " + JournalPath);
    Unload();
    return;
  }
  const std::wstring character = Trimmed(txtCharName);
  const std::wstring name = Trimmed(txtScriptName) + kScriptExtension;
  const std::wstring path = folder + L'\\' + name;
  // A name that leads out of the folder, or to the journal itself, replaces nothing.
  const bool isName = IsFileName(name) && !EqualsNoCase(path, JournalPath);
  if (isName && !MayReplace(path)) return;
  const std::unique_ptr<FileWriter> script = isName ? program_.platform.files.Create(path) : nullptr;
  if (!script) {
    ShowBox(program_.platform, BoxIcon::Stop, L"Error opening script file " + path);
    ExplainProtectedFolder(program_);
    Unload();
    return;
  }
  Ending ending = ParseJournal(character, *journal, *script);
  if (!script->Close() && ending == Ending::Done) ending = Ending::WriteError;
  Finish(ending, character, name, path);
}

bool frmJournal::MayReplace(const std::wstring& path) {
  if (!program_.platform.files.Exists(path)) return true;
  return program_.platform.dialogs.ShowMessage(
             {.text = path + L" already exists. Do you want to overwrite it?",
              .title = kProgramTitle,
              .buttons = BoxButtons::YesNo}) == BoxAnswer::Yes;
}

frmJournal::Ending frmJournal::ParseJournal(const std::wstring& character, FileReader& journal,
                                            FileWriter& script) {
  const TimeService& time = program_.platform.time;
  LineStream lines([&journal](std::span<char> place) { return journal.Read(place); });
  JournalParser parser(character, program_.platform.text);
  std::string portion;
  std::int64_t rows = 0;
  std::uint32_t reportedAt = time.TickCount();
  sentences_ = 0;
  while (const auto line = lines.Next()) {
    if (StopRequested) {
      return script.Append(portion) ? Ending::Stopped : Ending::WriteError;
    }
    ++rows;
    const bool isReportDue = rows % kRowsPerReport == 0 &&
                             (rows <= kRowsOfShortJournal || time.TickCount() - reportedAt >= kReportMs);
    if (isReportDue || lines.AtEnd()) {
      reportedAt = time.TickCount();
      ReportProgress(rows);
    }
    if (parser.AppendRow(*line, portion)) ++sentences_;
    if (portion.size() < kPortion) continue;
    if (!script.Append(portion)) return Ending::WriteError;
    portion.clear();
  }
  if (!script.Append(portion)) return Ending::WriteError;
  return lines.HasFailed() ? Ending::ReadError : Ending::Done;
}

void frmJournal::ReportProgress(std::int64_t rows) {
  StatusBar.SetText(L"Parsing file (row # " + std::to_wstring(rows) + L')');
  program_.platform.time.Pump();
}

void frmJournal::Finish(Ending ending, const std::wstring& character, const std::wstring& name,
                        const std::wstring& path) {
  switch (ending) {
    case Ending::Stopped:
      StatusBar.SetText(L"Aborted. Stop button pressed.");
      return;
    case Ending::ReadError:
      ShowBox(program_.platform, BoxIcon::Stop, L"Error reading input file " + JournalPath);
      break;
    case Ending::WriteError:
      ShowBox(program_.platform, BoxIcon::Stop, L"A disk error occurred while writing " + path);
      break;
    case Ending::Done:
      ShowBox(program_.platform, BoxIcon::None,
              L"The script was created and contains " + std::to_wstring(sentences_) +
                  L" sentences for the character " + character + L". The corresponding file " + name +
                  L" is located in the \"My Scripts\" subdirectory.");
      break;
  }
  Unload();
}

}  // namespace troth
