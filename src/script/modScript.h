// Loads the files of the script engine. Called at start-up and when another script is chosen. Touches no
// window of the program; messages to the user are shown in boxes. The module's operations on
// variables are in UserVarsFile.h and Expansion.h.
#pragma once

#include <functional>

namespace troth {

class IndexEntries;
struct Platform;
class WeddingScript;

namespace modScript {

// Refills the script and its paragraphs from the file named by sFileName. If that name is empty or no such
// file exists, the script is left without rows and name, silently, and the entries stay as they were.
//
// No message appears while the script has been replaced and the lists of the windows have not: a script that
// was cut at 32767 rows is marked (IsTruncated), and whoever fills the lists warns of it afterwards.
//
// A file whose name has no ".TXT", or that cannot be read, ends the program: sFileName is emptied, a message
// says so, `beforeEnd` takes down what outlives a process, and the process ends without unloading a window.
// Until then the rows stay those of the script before.
void LoadScriptFile(WeddingScript& script, IndexEntries& entries, Platform& platform,
                    const std::function<void()>& beforeEnd = {});

// Whether a script is loaded; if none is, a message asks for one. For commands that need a script.
bool AskForScript(const WeddingScript& script, const Platform& platform);

}  // namespace modScript
}  // namespace troth
