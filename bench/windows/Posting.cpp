// A sentence posted through the program's own road, beside a bare loop over the same characters. The window
// that hears them takes its messages, as the game does.
#include <windows.h>

#include <string>

#include "bench/windows/Listener.h"
#include "bench/windows/Measure.h"
#include "platform/win32/Win32Desktop.h"
#include "speech/GameOutput.h"

namespace troth::bench {

namespace {

constexpr int kTurns = 61;
constexpr int kSentencesATurn = 10;
constexpr double kLeastRatio = 0.9;
constexpr wchar_t kSentence[] =
    L"Two paths came up this hill today, and only one will go down. Count no sheep on the way.";

// Times the sentences of one turn, and leaves the listener with an empty queue.
template <class Post>
double TimeTurn(Listener& listener, Post post) {
  listener.ListenAnew();
  const double start = NowMs();
  for (int sentence = 0; sentence < kSentencesATurn; ++sentence) post();
  const double ms = NowMs() - start;
  constexpr int kCharacters = static_cast<int>(std::size(kSentence));  // the Enter counts for the end mark
  while (listener.Heard() < kSentencesATurn * kCharacters) Sleep(1);
  return ms;
}

}  // namespace

void MeasurePosting() {
  Win32Desktop desktop;
  Listener listener("BenchListener");
  const HWND window = listener.Window();
  const auto handle = static_cast<WindowHandle>(reinterpret_cast<ULONG_PTR>(window));
  const std::string bytes = desktop.platform.text.Encode(kSentence) + '\r';

  std::vector<double> realMs;
  std::vector<double> bareMs;
  for (int turn = 0; turn < kTurns; ++turn) {
    bareMs.push_back(TimeTurn(listener, [&] {
      for (const char byte : bytes) PostMessageA(window, WM_CHAR, static_cast<unsigned char>(byte), 1);
    }));
    realMs.push_back(
        TimeTurn(listener, [&] { SendLine(desktop.platform, handle, kSentence, false, EnterPause(0)); }));
  }
  const double characters = static_cast<double>(bytes.size()) * kSentencesATurn;
  Report("characters posted in a second", characters / Median(realMs) * 1000, "",
         {.atMost = false, .value = 5000});
  Report("  as a ratio to a bare loop", Median(bareMs) / Median(realMs), "",
         {.atMost = false, .value = kLeastRatio});
}

}  // namespace troth::bench
