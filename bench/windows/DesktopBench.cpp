// Figures of the real desktop, most of them as ratios to a bare baseline that is measured in turns with the
// real thing. Run by hand beside a build of the program; nothing fails over time. Arguments name the figures
// that are wanted; without any, all are measured.
#include <algorithm>
#include <string_view>

#include "bench/windows/Measure.h"

int main(int count, char** arguments) {
  using namespace troth::bench;
  constexpr struct {
    std::string_view name;
    void (*Measure)();
  } kFigures[] = {
      {"authoring", &MeasureAuthoring}, {"browser", &MeasureBrowser}, {"list", &MeasureList},
      {"posting", &MeasurePosting},     {"hotkey", &MeasureHotkey},   {"bars", &MeasureBars},
      {"capture", &MeasureCapture},     {"ship", &MeasureShip},       {"program", &MeasureProgram}};
  for (const auto& figure : kFigures)
    if (count < 2 || std::find(arguments + 1, arguments + count, figure.name) != arguments + count)
      figure.Measure();
  return 0;
}
