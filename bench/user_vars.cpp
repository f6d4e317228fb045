// What it costs to put the user variables into all rows, as a ratio to loading the same script, in turns in
// one process; and what it costs to find one variable among few and among many.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "bench/Bench.h"
#include "script/CustVars.h"
#include "script/Expansion.h"
#include "script/IndexEntries.h"
#include "script/WeddingScript.h"
#include "script/modScript.h"

namespace troth {
namespace {

constexpr int kRepetitions = 61;
constexpr std::int32_t kVariables = 500;
constexpr double kHighestRatio = 3.0;

std::string NameOf(std::int32_t number) { return "Guest of honour " + std::to_string(number); }

CustVars Variables(std::int32_t count) {
  CustVars vars;
  for (std::int32_t number = 1; number <= count; ++number) {
    const std::string name = NameOf(number);
    const std::wstring wide(name.begin(), name.end());
    vars.Add(wide, L"somebody from Nether Sallow", wide);
  }
  return vars;
}

// Two marks a row, which go through all variables.
std::string Line(std::int32_t row) {
  return "Be welcome, #" + NameOf(1 + row % kVariables) + "#, and sit by #" +
         NameOf(1 + row * 7 % kVariables) + "#, row " + std::to_string(row);
}

void CompareWithLoad(Platform& platform) {
  const ScriptFile file(kMaxRows, Line);
  const CustVars vars = Variables(kVariables);
  std::vector<double> load;
  std::vector<double> apply;
  for (int i = 0; i < kRepetitions; ++i) {
    WeddingScript script;
    IndexEntries entries;
    script.sFileName(file.Path());
    const Watch loading;
    modScript::LoadScriptFile(script, entries, platform);
    load.push_back(loading.ElapsedMs());
    const Watch applying;
    modScript::ApplyUserVars(script, vars);
    apply.push_back(applying.ElapsedMs());
    if (script.Rows()->Item(kMaxRows).WText().find(L'#') != std::wstring::npos) std::abort();
  }
  std::printf("load %.2f ms, apply_user_vars %.2f ms\n", Median(load), Median(apply));
  std::printf("ratio apply_user_vars/load %d rows, %d variables: %.2f (at most %.1f)\n", kMaxRows, kVariables,
              Median(apply) / Median(load), kHighestRatio);
}

// The same few names each time, spread over the whole collection: a script uses no more of them because there
// are more, and the caches of the processor stay out of the figure.
double LookUpNs(const CustVars& vars) {
  constexpr int kNames = 50;
  constexpr int kRounds = 4000;
  std::vector<std::wstring> names;
  for (int i = 1; i <= kNames; ++i) names.push_back(vars.Item(vars.Count() / kNames * i)->VarName());
  const Watch watch;
  for (int round = 0; round < kRounds; ++round)
    for (const std::wstring& name : names)
      if (!vars.Item(name)) std::abort();
  return watch.ElapsedMs() * 1e6 / (kNames * kRounds);
}

void CompareSizes() {
  const std::int32_t sizes[] = {50, 500, 5000};
  std::vector<CustVars> stores;
  std::vector<std::vector<double>> samples(std::size(sizes));
  for (const std::int32_t size : sizes) stores.push_back(Variables(size));
  for (int i = 0; i < kRepetitions; ++i)
    for (std::size_t s = 0; s < stores.size(); ++s) samples[s].push_back(LookUpNs(stores[s]));
  for (std::size_t s = 0; s < stores.size(); ++s)
    std::printf("look-up among %d variables: %.1f ns\n", sizes[s], Median(samples[s]));
}

}  // namespace
}  // namespace troth

int main() {
  troth::BenchDesktop desktop;
  troth::CompareWithLoad(desktop.platform);
  troth::CompareSizes();
  return 0;
}
