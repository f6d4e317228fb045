// The lines of a file that is read piece by piece, so that its size does not matter. Lines end as LineReader
// says. Used by the import of journals; opens nothing itself.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "script/LineReader.h"

namespace troth {

class LineStream {
 public:
  // Fills the start of `place` with the next bytes of the file and says how many; 0 at the end, nothing on
  // failure.
  using ReadPiece = std::function<std::optional<std::size_t>(std::span<char> place)>;

  explicit LineStream(ReadPiece read) : read_(std::move(read)) {}

  // The next line without its end; valid until the next call. Nothing at the end of the file or of what could
  // be read of it.
  std::optional<std::string_view> Next();

  // Whether the line last returned is the last one.
  bool AtEnd() const { return hasEnded_ && lines_.IsAtEnd(); }

  // The file could not be read to its end.
  bool HasFailed() const { return hasFailed_; }

 private:
  bool Refill();
  std::size_t EndOfLastLine(std::size_t from) const;

  ReadPiece read_;
  std::string buffer_;
  std::size_t filled_ = 0;    // bytes of the buffer that come from the file
  std::size_t complete_ = 0;  // of these, the ones that `lines_` walks through
  LineReader<char> lines_{{}};
  bool hasEnded_ = false;
  bool hasFailed_ = false;
};

}  // namespace troth
