// The system's ready-made dialogs. Each is modal: it returns when the user has answered, and timers,
// hotkeys and other handlers go on running inside the call.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/Geometry.h"

namespace troth {

enum class BoxIcon { None, Stop, Question, Warning, Information };
enum class BoxButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class BoxAnswer { Ok, Yes, No, Cancel };

struct MessageBoxRequest {
  std::wstring text;
  std::wstring title;
  BoxIcon icon = BoxIcon::None;
  BoxButtons buttons = BoxButtons::Ok;
};

// A question that is answered by a line of text; `preset` is in the box at the start, selected.
struct TextRequest {
  std::wstring prompt;
  std::wstring title;
  std::wstring preset;
};

struct ColorRequest {
  std::wstring title;
  Color preset = 0;
};

struct FileFilter {
  std::wstring label;    // "Text Files (*.txt)"
  std::wstring pattern;  // "*.txt", several with ";" between them
};

// A name that is typed without an extension gets that of the first filter when a file is saved.
struct FileRequest {
  std::wstring title;
  std::vector<FileFilter> filters;  // the first is preset
  std::wstring folder;              // shown first; empty for the folder that the system chooses
  std::wstring fileName;            // preset
  bool mustExist = false;           // open: names of missing files are refused
  bool overwritePrompt = false;     // save: the dialog itself asks whether to replace an existing file
};

class DialogService {
 public:
  virtual ~DialogService() = default;

  // Its owner is the program's active window, otherwise the newest visible one; if the program is not active,
  // the box is in front of all programs. Closing the box counts as Cancel where there is a Cancel
  // button and as Ok where Ok is the only one; a Yes-and-No box cannot be closed.
  virtual BoxAnswer ShowMessage(const MessageBoxRequest& request) = 0;

  // The line as the user left it, untrimmed. Nothing after Cancel.
  virtual std::optional<std::wstring> AskText(const TextRequest& request) = 0;

  // Nothing after Cancel.
  virtual std::optional<Color> AskColor(const ColorRequest& request) = 0;

  // The full path of the chosen file; nothing after Cancel. The current folder of the process stays.
  virtual std::optional<std::wstring> AskOpenFile(const FileRequest& request) = 0;
  virtual std::optional<std::wstring> AskSaveFile(const FileRequest& request) = 0;

  // The system's default sound. Returns at once.
  virtual void Beep() = 0;
};

}  // namespace troth
