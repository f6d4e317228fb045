// What a script costs to load, as a ratio to the least that anybody could do with the same file: read it,
// decode it and split it into lines. Both are measured in turns in one process, and the medians compared, so
// that the figure holds on a busy machine too. Run by hand; no limit is enforced here.
#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/Platform.h"
#include "platform/TextService.h"
#include "platform/headless/HeadlessDesktop.h"
#include "script/IndexEntries.h"
#include "script/LineReader.h"
#include "script/WeddingScript.h"
#include "script/modScript.h"

namespace troth {
namespace {

constexpr int kRepetitions = 61;
constexpr double kHighestRatio = 2.0;

// Files of the host, by their own paths.
class DiskFiles final : public HeadlessFiles {
 public:
  bool Exists(const std::wstring& path) const override {
    std::error_code ignored;
    return std::filesystem::is_regular_file(path, ignored);
  }
  std::optional<std::string> Read(const std::wstring& path) const override {
    std::ifstream file(std::filesystem::path(path), std::ios::binary | std::ios::ate);
    if (!file) return std::nullopt;
    std::string bytes(static_cast<std::size_t>(file.tellg()), '\0');
    file.seekg(0);
    if (!file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) return std::nullopt;
    return bytes;
  }
};

// A script file in the folder for temporary files, gone at the end of its scope.
class ScriptFile {
 public:
  explicit ScriptFile(std::int32_t rows)
      : path_(std::filesystem::temp_directory_path() /
              ("script_load_" + std::to_string(std::random_device{}()) + ".txt")) {
    std::ofstream file(path_, std::ios::binary);
    for (std::int32_t row = 1; row <= rows; ++row) file << Line(row) << "\r\n";
  }
  ~ScriptFile() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }
  ScriptFile(const ScriptFile&) = delete;
  ScriptFile& operator=(const ScriptFile&) = delete;

  std::wstring Path() const { return path_.wstring(); }

 private:
  // About 76 bytes: a chapter now and then, some learned delays, some emotes and marks.
  static std::string Line(std::int32_t row) {
    const std::string number = std::to_string(row);
    if (row % 100 == 1) return "@!Paragraph of the ceremony that begins with row " + number;
    if (row % 10 == 3) return ": turns to #groom# and to #bride#, and lifts the book a little, row " + number;
    const std::string sentence =
        "Dearly beloved, we are gathered here in front of the old oak tree, row " + number;
    return row % 4 == 0 ? "$" + std::to_string(2000 + row % 40 * 200) + "$, " + sentence : sentence;
  }

  std::filesystem::path path_;
};

struct Medians {
  double bareMs;
  double loadMs;
};

double MedianMs(std::vector<double>& samples) {
  const auto middle = samples.begin() + static_cast<std::ptrdiff_t>(samples.size() / 2);
  std::nth_element(samples.begin(), middle, samples.end());
  return *middle;
}

double ElapsedMs(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

// The results live past the clock's stop: neither side pays for giving its memory back.
double TimeBare(const std::wstring& path, Platform& platform) {
  const auto start = std::chrono::steady_clock::now();
  const std::wstring text = platform.text.Decode(*platform.files.Read(path));
  std::vector<std::wstring> lines;
  LineReader reader{std::wstring_view(text)};
  while (const auto line = reader.Next()) lines.emplace_back(*line);
  return ElapsedMs(start);
}

double TimeLoad(const std::wstring& path, Platform& platform) {
  WeddingScript script;
  IndexEntries entries;
  script.sFileName(path);
  const auto start = std::chrono::steady_clock::now();
  modScript::LoadScriptFile(script, entries, platform);
  return ElapsedMs(start);
}

Medians Measure(std::int32_t rows, Platform& platform) {
  const ScriptFile file(rows);
  std::vector<double> bare;
  std::vector<double> load;
  for (int i = 0; i < kRepetitions; ++i) {
    bare.push_back(TimeBare(file.Path(), platform));
    load.push_back(TimeLoad(file.Path(), platform));
  }
  return {MedianMs(bare), MedianMs(load)};
}

}  // namespace
}  // namespace troth

int main() {
  using namespace troth;
  // Memory once taken is kept: otherwise either side pays at times for getting it from the kernel anew.
  mallopt(M_MMAP_THRESHOLD, 1 << 30);
  mallopt(M_TRIM_THRESHOLD, 1 << 30);

  HeadlessDesktop desktop;
  DiskFiles disk;
  const Platform& memory = desktop.platform;
  Platform platform{.forms = memory.forms,
                    .windows = memory.windows,
                    .keyboard = memory.keyboard,
                    .time = memory.time,
                    .files = disk,
                    .settings = memory.settings,
                    .shell = memory.shell,
                    .dialogs = memory.dialogs,
                    .text = memory.text,
                    .process = memory.process};

  std::printf("%8s %10s %10s %12s %7s\n", "rows", "bare ms", "load ms", "load us/row", "ratio");
  double ratio = 0;
  for (const std::int32_t rows : {8192, 16384, kMaxRows}) {
    const Medians medians = Measure(rows, platform);
    ratio = medians.loadMs / medians.bareMs;
    std::printf("%8d %10.2f %10.2f %12.3f %7.2f\n", rows, medians.bareMs, medians.loadMs,
                medians.loadMs * 1000 / rows, ratio);
  }
  std::printf("ratio load/bare %d rows: %.2f (at most %.1f)\n", kMaxRows, ratio, kHighestRatio);
  return 0;
}
