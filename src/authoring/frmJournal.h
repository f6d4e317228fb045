// The dialog that turns a journal which the game saved into a script: asks for a character and a name, reads
// the journal and keeps what the character said. Opened modally by the script browser, which asks for the
// journal first.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/forms/StatusBar.h"
#include "platform/forms/TextBox.h"

namespace troth {

class FileReader;
class FileWriter;
class Program;

class frmJournal final : public Form {
 public:
  // `journalPath` is the journal's full path.
  frmJournal(Program& program, std::wstring journalPath);

  Label lblCharacter{
      *this, {.name = L"lblCharacter", .caption = L"&Character Name", .bounds = {120, 120, 4200, 255}}};
  TextBox txtCharName{*this, {.name = L"txtCharName", .bounds = {120, 390, 4200, 315}}};
  Label lblScript{
      *this,
      {.name = L"lblScript", .caption = L"Script &Name (no extension)", .bounds = {120, 840, 4200, 255}}};
  TextBox txtScriptName{*this, {.name = L"txtScriptName", .bounds = {120, 1110, 4200, 315}}};
  CommandButton OKButton{*this,
                         {.name = L"OKButton",
                          .caption = L"OK",
                          .bounds = {4560, 120, 1215, 375},
                          .enabled = false,
                          .isDefault = true}};
  CommandButton CancelButton{
      *this,
      {.name = L"CancelButton", .caption = L"Cancel", .bounds = {4560, 600, 1215, 375}, .isCancel = true}};
  CommandButton cmdStop{
      *this, {.name = L"cmdStop", .caption = L"&Stop", .bounds = {4560, 1080, 1215, 375}, .visible = false}};
  CommandButton cdmHelp{*this, {.name = L"cdmHelp", .caption = L"&Help", .bounds = {4560, 1560, 1215, 375}}};
  troth::StatusBar StatusBar{*this, {.name = L"StatusBar", .bounds = {0, 2085, 5895, 315}}};

 private:
  enum class Ending { Done, Stopped, ReadError, WriteError };

  void Form_Load() override;
  void Form_QueryUnload(bool& cancel, CloseReason reason) override;
  void UpdateOKButton();
  void OKButton_Click();
  void cmdStop_Click();
  void Import();
  bool MayReplace(const std::wstring& path);
  Ending ParseJournal(const std::wstring& character, FileReader& journal, FileWriter& script);
  void ReportProgress(std::int64_t rows);
  void Finish(Ending ending, const std::wstring& character, const std::wstring& name,
              const std::wstring& path);

  Program& program_;
  std::wstring JournalPath;
  bool StopRequested = false;
  bool isImporting_ = false;
  std::int64_t sentences_ = 0;
};

}  // namespace troth
