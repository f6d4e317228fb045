#include "game/ChatLog.h"

#include <utility>

namespace troth::game {
namespace {

std::string_view TrimBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string Spoken(std::string_view verb, std::string_view words) {
  std::string line = "You ";
  line.append(verb).append(", \"").append(words).append("\"");
  return line;
}

}  // namespace

ChatLine Interpret(std::string_view speaker, std::string_view typed) {
  const std::string_view words = TrimBlanks(typed.substr(1));
  if (words.empty()) return {Speech::Say, Spoken("say", typed)};
  switch (typed.front()) {
    case '!':
      return {Speech::Yell, Spoken("yell", words)};
    case ';':
      return {Speech::Whisper, Spoken("whisper", words)};
    case ':':
      return {Speech::Emote, std::string(speaker).append(" ").append(words)};
    case '`':
      return {Speech::Gesture, std::string(speaker).append(" makes a gesture: ").append(words)};
    case '/':
      return {Speech::Party, std::string("[Party] ").append(typed)};
    case '~':
      return {Speech::Bare, std::string(words)};
    default:
      return {Speech::Say, Spoken("say", typed)};
  }
}

void ChatLog::Type(unsigned char code) {
  if (code == kBackspace) {
    input_.EraseBefore();
  } else if (code == kEnter) {
    const std::string typed = input_.TakeAll();
    const std::string_view line = TrimBlanks(typed);
    if (!line.empty()) Append(Interpret(speaker_, line));
  } else if (IsVisible(code)) {
    input_.Insert(static_cast<char>(code));
  }
}

void ChatLog::Append(ChatLine line) {
  lines_.push_back(std::move(line));
  if (lines_.size() <= kMostLines) return;
  lines_.pop_front();
  ++dropped_;
}

}  // namespace troth::game
