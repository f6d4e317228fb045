// Figures of the real desktop, most of them as ratios to a bare baseline that is measured in turns with the
// real thing. Run by hand beside a build of the program; nothing fails over time.
#include "bench/windows/Measure.h"

int main() {
  troth::bench::MeasureAuthoring();
  troth::bench::MeasureBrowser();
  troth::bench::MeasureList();
  troth::bench::MeasurePosting();
  troth::bench::MeasureHotkey();
  troth::bench::MeasureBars();
  troth::bench::MeasureCapture();
  troth::bench::MeasureShip();
  troth::bench::MeasureProgram();
  return 0;
}
