#include "authoring/LineStream.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace troth {
namespace {

// A file that is handed out in pieces of so many bytes, and whose reading fails after so many.
LineStream::ReadPiece InPieces(std::string bytes, std::size_t piece, std::size_t failsAfter = SIZE_MAX) {
  return [bytes = std::move(bytes), piece, failsAfter,
          at = std::size_t{0}](std::span<char> place) mutable -> std::optional<std::size_t> {
    if (at >= failsAfter) return std::nullopt;
    const std::size_t count = std::min({piece, place.size(), bytes.size() - at});
    std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(at), count, place.begin());
    at += count;
    return count;
  };
}

struct Line {
  std::string text;
  bool isLast;
  friend bool operator==(const Line&, const Line&) = default;
};

std::vector<Line> LinesOf(LineStream& stream) {
  std::vector<Line> lines;
  while (const auto line = stream.Next()) lines.push_back({std::string(*line), stream.AtEnd()});
  return lines;
}

// The same rule as for a file that is in memory, and each last line known as the last.
TEST(LineStream, GivesTheLinesOfAFileHoweverItIsCut) {
  const std::string files[] = {"",
                               "a",
                               "\r\n\r\n",
                               "a\rb\r\nc\nd",
                               "a\r\n",
                               "\r\r\n\n\r",
                               std::string(200000, 'x') + "\r\n" + std::string(70000, 'y')};
  for (const std::string& file : files) {
    for (const std::size_t piece : {1, 2, 3, 7, 65536}) {
      if (file.size() > 100 && piece < 7) continue;
      SCOPED_TRACE(testing::Message() << file.substr(0, 30) << " in pieces of " << piece);
      std::vector<Line> expected;
      LineReader<char> reader(file);
      while (const auto line = reader.Next()) expected.push_back({std::string(*line), reader.IsAtEnd()});
      LineStream stream(InPieces(file, piece));
      EXPECT_EQ(LinesOf(stream), expected);
      EXPECT_FALSE(stream.HasFailed());
      EXPECT_EQ(stream.Next(), std::nullopt);
    }
  }
}

TEST(LineStream, GivesWhatCouldBeReadOfAFileThatFails) {
  LineStream stream(InPieces("one\rtwo\rthree", 2, 10));
  EXPECT_EQ(LinesOf(stream), (std::vector<Line>{{"one", false}, {"two", false}, {"th", true}}));
  EXPECT_TRUE(stream.HasFailed());
}

}  // namespace
}  // namespace troth
