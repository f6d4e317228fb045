// The book writer: a text as a list of rows, of which the ticked ones are typed into an open book of the
// game. A tool window that stays open beside the main window. Rows are typed exactly as they stand.
#pragma once

#include "book/BookText.h"
#include "platform/forms/CheckBox.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/ListBox.h"

namespace troth {

class MainWindow;
class Program;

class frmKMBook final : public Form {
 public:
  frmKMBook(Program& program, MainWindow& main);

  ListBox lstBook{*this,
                  {.name = L"lstBook",
                   .toolTip = L"Click on a row to start writing the book from a specific point of your text",
                   .bounds = {120, 120, 11655, 3960},
                   .hasTicks = true,
                   .accessibleName = L"Rows of the book"}};
  CheckBox chkDelete{
      *this,
      {.name = L"chkDelete",
       .caption = L"&Delete the existing contents of the book (note: this slows down the operation, so "
                  L"uncheck this option if the book is blank)",
       .toolTip = L"Delete the current contents of the book first",
       .bounds = {120, 4200, 11655, 255}}};
  CommandButton cmdQuit{*this,
                        {.name = L"cmdQuit",
                         .caption = kClose,
                         .toolTip = L"Close KMBook",
                         .bounds = ButtonPlace(0),
                         .isCancel = true}};
  CommandButton cmdAll{*this, {.name = L"cmdAll", .caption = L"Select &All", .bounds = ButtonPlace(1)}};
  CommandButton cmdNone{*this, {.name = L"cmdNone", .caption = L"Select &None", .bounds = ButtonPlace(2)}};
  CommandButton cmdSelect{*this,
                          {.name = L"cmdSelect",
                           .caption = L"&Select File...",
                           .toolTip = L"Select a text file",
                           .bounds = ButtonPlace(3)}};
  CommandButton cmdCurrent{*this,
                           {.name = L"cmdCurrent",
                            .caption = L"&Load Current",
                            .toolTip = L"Load the current Trothline script",
                            .bounds = ButtonPlace(4)}};
  CommandButton cmdWrite{*this,
                         {.name = L"cmdWrite",
                          .caption = L"&Write Book",
                          .toolTip = L"Write the current text to a book in KM",
                          .bounds = ButtonPlace(5),
                          .enabled = false}};
  CommandButton cmdRow{*this,
                       {.name = L"cmdRow",
                        .caption = L"W&rite Row",
                        .toolTip = L"Write only the current row to the book",
                        .bounds = ButtonPlace(6),
                        .enabled = false}};
  CommandButton cmdExport{*this,
                          {.name = L"cmdExport",
                           .caption = L"&Export...",
                           .toolTip = L"Export the current text to a standard ASCII file",
                           .bounds = ButtonPlace(7)}};
  CommandButton cdmHelp{*this, {.name = L"cdmHelp", .caption = L"&Help", .bounds = ButtonPlace(8)}};

 private:
  static constexpr wchar_t kClose[] = L"&Close";
  static constexpr wchar_t kStop[] = L"&Stop";
  static constexpr Rect ButtonPlace(int number) { return {120 + number * 1305, 4590, 1215, 375}; }

  void Form_Load() override;
  void Form_QueryUnload(bool& cancel, CloseReason reason) override;
  void Form_Unload() override;
  void ShowBookCounters();
  void SetBookButtons();
  void StartWork();
  void EndWork(CommandButton& pressed);
  bool IsBusy() const { return cmdQuit.Caption() == kStop; }
  void ShowRows(std::vector<std::wstring> rows);
  void TickAll(bool ticked);
  bool HasText();
  bool ConfirmsWriting(const wchar_t* text);
  bool PrepareBook();
  void WriteRows();
  void WriteRow(int row);

  void lstBook_Click();
  void cmdQuit_Click();
  void cmdSelect_Click();
  void cmdCurrent_Click();
  void cmdWrite_Click();
  void cmdRow_Click();
  void cmdExport_Click();

  Program& program_;
  MainWindow& main_;
  BookText text_;
};

}  // namespace troth
