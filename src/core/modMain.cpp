#include "core/modMain.h"

#include "core/Program.h"
#include "platform/forms/Form.h"
#include "platform/services/FileService.h"
#include "script/MessageBoxes.h"

namespace troth::modMain {

namespace {

constexpr wchar_t kStubPage[] = L"C:\\temphtm.HTM";
constexpr wchar_t kMailCommand[] = L"mailto\\shell\\open\\command";

void OpenGuide(const Platform& platform, int topic) {
  const std::wstring folder = platform.files.ProgramFolder();
  const std::wstring page = folder + L"\\guide\\topic-" + std::to_wstring(topic) + L".html";
  const bool hasPage = topic != 0 && platform.files.Exists(page);
  const std::wstring file = hasPage ? page : folder + L"\\guide\\index.html";
  if (!platform.shell.Open(file, L"", folder))
    ShowBox(platform, BoxIcon::Information,
            L"The guide cannot be opened here. Its pages begin with " + file + L".");
}

// The browser is the program for a page, so there has to be a page. Drive C: cannot always be written to.
std::optional<std::wstring> FindBrowser(const Platform& platform) {
  std::wstring page = kStubPage;
  const std::string stub = "<html></html>\r\n";
  if (!platform.files.Write(page, stub)) {
    page = platform.files.TemporaryFolder() + L"\\temphtm.HTM";
    platform.files.Write(page, stub);
  }
  auto browser = platform.shell.FindProgramFor(page);
  platform.files.Delete(page);
  return browser;
}

void Complain(const Platform& platform, const wchar_t* text, const wchar_t* title, BoxIcon icon) {
  platform.dialogs.ShowMessage({.text = text, .title = title, .icon = icon});
}

}  // namespace

void ShowHelp(const Program& program, const Form& window) {
  const Platform& platform = program.platform;
  const int topic = window.Options().helpContext;
  // The viewer must not be called for a file that is not there: it would block in a box of its own.
  if (platform.files.Exists(program.HelpFile) && platform.shell.ShowHelpFile(program.HelpFile, topic)) return;
  OpenGuide(platform, topic);
}

void CloseHelp(const Program& program) { program.platform.shell.CloseHelpFile(program.HelpFile); }

void ShowHelpContents(const Program& program) {
  const Platform& platform = program.platform;
  if (platform.files.Exists(program.HelpFile) &&
      platform.shell.Open(program.HelpFile, L"", platform.files.ProgramFolder()))
    return;
  OpenGuide(platform, 0);
}

void OpenWebPage(const Platform& platform, const std::wstring& address) {
  const auto browser = FindBrowser(platform);
  if (!browser)
    Complain(platform, L"Could not find default web Browser", L"Browser Not Found", BoxIcon::Warning);
  else if (!platform.shell.Open(*browser, address, L""))
    Complain(platform, L"Web Page not Opened", L"URL Failed", BoxIcon::Warning);
}

void SendMail(const Platform& platform, const std::wstring& address) {
  std::wstring command =
      platform.shell.ReadRegistry(RegistryRoot::ClassesRoot, kMailCommand, L"").value_or(L"");
  const auto place = command.find(L"%1");
  if (place != std::wstring::npos)
    command.replace(place, 2, address);
  else if (!command.empty())
    command += L" \"" + address + L"\"";
  if (!platform.shell.Start(command)) Complain(platform, L"Error 0", L"Mail Error", BoxIcon::Stop);
}

void LoadUnicodeTable(Program& program) {
  const Platform& platform = program.platform;
  const auto bytes = platform.files.Read(platform.files.ProgramFolder() + L"\\Unicode.ini");
  if (bytes) program.UnicodeTable.LoadFrom(*bytes, platform.text);
}

}  // namespace troth::modMain
