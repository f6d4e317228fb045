#include "platform/win32/Win32TextLines.h"

#include <algorithm>
#include <cstdlib>

#include "platform/forms/TextBox.h"

namespace troth {

namespace {

// So much is laid out without a noticeable pause.
constexpr std::size_t kPiece = 16000;
// A box that is only read shows no more of a line than this: the system's box slows down with the length of a
// line.
constexpr std::size_t kShownOfLine = 4000;

// The lines as the system's box can show them: it ends a text at a character 0.
std::wstring Showable(std::wstring_view text, std::size_t mostOfLine) {
  std::wstring shown;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(L'\n'), text.size() - 1) + 1;
    const std::wstring_view line = text.substr(0, end);
    text.remove_prefix(end);
    shown += line.substr(0, mostOfLine);
    if (line.size() > mostOfLine) shown += line.ends_with(L"\r\n") ? L"\r\n" : L"";
  }
  std::replace(shown.begin(), shown.end(), L'\0', L' ');
  return shown;
}

}  // namespace

Win32TextLines::Win32TextLines(ControlSite& site, TextBox& box)
    : Win32Control(site, box,
                   {.windowClass = L"EDIT",
                    .style = static_cast<DWORD>(ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL | WS_VSCROLL |
                                                WS_HSCROLL | (box.ReadOnly() ? ES_READONLY : 0)),
                    .extendedStyle = WS_EX_CLIENTEDGE}),
      box_(box) {}

void Win32TextLines::Open() {
  Win32Control::Open();
  SendMessageW(Window(), EM_SETLIMITTEXT, 0, 0);
  if (!box_.Text().empty()) ShowText();
}

void Win32TextLines::Refresh(Aspect aspect) {
  switch (aspect) {
    case Aspect::Text:
      ShowText();
      break;
    case Aspect::Selection: {
      const LPARAM end = GetWindowTextLengthW(Window());
      SendMessageW(Window(), EM_SETSEL, static_cast<WPARAM>(box_.IsAllSelected() ? 0 : end), end);
      SendMessageW(Window(), EM_SCROLLCARET, 0, 0);
      break;
    }
    default:
      Win32Control::Refresh(aspect);
  }
}

void Win32TextLines::OnCommand(WORD code) {
  if (code != EN_CHANGE || showing_ || box_.ReadOnly()) return;
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(Window())) + 1, L'\0');
  const int length = GetWindowTextW(Window(), text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length));
  box_.UserTyped(std::move(text));
}

bool Win32TextLines::TakesEnter() const { return box_.TakesEnter(); }

// The system's box wants Tab and Esc for itself, and selects all when Tab leads to it. Here Tab moves on and
// Esc closes the form, as everywhere.
LRESULT Win32TextLines::Process(UINT message, WPARAM wParam, LPARAM lParam) {
  if (box_.ReadOnly() && message == WM_GETTEXTLENGTH) return static_cast<LRESULT>(box_.Text().size());
  if (box_.ReadOnly() && message == WM_GETTEXT) return CopyText(reinterpret_cast<wchar_t*>(lParam), wParam);
  const LRESULT result = Win32Control::Process(message, wParam, lParam);
  switch (message) {
    case WM_GETDLGCODE: {
      const auto* key = reinterpret_cast<const MSG*>(lParam);
      const bool isEnter = key && key->message == WM_KEYDOWN && key->wParam == VK_RETURN;
      if (isEnter && TakesEnter()) return result | DLGC_WANTMESSAGE;
      return result & ~(DLGC_WANTALLKEYS | DLGC_WANTTAB | DLGC_HASSETSEL);
    }
    case WM_VSCROLL:
    case WM_MOUSEWHEEL:
    case WM_KEYDOWN:
      if (box_.ReadOnly() && shown_ < box_.Text().size() && IsNearEnd()) AppendPiece();
      return result;
    default:
      return result;
  }
}

// Other programs get the whole text, whatever is laid out of it.
LRESULT Win32TextLines::CopyText(wchar_t* place, std::size_t size) const {
  if (size == 0) return 0;
  const std::size_t length = box_.Text().copy(place, size - 1);
  place[length] = L'\0';
  return static_cast<LRESULT>(length);
}

void Win32TextLines::ShowText() {
  showing_ = true;
  shown_ = 0;
  SetWindowTextW(Window(), NextPiece().c_str());
  showing_ = false;
}

// A piece ends with a line, or else with the text.
std::wstring Win32TextLines::NextPiece() {
  const std::wstring_view rest = std::wstring_view(box_.Text()).substr(shown_);
  if (!box_.ReadOnly() || rest.size() <= kPiece) {
    shown_ = box_.Text().size();
    return Showable(rest, box_.ReadOnly() ? kShownOfLine : rest.size());
  }
  const std::size_t end = std::min(rest.find(L'\n', kPiece), rest.size() - 1) + 1;
  shown_ += end;
  return Showable(rest.substr(0, end), kShownOfLine);
}

bool Win32TextLines::IsNearEnd() const {
  RECT client;
  GetClientRect(Window(), &client);
  const auto lines = SendMessageW(Window(), EM_GETLINECOUNT, 0, 0);
  const auto first = SendMessageW(Window(), EM_GETFIRSTVISIBLELINE, 0, 0);
  LOGFONTW face{};
  GetObjectW(Site().Font(), sizeof face, &face);
  const auto seen = client.bottom / std::max(1L, std::abs(face.lfHeight));
  return first + 2 * seen >= lines;
}

// Neither the place in the text nor what is selected changes.
void Win32TextLines::AppendPiece() {
  showing_ = true;
  DWORD selectionStart = 0, selectionEnd = 0;
  SendMessageW(Window(), EM_GETSEL, reinterpret_cast<WPARAM>(&selectionStart),
               reinterpret_cast<LPARAM>(&selectionEnd));
  const auto first = SendMessageW(Window(), EM_GETFIRSTVISIBLELINE, 0, 0);
  SendMessageW(Window(), WM_SETREDRAW, FALSE, 0);
  const LPARAM end = GetWindowTextLengthW(Window());
  SendMessageW(Window(), EM_SETSEL, static_cast<WPARAM>(end), end);
  SendMessageW(Window(), EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(NextPiece().c_str()));
  SendMessageW(Window(), EM_SETSEL, selectionStart, static_cast<LPARAM>(selectionEnd));
  SendMessageW(Window(), EM_LINESCROLL, 0, first - SendMessageW(Window(), EM_GETFIRSTVISIBLELINE, 0, 0));
  SendMessageW(Window(), WM_SETREDRAW, TRUE, 0);
  InvalidateRect(Window(), nullptr, TRUE);
  showing_ = false;
}

}  // namespace troth
