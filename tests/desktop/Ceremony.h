// What the guests should hear of a script file, as a careful reader of the file would say it: rows without
// comments, marks with their values, definitions as they come. Knows nothing of the program's own code.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace troth::desktop {

struct SpokenRow {
  std::string text;
  int delayMs = 0;  // the delay before the row
};

// Names in capitals.
using Words = std::map<std::string, std::string>;

// The lines "name=value" of the file of user variables.
Words WordsOf(const std::string& varsFile);
std::vector<SpokenRow> SpokenRows(const std::string& scriptFile, const Words& userWords);

// The same file with no delays in it.
std::string WithoutDelays(const std::string& scriptFile);

// The characters that the game gets for them, the option to terminate pending speech being off.
std::string CharactersOf(const std::vector<SpokenRow>& rows);

}  // namespace troth::desktop
