// The Windows backend: creates its services and forms and provides them as one platform.
#pragma once

#include "platform/Platform.h"
#include "platform/win32/Win32Dialogs.h"
#include "platform/win32/Win32Files.h"
#include "platform/win32/Win32Forms.h"
#include "platform/win32/Win32Graphics.h"
#include "platform/win32/Win32Keyboard.h"
#include "platform/win32/Win32Loop.h"
#include "platform/win32/Win32Services.h"
#include "platform/win32/Win32Shell.h"

namespace troth {

class Win32Desktop {
 private:
  Win32Loop loop_;
  Win32Forms forms_{loop_};
  Win32Time time_{loop_};
  Win32Windows windows_{time_};
  Win32Keyboard keyboard_;
  Win32Files files_{time_};
  Win32Settings settings_;
  Win32Shell shell_;
  Win32Dialogs dialogs_{loop_, forms_};
  Win32Text text_;
  Win32Process process_;
  Win32Graphics graphics_;

 public:
  Platform platform{.forms = forms_,
                    .windows = windows_,
                    .keyboard = keyboard_,
                    .time = time_,
                    .files = files_,
                    .settings = settings_,
                    .shell = shell_,
                    .dialogs = dialogs_,
                    .text = text_,
                    .process = process_,
                    .graphics = graphics_};
};

}  // namespace troth
