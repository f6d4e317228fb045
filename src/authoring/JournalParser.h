// Picks what one character said out of the journal that the game saves, line by line, as rows of a script.
// Used by the import; reads no file and knows no window.
//
// A line of speech is the speaker's name, ": " and the sentence; the first ": " separates them. A sentence
// between two "*" is an emote. The journal is known to hold nothing else that could be told apart: any other
// line counts as not spoken by the character.
#pragma once

#include <string>
#include <string_view>

namespace troth {

class TextService;

class JournalParser {
 public:
  // Blanks around the name do not count. Case never does.
  JournalParser(std::wstring_view character, const TextService& text);

  // If the character speaks in this line, appends the sentence as a row with its CR LF and returns true.
  bool AppendRow(std::string_view line, std::string& rows);

 private:
  bool IsName(std::string_view speaker);

  const TextService& text_;
  std::wstring name_;
  std::size_t nameSize_;  // in bytes, whatever the case of the letters
  std::string spelling_;  // in which the journal had the name last
};

}  // namespace troth
