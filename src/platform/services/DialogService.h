// The system's ready-made dialogs. Each is modal: it returns when the user has answered, and timers,
// hotkeys and other handlers go on running inside the call.
#pragma once

#include <optional>
#include <string>

#include "platform/Geometry.h"

namespace troth {

enum class BoxIcon { None, Stop, Question, Warning, Information };
enum class BoxButtons { Ok, YesNo, YesNoCancel };
enum class BoxAnswer { Ok, Yes, No, Cancel };

struct MessageBoxRequest {
  std::wstring text;
  std::wstring title;
  BoxIcon icon = BoxIcon::None;
  BoxButtons buttons = BoxButtons::Ok;
};

// A question that is answered by a line of text; `preset` stands in the box, selected.
struct TextRequest {
  std::wstring prompt;
  std::wstring title;
  std::wstring preset;
};

struct ColorRequest {
  std::wstring title;
  Color preset = 0;
};

class DialogService {
 public:
  virtual ~DialogService() = default;

  // Stands in front of the program's active window. Closing the box counts as Cancel where there is a Cancel
  // button and as Ok where Ok is the only one; a Yes-and-No box cannot be closed.
  virtual BoxAnswer ShowMessage(const MessageBoxRequest& request) = 0;

  // The line as the user left it, untrimmed. Nothing after Cancel.
  virtual std::optional<std::wstring> AskText(const TextRequest& request) = 0;

  // Nothing after Cancel.
  virtual std::optional<Color> AskColor(const ColorRequest& request) = 0;
};

}  // namespace troth
