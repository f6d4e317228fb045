#include "authoring/JournalParser.h"

#include "platform/services/TextService.h"
#include "script/Text.h"

namespace troth {

namespace {

constexpr std::string_view kSeparator = ": ";

std::string_view TrimBlanks(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool IsEmote(std::string_view sentence) {
  return sentence.size() >= 3 && sentence.front() == '*' && sentence.back() == '*';
}

}  // namespace

JournalParser::JournalParser(std::wstring_view character, const TextService& text)
    : text_(text), name_(troth::TrimBlanks(character)), nameSize_(text.Encode(name_).size()) {}

bool JournalParser::AppendRow(std::string_view line, std::string& rows) {
  // Most lines belong to somebody else, and most of those show it by the place of their separator: they cost
  // no search.
  if (nameSize_ == 0 || line.size() <= nameSize_ + kSeparator.size()) return false;
  if (line.substr(nameSize_, kSeparator.size()) != kSeparator) return false;
  if (line.find(kSeparator) != nameSize_ || !IsName(line.substr(0, nameSize_))) return false;

  const std::string_view sentence = TrimBlanks(line.substr(nameSize_ + kSeparator.size()));
  if (IsEmote(sentence))
    rows.append(kSeparator).append(sentence.substr(1, sentence.size() - 2));
  else
    rows.append(sentence);
  rows.append("\r\n");
  return true;
}

bool JournalParser::IsName(std::string_view speaker) {
  if (speaker == spelling_) return true;
  if (!EqualsNoCase(text_.Decode(speaker), name_)) return false;
  spelling_ = speaker;
  return true;
}

}  // namespace troth
