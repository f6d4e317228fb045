// The shipped program from outside: its way to a shown window beside programs that have nothing but one
// window, or the same controls, its size, and what it costs while nobody touches it.
#include <windows.h>

#include <filesystem>

#include "bench/windows/BareForm.h"
#include "bench/windows/Measure.h"

namespace troth::bench {

namespace {

constexpr int kStarts = 31;
constexpr double kMostStartRatio = 1.5;
constexpr double kMostFormRatio = 1.1;
constexpr double kMostEndMs = 300;
constexpr double kMostMegabytes = 3;
constexpr DWORD kIdleMs = 5000;
constexpr double kMostIdleMs = 50;
constexpr double kMostStartMs = 500;

struct Life {
  double startMs;
  double endMs;
};

Life TimeLife(const std::wstring& path) {
  const double start = NowMs();
  const Started program(path);
  program.WaitUntilShown();
  const double shown = NowMs();
  Sleep(200);  // until it has come to rest
  const double end = NowMs();
  program.Close();
  return {.startMs = shown - start, .endMs = NowMs() - end};
}

void MeasureStart(const std::wstring& path) {
  const std::wstring bare = ProgramPath(L"bare_window.exe");
  const std::wstring form = RecordBareForm();
  std::vector<double> realMs;
  std::vector<double> bareMs;
  std::vector<double> formMs;
  std::vector<double> endMs;
  // The first start of each brings its file into memory.
  for (const std::wstring& warmUp : {bare, form, path}) TimeLife(warmUp);
  for (int start = 0; start < kStarts; ++start) {
    bareMs.push_back(TimeLife(bare).startMs);
    formMs.push_back(TimeLife(form).startMs);
    const Life life = TimeLife(path);
    realMs.push_back(life.startMs);
    endMs.push_back(life.endMs);
  }
  Report("start to shown window", Median(realMs), " ms", {.atMost = true, .value = 500});
  Report("  as a ratio to a bare window", Median(realMs) / Median(bareMs), "",
         {.atMost = true, .value = kMostStartRatio});
  Report("  as a ratio to bare windows with the same menu and controls", Median(realMs) / Median(formMs), "",
         {.atMost = true, .value = kMostFormRatio});
  Report("closing", Median(endMs), " ms", {.atMost = true, .value = kMostEndMs});
}

void MeasureIdle(const std::wstring& path) {
  const Started program(path);
  program.WaitUntilShown();
  Sleep(1000);  // until it has painted itself
  const double before = program.ProcessorMs();
  Report("processor time of the start", before, " ms", {.atMost = true, .value = kMostStartMs});
  Sleep(kIdleMs);
  Report("processor time in 5 idle seconds", program.ProcessorMs() - before, " ms",
         {.atMost = true, .value = kMostIdleMs});
}

}  // namespace

void MeasureProgram() {
  const std::wstring path = ProgramPath(L"Troth.exe");
  MeasureStart(path);
  constexpr double kMegabyte = 1024 * 1024;
  Report("size of the program", static_cast<double>(std::filesystem::file_size(path)) / kMegabyte, " MB",
         {.atMost = true, .value = kMostMegabytes});
  MeasureIdle(path);
}

}  // namespace troth::bench
