#include "speech/modSpeech.h"

#include "core/Program.h"
#include "platform/services/TextService.h"
#include "platform/services/TimeService.h"
#include "speech/GameOutput.h"

namespace troth::modSpeech {

namespace {
constexpr int kWritePauseMs = 15;
constexpr int kClearPauseMs = 5;
constexpr int kClearBatches = 200;
constexpr int kClearBatch = 20;
}  // namespace

void WriteBookRow(Program& program, std::wstring_view text) {
  const Platform& platform = program.platform;
  const WindowHandle game = FindGameWindow(platform.windows);
  if (game == WindowHandle::None) return;
  platform.windows.Raise(game);
  for (const char byte : platform.text.Encode(text)) {
    if (!platform.windows.PostCharacter(game, static_cast<unsigned char>(byte))) return;
    platform.time.Sleep(kWritePauseMs);
    if (program.BookStop) return;
    platform.time.Pump();
  }
  platform.windows.PostCharacter(game, kEnterCode);
}

void ClearBook(Program& program) {
  const Platform& platform = program.platform;
  const WindowHandle game = FindGameWindow(platform.windows);
  if (game == WindowHandle::None) return;
  for (int batch = 0; batch < kClearBatches; ++batch) {
    for (int i = 0; i < kClearBatch; ++i) {
      if (!platform.windows.PostCharacter(game, kBackspaceCode)) return;
      platform.time.Sleep(kClearPauseMs);
    }
    if (program.BookStop) return;
    platform.windows.Raise(game);
    platform.time.Pump();
  }
}

}  // namespace troth::modSpeech
