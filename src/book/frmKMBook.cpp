#include "book/frmKMBook.h"

#include <algorithm>
#include <utility>

#include "core/MainWindow.h"
#include "core/Program.h"
#include "core/ScreenPlace.h"
#include "core/Settings.h"
#include "core/modMain.h"
#include "platform/services/FileService.h"
#include "platform/services/TextService.h"
#include "platform/services/TimeService.h"
#include "script/MessageBoxes.h"
#include "script/ProgramTitle.h"
#include "speech/modSpeech.h"

namespace troth {

namespace {

constexpr int kRowPauseMs = 250;

std::vector<FileFilter> TextFiles() {
  return {{L"Text Files (*.txt)", L"*.txt"}, {L"All Files (*.*)", L"*.*"}};
}

}  // namespace

frmKMBook::frmKMBook(Program& program, MainWindow& main)
    : Form(program.platform.forms,
           {.name = L"frmKMBook", .caption = L"KMBook", .clientSize = {11895, 5085}, .helpContext = 7}),
      program_(program),
      main_(main) {
  lstBook.OnClick = [this] { lstBook_Click(); };
  lstBook.OnTick = [this](int) { lstBook_Click(); };
  cmdQuit.OnClick = [this] { cmdQuit_Click(); };
  cmdAll.OnClick = [this] { TickAll(true); };
  cmdNone.OnClick = [this] { TickAll(false); };
  cmdSelect.OnClick = [this] { cmdSelect_Click(); };
  cmdCurrent.OnClick = [this] { cmdCurrent_Click(); };
  cmdWrite.OnClick = [this] { cmdWrite_Click(); };
  cmdRow.OnClick = [this] { cmdRow_Click(); };
  cmdExport.OnClick = [this] { cmdExport_Click(); };
  cdmHelp.OnClick = [this] { modMain::ShowHelp(program_, *this); };
}

void frmKMBook::Form_Load() {
  GoToStoredPlace(program_.platform, *this, settings::KMBookXPosition, settings::KMBookYPosition,
                  IfBeyond::IsNotStored);
  ShowBookCounters();
}

void frmKMBook::Form_QueryUnload(bool& cancel, CloseReason reason) {
  cancel = reason == CloseReason::User && IsBusy();
}

void frmKMBook::Form_Unload() {
  StorePlace(program_.platform, *this, settings::KMBookXPosition, settings::KMBookYPosition);
  // The program ends while a book is being written.
  program_.BookStop = true;
}

void frmKMBook::ShowBookCounters() {
  SetCaption(text_.Title([this](int row) { return lstBook.Ticked(row); }));
}

void frmKMBook::SetBookButtons() {
  const bool isIdle = !IsBusy();
  for (CommandButton* button :
       {&cmdAll, &cmdNone, &cmdSelect, &cmdCurrent, &cmdWrite, &cmdRow, &cmdExport, &cdmHelp})
    button->SetEnabled(isIdle);
}

void frmKMBook::StartWork() {
  program_.BookStop = false;
  cmdQuit.SetCaption(kStop);
  SetBookButtons();
}

// The button lost the keyboard while it was disabled.
void frmKMBook::EndWork(CommandButton& pressed) {
  lstBook.SetMarked(-1);
  cmdQuit.SetCaption(kClose);
  SetBookButtons();
  pressed.SetFocus();
}

void frmKMBook::lstBook_Click() {
  if (text_.BookRowCount != 0) ShowBookCounters();
}

// While the writer works it sees the flag within a character; the window closes only when it is idle.
void frmKMBook::cmdQuit_Click() {
  if (IsBusy())
    program_.BookStop = true;
  else
    Unload();
}

void frmKMBook::cmdSelect_Click() {
  const Platform& platform = program_.platform;
  const auto path = platform.dialogs.AskOpenFile(
      {.title = L"Please select the text file you wish to write", .filters = TextFiles()});
  if (!path) return;
  text_.BookCharCount = 0;
  text_.BookRowCount = 0;
  const auto bytes = platform.files.Read(*path);
  if (!bytes) return;
  ShowRows(ReadBookLines(*bytes, platform.text));
}

void frmKMBook::cmdCurrent_Click() {
  text_.BookCharCount = 0;
  text_.BookRowCount = 0;
  const ListBox& script = main_.lstWedding;
  if (script.Count() > BookText::kMostRows)
    ShowBox(program_.platform, BoxIcon::Stop, L"Script too long, size will be truncated.");
  std::vector<std::wstring> rows;
  for (int row = 0; row < std::min(script.Count(), BookText::kMostRows); ++row)
    rows.push_back(script.Text(row));
  ShowRows(std::move(rows));
}

// The row count stays 0 until the list is complete, so that no click of the list looks at the old rows.
void frmKMBook::ShowRows(std::vector<std::wstring> rows) {
  std::vector<ListEntry> entries;
  entries.reserve(rows.size());
  for (const std::wstring& row : rows) entries.push_back({.text = row, .ticked = true});
  lstBook.SetEntries(std::move(entries));
  text_.SetRows(std::move(rows));
  cmdWrite.SetEnabled(lstBook.Count() > 0);
  cmdRow.SetEnabled(lstBook.Count() > 0);
  ShowBookCounters();
}

void frmKMBook::TickAll(bool ticked) {
  text_.BookRowCount = 0;
  for (int row = 0; row < lstBook.Count(); ++row) lstBook.SetTicked(row, ticked);
  if (ticked) lstBook.SetIndex(-1);
  text_.BookRowCount = lstBook.Count();
  ShowBookCounters();
}

bool frmKMBook::HasText() {
  if (lstBook.Count() == 0) ShowBox(program_.platform, BoxIcon::Stop, L"No text selected");
  return lstBook.Count() > 0;
}

bool frmKMBook::ConfirmsWriting(const wchar_t* text) {
  return program_.platform.dialogs.ShowMessage(
             {.text = text, .title = kProgramTitle, .buttons = BoxButtons::OkCancel}) == BoxAnswer::Ok;
}

// False if the user does not want to go on.
bool frmKMBook::PrepareBook() {
  if (!chkDelete.Ticked())
    return ConfirmsWriting(
        L"Please place your cursor in KM at the insertion point in the book you want to write.");
  if (!ConfirmsWriting(
          L"Please place your cursor in KM at the end of the book you want to write. The current contents of "
          L"the book will be deleted. Please note that when the book is almost blank it may take several "
          L"seconds since the contents are deleted to the moment the new text is written."))
    return false;
  const FineTimer pace(program_.platform.time);
  modSpeech::ClearBook(program_);
  return true;
}

void frmKMBook::cmdWrite_Click() {
  if (!HasText()) return;
  StartWork();
  if (!PrepareBook()) {
    EndWork(cmdWrite);
    return;
  }
  WriteRows();
  EndWork(cmdWrite);
  if (!IsLoaded()) return;
  if (program_.BookStop)
    ShowBox(program_.platform, BoxIcon::Information, L"Interrupted by user.");
  else
    ShowBox(program_.platform, BoxIcon::None, L"Completed.");
}

void frmKMBook::WriteRows() {
  const Platform& platform = program_.platform;
  const FineTimer pace(platform.time);
  for (int row = std::max(lstBook.Index(), 0); row < text_.BookRowCount && !program_.BookStop; ++row) {
    if (!lstBook.Ticked(row)) continue;
    WriteRow(row);
    platform.time.Sleep(kRowPauseMs);
    // An empty row lets nothing in by itself, and Stop would have to wait for a longer one.
    platform.time.Pump();
  }
}

void frmKMBook::WriteRow(int row) {
  lstBook.SetMarked(row);
  modSpeech::WriteBookRow(program_, lstBook.Text(row));
}

void frmKMBook::cmdRow_Click() {
  if (!HasText()) return;
  const int row = std::max(lstBook.Index(), 0);
  StartWork();
  if (lstBook.Ticked(row)) {
    const FineTimer pace(program_.platform.time);
    WriteRow(row);
  }
  // The user may have selected another row meanwhile.
  lstBook.SetIndex((lstBook.Index() + 1) % lstBook.Count());
  EndWork(cmdRow);
  if (program_.BookStop && IsLoaded())
    ShowBox(program_.platform, BoxIcon::Information, L"Interrupted by user.");
}

void frmKMBook::cmdExport_Click() {
  const Platform& platform = program_.platform;
  const auto path =
      platform.dialogs.AskSaveFile({.title = L"Please select the file you wish to save your text to",
                                    .filters = TextFiles(),
                                    .fileName = L"Untitled.txt",
                                    .overwritePrompt = true});
  if (!path) return;
  std::string bytes;
  bool isPart = false;
  for (int row = 0; row < text_.BookRowCount; ++row) {
    if (lstBook.Ticked(row))
      bytes += platform.text.Encode(lstBook.Text(row)) + "\r\n";
    else
      isPart = true;
  }
  if (!platform.files.Write(*path, bytes)) {
    ShowBox(platform, BoxIcon::Stop, L"Error, can't open output file");
    return;
  }
  if (isPart)
    ShowBox(platform, BoxIcon::Information,
            L"Warning: as some sentences in your test were not selected, only part of the contents has been "
            L"exported to "
            L"the output file. If you wish to export all of your text, please make sure that all sentences "
            L"are selected "
            L"first.");
}

}  // namespace troth
