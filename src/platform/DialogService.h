// The system's ready-made dialogs. Each is modal: it returns when the user has answered, and timers,
// hotkeys and other handlers go on running inside the call.
#pragma once

#include <string>

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

class DialogService {
 public:
  virtual ~DialogService() = default;

  // Stands in front of the program's active window. Closing the box counts as Cancel where there is a Cancel
  // button and as Ok where Ok is the only one; a Yes-and-No box cannot be closed.
  virtual BoxAnswer ShowMessage(const MessageBoxRequest& request) = 0;
};

}  // namespace troth
