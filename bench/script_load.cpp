// What a script costs to load, as a ratio to the least that anybody could do with the same file: read it,
// decode it and split it into lines. Both are measured in turns in one process, and the medians compared, so
// that the figure holds on a busy machine too.
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "bench/Bench.h"
#include "platform/services/TextService.h"
#include "script/IndexEntries.h"
#include "script/LineReader.h"
#include "script/WeddingScript.h"
#include "script/modScript.h"

namespace troth {
namespace {

constexpr int kRepetitions = 61;
constexpr double kHighestRatio = 2.0;

struct Medians {
  double bareMs;
  double loadMs;
};

// About 76 bytes: a chapter now and then, some learned delays, some emotes and marks.
std::string Line(std::int32_t row) {
  const std::string number = std::to_string(row);
  if (row % 100 == 1) return "@!Paragraph of the ceremony that begins with row " + number;
  if (row % 10 == 3) return ": turns to #groom# and to #bride#, and lifts the book a little, row " + number;
  const std::string sentence =
      "Dearly beloved, we are gathered here in front of the old oak tree, row " + number;
  return row % 4 == 0 ? "$" + std::to_string(2000 + row % 40 * 200) + "$, " + sentence : sentence;
}

// The results live past the watch's stop: neither side pays for giving its memory back.
double TimeBare(const std::wstring& path, Platform& platform) {
  const Watch watch;
  const std::wstring text = platform.text.Decode(*platform.files.Read(path));
  std::vector<std::wstring> lines;
  LineReader reader{std::wstring_view(text)};
  while (const auto line = reader.Next()) lines.emplace_back(*line);
  return watch.ElapsedMs();
}

double TimeLoad(const std::wstring& path, Platform& platform) {
  WeddingScript script;
  IndexEntries entries;
  script.sFileName(path);
  const Watch watch;
  modScript::LoadScriptFile(script, entries, platform);
  return watch.ElapsedMs();
}

Medians Measure(std::int32_t rows, Platform& platform) {
  const ScriptFile file(rows, Line);
  std::vector<double> bare;
  std::vector<double> load;
  for (int i = 0; i < kRepetitions; ++i) {
    bare.push_back(TimeBare(file.Path(), platform));
    load.push_back(TimeLoad(file.Path(), platform));
  }
  return {Median(bare), Median(load)};
}

}  // namespace
}  // namespace troth

int main() {
  using namespace troth;
  BenchDesktop desktop;
  std::printf("%8s %10s %10s %12s %7s\n", "rows", "bare ms", "load ms", "load us/row", "ratio");
  double ratio = 0;
  for (const std::int32_t rows : {8192, 16384, kMaxRows}) {
    const Medians medians = Measure(rows, desktop.platform);
    ratio = medians.loadMs / medians.bareMs;
    std::printf("%8d %10.2f %10.2f %12.3f %7.2f\n", rows, medians.bareMs, medians.loadMs,
                medians.loadMs * 1000 / rows, ratio);
  }
  std::printf("ratio load/bare %d rows: %.2f (at most %.1f)\n", kMaxRows, ratio, kHighestRatio);
  return 0;
}
