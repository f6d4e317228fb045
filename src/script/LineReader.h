// Walks the lines of a text, raw or decoded: the one rule of line ends for all files that the program reads.
// Looks at the text and owns nothing.
#pragma once

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
    const auto end = rest_.find(Char{'\r'});
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
  View rest_;
};

template <class Char>
LineReader(std::basic_string_view<Char>) -> LineReader<Char>;

}  // namespace troth
