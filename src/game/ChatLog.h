// The chat: the line being typed and the lines spoken so far, as the other players see them.
// The window passes it each character. It never draws and never interprets the words of a line.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>

#include "game/EditBuffer.h"

namespace troth::game {

enum class Speech { Narration, Say, Yell, Emote, Whisper, Party, Bare, Gesture };

struct ChatLine {
  Speech kind;
  std::string text;
};

// What the other players see of a typed line, by its first character: "!" yells, ":" is an emote, ";"
// whispers, "/" is for the party, "~" has no speaker, "`" is a gesture; any other line is said.
ChatLine Interpret(std::string_view speaker, std::string_view typed);

class ChatLog {
 public:
  // The oldest lines beyond this many are dropped.
  static constexpr std::size_t kMostLines = 3000;

  explicit ChatLog(std::string speaker) : speaker_(std::move(speaker)) {}

  // 13 speaks the line, 8 deletes before the cursor, other codes without a glyph are ignored. An empty
  // or blank line speaks nothing.
  void Type(unsigned char code);
  void Narrate(std::string text) { Append({Speech::Narration, std::move(text)}); }

  EditBuffer& input() { return input_; }
  const EditBuffer& input() const { return input_; }
  const std::deque<ChatLine>& lines() const { return lines_; }
  // The number of lines that were dropped, which is the running number of lines().front().
  std::uint64_t dropped() const { return dropped_; }

 private:
  void Append(ChatLine line);

  std::string speaker_;
  EditBuffer input_;
  std::deque<ChatLine> lines_;
  std::uint64_t dropped_ = 0;
};

}  // namespace troth::game
