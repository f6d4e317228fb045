// The script browser: the folders below "wedscripts", the scripts of the chosen folder, and the text of the
// chosen script. Scripts are made, edited, renamed, deleted and loaded here. Opened modally from the main
// window. It keeps nothing: the disk is listed again after each change.
#pragma once

#include <cstdint>
#include <string>

#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/forms/ListView.h"
#include "platform/forms/MenuItem.h"
#include "platform/forms/StatusBar.h"
#include "platform/forms/TextBox.h"
#include "platform/forms/TreeView.h"

namespace troth {

class MainWindow;
class Program;

class frmBrowse final : public Form {
 public:
  frmBrowse(Program& program, MainWindow& main);

  // Builds the tree again and lists the root folder.
  void RefreshTree();
  // Adds the folders in `path` below the node, with all that is in them.
  void AddSubFolders(const std::wstring& path, int node);
  // Lists the scripts of the selected folder, selects the first one and empties the preview.
  void RefreshScripts();
  // The status bar and the menu follow the selected script.
  void UpdateSelection();
  // Shows the text of the selected script. One that cannot be read leaves the former text.
  void ShowPreview();

  Label Label1{*this, {.name = L"Label1", .caption = L"Script &Types", .bounds = {120, 120, 2760, 255}}};
  TreeView trvDirs{*this, {.name = L"trvDirs", .bounds = {120, 375, 2760, 5745}}};
  Label Label2{*this, {.name = L"Label2", .caption = L"&Scripts", .bounds = {3000, 120, 3360, 255}}};
  ListView lstvScripts{*this, {.name = L"lstvScripts", .bounds = {3000, 375, 3360, 5745}}};
  Label Label3{*this, {.name = L"Label3", .caption = L"&Text", .bounds = {6480, 120, 4800, 255}}};
  TextBox txtScript{
      *this,
      {.name = L"txtScript", .bounds = {6480, 375, 4800, 5745}, .readOnly = true, .isMultiLine = true}};
  // Its text is the path of the selected script: loading, editing, deleting and renaming take it from here.
  StatusBar stsBar{*this, {.name = L"stsBar", .bounds = {0, 6240, 11400, 345}}};
  // Below the visible area: there for Esc.
  CommandButton cmdEsc{*this,
                       {.name = L"cmdEsc",
                        .caption = L"Cancel",
                        .bounds = {120, 7200, 1215, 375},
                        .isCancel = true,
                        .isTabStop = false}};

  MenuItem MFile{*this, {.name = L"MFile", .caption = L"&File"}};
  MenuItem MEditNew{MFile, {.name = L"MEditNew", .caption = L"&New Script..."}};
  MenuItem MBFileImportJournal{MFile, {.name = L"MBFileImportJournal", .caption = L"&Import KM Journal..."}};
  MenuItem MBFileSep1{MFile, {.name = L"MBFileSep1", .caption = L"-"}};
  MenuItem MFileExit{
      MFile,
      {.name = L"MFileExit", .caption = L"E&xit", .shortcut = {.keyCode = L'X', .shift = kControlDown}}};
  // The second menu of the bar, and the context menu of a selected script.
  MenuItem MEdit{*this, {.name = L"MEdit", .caption = L"&Edit"}};
  MenuItem MEditEdit{MEdit, {.name = L"MEditEdit", .caption = L"&Edit Script"}};
  MenuItem MEditDelete{MEdit, {.name = L"MEditDelete", .caption = L"&Delete Script"}};
  MenuItem MEditRename{MEdit, {.name = L"MEditRename", .caption = L"&Rename Script..."}};
  MenuItem MEditSep1{MEdit, {.name = L"MEditSep1", .caption = L"-"}};
  MenuItem MEditLoad{MEdit, {.name = L"MEditLoad", .caption = L"&Load Selected Script"}};
  // The context menu while no script is selected.
  MenuItem MNew{*this, {.name = L"MNew", .caption = L"&New", .visible = false}};
  MenuItem MNewNew{MNew, {.name = L"MNewNew", .caption = L"&New Script..."}};

 private:
  void Form_Load() override { RefreshTree(); }
  void lstvScripts_ItemClick();
  void lstvScripts_KeyDown(KeyPress& press);
  void lstvScripts_LabelEdited(const std::wstring& newText, bool& cancel);
  void MEditNew_Click();
  void MBFileImportJournal_Click();
  void MEditEdit_Click();
  void MEditDelete_Click();
  void MEditRename_Click();
  void MEditLoad_Click();
  void PopupContextMenu();

  bool HasSelection() const { return lstvScripts.Index() >= 0; }
  std::wstring Folder() const;
  bool CopyTemplate(const std::wstring& path);
  bool OpenEditor(const std::wstring& path);
  void Stop(const std::wstring& text);

  Program& program_;
  MainWindow& main_;
  // The mouse button that was pressed last on the list; 2 is the right one.
  std::int16_t LastButton = 0;
};

}  // namespace troth
