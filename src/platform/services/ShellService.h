// Everything outside the program: opening documents and pages, starting commands, the registry, the old help
// viewer. Nothing here waits for what it starts.
#pragma once

#include <optional>
#include <string>

namespace troth {

enum class RegistryRoot { ClassesRoot, CurrentUser };

class ShellService {
 public:
  virtual ~ShellService() = default;

  // Opens a file or page with the program that is registered for it, or starts a program with parameters.
  // False if that could not be done.
  virtual bool Open(const std::wstring& file, const std::wstring& parameters, const std::wstring& folder) = 0;

  // The program that opens files such as this one, which must exist; nothing if none is registered.
  virtual std::optional<std::wstring> FindProgramFor(const std::wstring& file) = 0;

  // Starts a command line as a new process in a normal window; false if it could not be started.
  virtual bool Start(const std::wstring& commandLine) = 0;

  // A value of the registry as text: a string as it is, a 32-bit number in decimal digits, other kinds empty.
  // An empty name is the key's default value. Nothing if there is no such value.
  virtual std::optional<std::wstring> ReadRegistry(RegistryRoot root, const std::wstring& key,
                                                   const std::wstring& valueName) = 0;

  // Shows a topic of a help file in the system's old viewer, or its index for topic 0. False if the system
  // has no such viewer, as current systems have none.
  virtual bool ShowHelpFile(const std::wstring& helpFile, int topic) = 0;

  // Closes the viewer's window if nobody else needs it. Nothing happens without a viewer or a window.
  virtual void CloseHelpFile(const std::wstring& helpFile) = 0;
};

}  // namespace troth
