// The saved form of a script, as the loader reads it back. Called by whatever keeps a script that was changed
// in memory; writes no file itself.
#pragma once

#include <string>

namespace troth {

class TextService;
class WeddingRows;

// The bytes of a file with these rows, a line each, with the marks of the variables as they stand in the
// original. A delay is kept only where unattended speech heeds it: on a sentence, from kShortestWaitMs on.
std::string ScriptBytes(const WeddingRows& rows, const TextService& text);

}  // namespace troth
