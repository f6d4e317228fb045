// What many windows use: help, web pages, mail, and the table of characters. Includes no window.
#pragma once

#include <optional>
#include <string>

#include "platform/services/ShellService.h"

namespace troth {

class Form;
struct Platform;
class Program;

inline constexpr wchar_t kHomePage[] = L"https://trothline.example/";
inline constexpr wchar_t kAuthor[] = L"The Trothline developers";
inline constexpr wchar_t kAuthorMail[] = L"officiant@trothline.example";

namespace modMain {

// Help on the window's topic, or the contents if it has none: in the old viewer where there are one and a
// help file for it, otherwise as a page of the guide in the user's browser.
void ShowHelp(const Program& program, const Form& window);

// Closes the help window, if the old viewer shows one. A page in the user's browser stays.
void CloseHelp(const Program& program);

// The help as a whole.
void ShowHelpContents(const Program& program);

// Opens an address in the user's browser, or says why not.
void OpenWebPage(const Platform& platform, const std::wstring& address);

// Starts the user's mail program with an address, or says that it could not be started.
void SendMail(const Platform& platform, const std::wstring& address);

// Fills the table of characters from Unicode.ini in the program folder. Without that file every character
// stands for itself, and nothing is said.
void LoadUnicodeTable(Program& program);

}  // namespace modMain
}  // namespace troth
