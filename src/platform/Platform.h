// Everything that the program requires of a desktop. Created by app/ or by a test and passed by reference;
// the services outlive the run.
#pragma once

namespace troth {

class DialogService;
class FileService;
class FormBackend;
class GraphicsService;
class KeyboardService;
class ProcessService;
class SettingsStore;
class ShellService;
class TextService;
class TimeService;
class WindowService;

struct Platform {
  FormBackend& forms;
  WindowService& windows;
  KeyboardService& keyboard;
  TimeService& time;
  FileService& files;
  SettingsStore& settings;
  ShellService& shell;
  DialogService& dialogs;
  TextService& text;
  ProcessService& process;
  GraphicsService& graphics;
};

}  // namespace troth
