// drive.exe: lets a script work a running Trothline by the names of its windows, controls and menu items.
// Used by scripts/stage.sh. Prints what was asked for; exit code 1 and a message if a window, a control or an
// item is missing.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/desktop/Driver.h"
#include "tests/desktop/Patience.h"
#include "tests/desktop/RealHands.h"

namespace troth::desktop {
namespace {

using Arguments = std::vector<std::wstring>;

std::string Narrow(const std::wstring& text) {
  std::string bytes;
  for (const wchar_t c : text) bytes += c < 0x80 ? static_cast<char>(c) : '?';
  return bytes;
}

[[noreturn]] void Fail(const std::wstring& what) { throw std::runtime_error(Narrow(what)); }

HWND FindVisible(const std::wstring& form) {
  std::pair<const std::wstring&, HWND> search{form, nullptr};
  EnumWindows(
      [](HWND window, LPARAM data) {
        auto& [name, found] = *reinterpret_cast<decltype(search)*>(data);
        if (!IsWindowVisible(window) || NameOf(window) != name) return TRUE;
        found = window;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.second;
}

HWND Form(const Arguments& words) {
  HWND form = nullptr;
  if (!Eventually([&] { return (form = FindVisible(words[1])) != nullptr; }))
    Fail(words[1] + L" does not show");
  return form;
}

// A control can come up a little later than its form.
HWND Control(const Arguments& words) {
  const HWND form = Form(words);
  HWND control = nullptr;
  if (!Eventually([&] { return (control = FindNamed(form, words[2])) != nullptr; }, 2000))
    Fail(words[1] + L" has no " + words[2]);
  return control;
}

void Await(const Arguments& words) { Form(words); }

void AwaitGone(const Arguments& words) {
  if (!Eventually([&] { return !FindVisible(words[1]); })) Fail(words[1] + L" does not close");
}

void IsShown(const Arguments& words) {
  if (!FindVisible(words[1])) Fail(words[1] + L" is not shown");
}

void Close(const Arguments& words) {
  PostMessageW(Form(words), WM_CLOSE, 0, 0);
  AwaitGone(words);
}

void Click(const Arguments& words) { RealHands(Form(words)).ClickMiddle(Control(words)); }

// Types into a box that takes the keyboard when it is clicked, and makes sure that it holds the text.
void Type(const Arguments& words) {
  const HWND box = Control(words);
  const RealHands hands(Form(words));
  hands.ClickMiddle(box);
  if (!Eventually([&] { return FocusOf(box) == box; })) Fail(words[2] + L" does not take the keyboard");
  hands.Type(Narrow(words[3]));
  if (!Eventually([&] { return TextOf(box) == words[3]; })) Fail(words[2] + L" holds " + TextOf(box));
}

void Press(const Arguments& words) {
  struct Key {
    const wchar_t* name;
    int code;
  };
  constexpr Key kKeys[] = {{L"Down", VK_DOWN},     {L"Up", VK_UP}, {L"Escape", VK_ESCAPE},
                           {L"Return", VK_RETURN}, {L"F2", VK_F2}, {L"Home", VK_HOME}};
  const auto key = std::ranges::find_if(kKeys, [&](const Key& each) { return words[2] == each.name; });
  if (key == std::end(kKeys)) Fail(L"there is no key " + words[2]);
  RealHands(Form(words)).Press(key->code);
}

void Choose(const Arguments& words) {
  constexpr LRESULT kChoosable = kMenuKnown | kMenuEnabled;
  const HWND form = Form(words);
  if ((MenuState(form, words[2]) & kChoosable) != kChoosable) Fail(words[2] + L" cannot be chosen");
  ChooseMenu(form, words[2]);
}

void Text(const Arguments& words) { std::puts(Narrow(TextOf(Control(words))).c_str()); }

// The number of the window on the X display, for programs that take pictures.
void Id(const Arguments& words) {
  std::printf("%lu\n", static_cast<unsigned long>(reinterpret_cast<std::uintptr_t>(
                           GetPropW(Form(words), L"__wine_x11_whole_window"))));
}

struct Command {
  const wchar_t* name;
  std::size_t words;  // with the command itself
  void (*run)(const Arguments&);
};

constexpr Command kCommands[] = {
    {L"await", 2, Await},
    {L"await-gone", 2, AwaitGone},
    {L"is-shown", 2, IsShown},
    {L"close", 2, Close},
    {L"id", 2, Id},
    {L"click", 3, Click},
    {L"press", 3, Press},
    {L"choose", 3, Choose},
    {L"text", 3, Text},
    {L"type", 4, Type},
};

int Run(const Arguments& words) {
  const auto command = std::ranges::find_if(kCommands, [&](const Command& each) {
    return !words.empty() && words[0] == each.name && words.size() == each.words;
  });
  if (command == std::end(kCommands)) {
    std::fputs("drive.exe COMMAND FORM [CONTROL or ITEM [TEXT]]\n", stderr);
    return 2;
  }
  try {
    command->run(words);
    return 0;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
  }
}

}  // namespace
}  // namespace troth::desktop

int main(int argc, char** argv) {
  std::vector<std::wstring> words;
  for (int i = 1; i < argc; ++i) words.emplace_back(argv[i], argv[i] + std::string_view(argv[i]).size());
  return troth::desktop::Run(words);
}
