// The chat: the line being typed and the lines spoken so far, shown the way the moors hear them.
// The window feeds it character by character; it never draws and never looks at what a line means.
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

// How the others hear a typed line, by its first character: "!" yells, ":" plays out, ";" whispers, "/" goes
// to the party, "~" stands bare, "`" is a gesture; any other line is said.
ChatLine Hear(std::string_view speaker, std::string_view typed);

class ChatLog {
 public:
  // The oldest lines fall off beyond this many.
  static constexpr std::size_t kMostLines = 3000;

  explicit ChatLog(std::string speaker) : speaker_(std::move(speaker)) {}

  // 13 speaks the line, 8 deletes before the cursor, other codes without a shape are passed over. An empty
  // or blank line speaks nothing.
  void Type(unsigned char code);
  void Narrate(std::string text) { Append({Speech::Narration, std::move(text)}); }

  EditBuffer& input() { return input_; }
  const EditBuffer& input() const { return input_; }
  const std::deque<ChatLine>& lines() const { return lines_; }
  // How many lines have fallen off: the running number of lines().front().
  std::uint64_t fallenOff() const { return fallenOff_; }

 private:
  void Append(ChatLine line);

  std::string speaker_;
  EditBuffer input_;
  std::deque<ChatLine> lines_;
  std::uint64_t fallenOff_ = 0;
};

}  // namespace troth::game
