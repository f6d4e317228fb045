// Patience with a window whose queue is full: only a headless desktop can make it so at will.
#include <gtest/gtest.h>

#include "platform/headless/HeadlessDesktop.h"

namespace troth {

namespace {

class WindowPatience : public testing::Test {
 protected:
  // Posts the text and returns how many characters were taken before the first that was not.
  std::size_t Post(std::string_view text) {
    std::size_t taken = 0;
    for (const char c : text) {
      if (!desktop.windows.PostCharacter(handle, static_cast<unsigned char>(c))) break;
      ++taken;
    }
    return taken;
  }

  HeadlessDesktop desktop;
  HeadlessWindow& game = desktop.windows.Open(L"Game");
  WindowHandle handle = desktop.windows.Find(L"Game");
  const std::uint32_t start = desktop.time.TickCount();
  std::uint32_t Elapsed() const { return desktop.time.TickCount() - start; }
};

TEST_F(WindowPatience, AFullQueueIsWaitedForAndTheOrderStays) {
  game.capacity = 3;
  game.takesPerMs = 1;
  const std::string text(200, 'a');
  std::string counted;
  for (std::size_t i = 0; i < text.size(); ++i) counted += static_cast<char>('0' + i % 64);
  EXPECT_EQ(Post(counted), counted.size());
  EXPECT_EQ(game.HeardText(), counted);
  EXPECT_GT(Elapsed(), 100u);
}

TEST_F(WindowPatience, AHangingWindowIsGivenUpAfterAWhile) {
  game.capacity = 2;
  game.takesPerMs = 0;
  EXPECT_EQ(Post("vows"), 2u);
  EXPECT_EQ(game.HeardText(), "vo");
  EXPECT_GE(Elapsed(), static_cast<std::uint32_t>(WindowService::kPatienceMs));
  EXPECT_LE(Elapsed(), static_cast<std::uint32_t>(WindowService::kPatienceMs + WindowService::kRetryMs));
}

TEST_F(WindowPatience, AWindowThatDiesWhileItIsWaitedForEndsTheWait) {
  game.capacity = 0;
  game.takesPerMs = 0;
  game.diesAt = start + 3u * static_cast<std::uint32_t>(WindowService::kRetryMs);
  EXPECT_EQ(Post("x"), 0u);
  EXPECT_EQ(Elapsed(), 3u * static_cast<std::uint32_t>(WindowService::kRetryMs));
}

}  // namespace

}  // namespace troth
