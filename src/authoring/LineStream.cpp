#include "authoring/LineStream.h"

#include <algorithm>

namespace troth {

namespace {

constexpr std::size_t kPiece = 65536;

}  // namespace

std::optional<std::string_view> LineStream::Next() {
  const auto line = lines_.Next();
  return line || !Refill() ? line : lines_.Next();
}

// Moves what is left to the start of the buffer and reads on until at least one line is complete.
bool LineStream::Refill() {
  if (hasEnded_) return false;
  std::copy(buffer_.data() + complete_, buffer_.data() + filled_, buffer_.data());
  filled_ -= complete_;
  complete_ = 0;
  while (complete_ == 0) {
    // Doubled, so that a line of any length is copied few times.
    if (buffer_.size() < filled_ + kPiece) buffer_.resize(std::max(filled_ + kPiece, 2 * filled_));
    const auto read = read_({buffer_.data() + filled_, kPiece});
    hasFailed_ = !read;
    hasEnded_ = read.value_or(0) == 0;
    const std::size_t from = filled_;
    filled_ += read.value_or(0);
    if (hasEnded_) break;
    complete_ = EndOfLastLine(from);
  }
  if (hasEnded_) complete_ = filled_;
  lines_ = LineReader<char>({buffer_.data(), complete_});
  return complete_ > 0;
}

// The end of the last line that has a byte after it, 0 if there is none. That byte decides whether a CR is
// followed by its LF, and shows that the line is not the last of the file. Only bytes from `from` on are new.
std::size_t LineStream::EndOfLastLine(std::size_t from) const {
  const std::string_view bytes(buffer_.data(), filled_);
  const std::size_t start = from < 2 ? 0 : from - 2;
  for (std::size_t i = filled_ - 1; i > start; --i) {
    if (bytes[i - 1] != '\r') continue;
    const std::size_t end = bytes[i] == '\n' ? i + 1 : i;
    if (end < filled_) return end;
  }
  return 0;
}

}  // namespace troth
