#include "authoring/frmBrowse.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "authoring/frmJournal.h"
#include "core/MainWindow.h"
#include "core/Program.h"
#include "core/ProtectedFolder.h"
#include "platform/forms/KeyCodes.h"
#include "platform/services/FileService.h"
#include "platform/services/ShellService.h"
#include "platform/services/TextService.h"
#include "script/FileName.h"
#include "script/LineReader.h"
#include "script/MessageBoxes.h"
#include "script/ScriptFileName.h"
#include "script/Text.h"

namespace troth {

namespace {

constexpr wchar_t kNoScript[] = L"<none>";
constexpr std::size_t kMostSubFolders = 500;
constexpr std::int16_t kRightButton = 2;

// What the pattern of the extension finds.
bool IsListed(std::wstring_view name) {
  constexpr std::wstring_view kExtension = kScriptExtension;
  return name.size() >= kExtension.size() &&
         EqualsNoCase(name.substr(name.size() - kExtension.size()), kExtension);
}

}  // namespace

frmBrowse::frmBrowse(Program& program, MainWindow& main)
    : Form(program.platform.forms, {.name = L"frmBrowse",
                                    .caption = L"Trothline Script Browser",
                                    .clientSize = {11400, 6585},
                                    .border = BorderStyle::FixedDialog,
                                    .helpContext = 5,
                                    .isCentred = true}),
      program_(program),
      main_(main) {
  trvDirs.OnNodeClick = [this](int) { RefreshScripts(); };
  lstvScripts.OnItemClick = [this] { lstvScripts_ItemClick(); };
  lstvScripts.OnDoubleClick = [this] { MEditLoad_Click(); };
  lstvScripts.OnKeyDown = [this](KeyPress& press) { lstvScripts_KeyDown(press); };
  lstvScripts.OnLabelEdited = [this](const std::wstring& newText, bool& cancel) {
    lstvScripts_LabelEdited(newText, cancel);
  };
  lstvScripts.OnMouseDown = [this](const MouseEvent& press) {
    LastButton = static_cast<std::int16_t>(press.button);
  };
  cmdEsc.OnClick = [this] { Unload(); };

  MEditNew.OnClick = [this] { MEditNew_Click(); };
  MBFileImportJournal.OnClick = [this] { MBFileImportJournal_Click(); };
  MFileExit.OnClick = [this] { Unload(); };
  MEditEdit.OnClick = [this] { MEditEdit_Click(); };
  MEditDelete.OnClick = [this] { MEditDelete_Click(); };
  MEditRename.OnClick = [this] { MEditRename_Click(); };
  MEditLoad.OnClick = [this] { MEditLoad_Click(); };
  MNewNew.OnClick = [this] { MEditNew_Click(); };
}

void frmBrowse::RefreshTree() {
  const std::wstring root = ScriptFolder(program_.platform.files);
  trvDirs.Clear();
  const int node = trvDirs.Add(-1, root, L"Scripts");
  AddSubFolders(root, node);
  trvDirs.Select(node);
  RefreshScripts();
}

// A folder is listed to its end before the first one in it is.
void frmBrowse::AddSubFolders(const std::wstring& path, int node) {
  std::vector<std::wstring> names;
  for (const FileEntry& entry : program_.platform.files.List(path))
    if (entry.isFolder && names.size() < kMostSubFolders) names.push_back(entry.name);
  for (const std::wstring& name : names) {
    const std::wstring below = std::wstring(path).append(1, L'\\').append(name);
    AddSubFolders(below, trvDirs.Add(node, below, name));
  }
}

void frmBrowse::RefreshScripts() {
  const std::wstring folder = Folder() + L'\\';
  std::vector<ListViewEntry> scripts;
  for (const FileEntry& entry : program_.platform.files.List(Folder()))
    if (!entry.isFolder && IsListed(entry.name))
      scripts.push_back({.key = folder + entry.name, .text = entry.name, .toolTip = folder + entry.name});
  std::sort(scripts.begin(), scripts.end(), [](const ListViewEntry& left, const ListViewEntry& right) {
    return ToUpper(left.text) < ToUpper(right.text);
  });
  lstvScripts.SetEntries(std::move(scripts), 0);
  txtScript.SetText(L"");
  UpdateSelection();
}

void frmBrowse::UpdateSelection() {
  stsBar.SetText(HasSelection() ? lstvScripts.Entry(lstvScripts.Index()).key : kNoScript);
  for (MenuItem* item : {&MEditEdit, &MEditDelete, &MEditRename, &MEditLoad})
    item->SetEnabled(HasSelection());
}

void frmBrowse::ShowPreview() {
  const Platform& platform = program_.platform;
  if (HasSelection()) {
    if (const auto bytes = platform.files.Read(lstvScripts.Entry(lstvScripts.Index()).key)) {
      const std::wstring text = platform.text.Decode(*bytes);
      LineReader lines{std::wstring_view(text)};
      std::wstring shown;
      while (const auto line = lines.Next()) shown.append(*line).append(L"\r\n");
      txtScript.SetText(std::move(shown));
    }
  }
  UpdateSelection();
}

// The menu comes up last: what it leads to may close the window.
void frmBrowse::lstvScripts_ItemClick() {
  ShowPreview();
  if (LastButton == kRightButton) PopupContextMenu();
}

void frmBrowse::PopupContextMenu() { PopupMenu(HasSelection() ? MEdit : MNew); }

// A key moves the selection as a click does, but is no press of a button.
void frmBrowse::lstvScripts_KeyDown(KeyPress& press) {
  LastButton = 0;
  press.handled = true;
  if (press.keyCode == kApplicationsKey || (press.keyCode == kF10Key && press.shift == kShiftDown))
    PopupContextMenu();
  else if (press.keyCode == kF2Key && press.shift == 0)
    MEditRename_Click();
  else if (press.keyCode == kDeleteKey && press.shift == 0 && HasSelection())
    MEditDelete_Click();
  else
    press.handled = false;
}

void frmBrowse::MEditLoad_Click() {
  if (!HasSelection()) return;
  main_.OpenScript(stsBar.Text());
  Unload();
}

void frmBrowse::MEditNew_Click() {
  const Platform& platform = program_.platform;
  std::wstring name = AskLine(platform, L"Please input a name for your new script.", L"Untitled");
  if (name.empty()) return;
  name = WithScriptExtension(std::move(name));
  const std::wstring path = Folder() + L'\\' + name;
  if (platform.files.Exists(path)) {
    ShowBox(platform, BoxIcon::Information,
            L'"' + path + L"\" is the name of an existing script. Please select a different name.");
    return;
  }
  if (!CopyTemplate(path)) {
    ExplainProtectedFolder(program_);
    return;
  }
  RefreshScripts();
  if (!OpenEditor(path))
    Stop(
        L"Error: cannot edit the new script file. Either your default association for .txt file is wrong, or "
        L"you "
        L"are running out of memory.");
}

// A name that leads out of the folder, or that means a device, is refused like one that no file can have.
bool frmBrowse::CopyTemplate(const std::wstring& path) {
  const std::wstring programFolder = program_.platform.files.ProgramFolder();
  const bool isName = IsFileName(std::wstring_view(path).substr(Folder().size() + 1));
  const CopyOutcome outcome = isName ? program_.platform.files.Copy(programFolder + L"\\Template.scr", path)
                                     : CopyOutcome::PathNotFound;
  switch (outcome) {
    case CopyOutcome::Done:
      return true;
    case CopyOutcome::SourceMissing:
      Stop(
          L"Cannot create the requested script file. Please make sure the Template.scr file exists in your "
          L"Trothline "
          L"installation directory \"" +
          programFolder + L"\".");
      return false;
    case CopyOutcome::PathNotFound:
      Stop(
          L"Cannot create the requested script file. Please make sure you didn't use any characters that are "
          L"not "
          L"allowed in filenames.");
      return false;
    default:
      Stop(L"Cannot create the requested script file.");
      return false;
  }
}

void frmBrowse::MBFileImportJournal_Click() {
  ShowBox(program_.platform, BoxIcon::Information,
          L"If you wish to only import a part of a long saved journal, you should better extract the "
          L"relevant part "
          L"first using a normal editor. Otherwise, the resulting script will take a long time to load and "
          L"display.");
  const auto journal =
      program_.platform.dialogs.AskOpenFile({.title = L"Please select the KM journal file you wish to import",
                                             .filters = {{L"All Files (*.*)", L"*.*"}}});
  if (!journal) return;
  program_.Make<frmJournal>(*journal).ShowModal();
  RefreshTree();
}

void frmBrowse::MEditEdit_Click() {
  if (!OpenEditor(stsBar.Text()))
    Stop(
        L"Error: cannot edit the selected script file. Either your default association for .txt file is "
        L"wrong, or "
        L"you are running out of memory.");
}

void frmBrowse::MEditDelete_Click() {
  const Platform& platform = program_.platform;
  const std::wstring path = stsBar.Text();
  if (!Confirms(platform, L"Do you really want to delete " + path)) return;
  if (!platform.files.Delete(path)) {
    Stop(L"Cannot delete " + path);
    ExplainProtectedFolder(program_);
  }
  RefreshScripts();
}

void frmBrowse::MEditRename_Click() { lstvScripts.StartLabelEdit(lstvScripts.Index()); }

// The loaded script stays the loaded one under its new name, unless it could not be loaded by it.
void frmBrowse::lstvScripts_LabelEdited(const std::wstring& newText, bool& cancel) {
  const std::wstring path = stsBar.Text();
  const std::size_t nameAt = path.rfind(L'\\') + 1;
  const std::wstring newPath = path.substr(0, nameAt) + newText;
  if (const auto error = program_.platform.files.Rename(path, newPath)) {
    cancel = true;
    Stop(L"Error, script file " + path.substr(nameAt) + L" cannot be renamed: " + *error);
    return;
  }
  const bool isLoaded = EqualsNoCase(program_.ScriptNow.sFileName(), path);
  if (isLoaded && LanguageOf(newText)) program_.ScriptNow.sFileName(newPath);
  RefreshScripts();
}

std::wstring frmBrowse::Folder() const { return trvDirs.KeyOf(trvDirs.Selected()); }

bool frmBrowse::OpenEditor(const std::wstring& path) {
  return program_.platform.shell.Open(path, L"", Folder());
}

void frmBrowse::Stop(const std::wstring& text) { ShowBox(program_.platform, BoxIcon::Stop, text); }

}  // namespace troth
