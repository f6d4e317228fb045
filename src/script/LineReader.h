// Walks the lines of a text, raw or decoded: the one rule of line ends for all files that the program reads.
// Looks at the text and owns nothing.
#pragma once

#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>

namespace troth {

// A line ends at CR or at CR LF. A lone LF ends none and stays in its line as an ordinary character. The last
// line needs no end; no further, empty line follows the end of the last one.
template <class Char>
class LineReader {
 public:
  using View = std::basic_string_view<Char>;

  explicit LineReader(View text) : rest_(text) {}

  // The next line without its end, or nothing when the text is used up.
  std::optional<View> Next() {
    if (rest_.empty()) return std::nullopt;
    const auto end = FindEnd();
    const View line = rest_.substr(0, end);
    if (end == View::npos) {
      rest_ = {};
      return line;
    }
    rest_.remove_prefix(end + 1);
    if (rest_.starts_with(Char{'\n'})) rest_.remove_prefix(1);
    return line;
  }

  bool IsAtEnd() const { return rest_.empty(); }

 private:
  // The search for the ends is most of what reading a long file costs, and the C library of some systems
  // searches byte by byte. This skips eight bytes at a time as long as none of them is a CR: what is zero
  // after the exclusive or borrows from its top bit.
  std::size_t FindEnd() const {
    std::size_t skipped = 0;
    if constexpr (sizeof(Char) == 1) {
      constexpr std::uint64_t kOnes = 0x0101010101010101;
      for (std::uint64_t bytes; skipped + sizeof bytes <= rest_.size(); skipped += sizeof bytes) {
        std::memcpy(&bytes, rest_.data() + skipped, sizeof bytes);
        bytes ^= kOnes * '\r';
        if ((bytes - kOnes) & ~bytes & kOnes << 7) break;
      }
    }
    return rest_.find(Char{'\r'}, skipped);
  }

  View rest_;
};

template <class Char>
LineReader(std::basic_string_view<Char>) -> LineReader<Char>;

}  // namespace troth
