// The slow writer of the book window.
#include "speech/modSpeech.h"

#include <algorithm>

#include "tests/speech/SpeechRig.h"

namespace troth {

namespace {

class Book : public SpeechTest {
 protected:
  const std::uint32_t start = desktop.time.TickCount();
  std::uint32_t Elapsed() const { return desktop.time.TickCount() - start; }
  void StopIn(int ms) {
    desktop.time.After(ms, [this] { program.BookStop = true; });
  }
};

// Handlers run after each character, also after the last one, when it is too late to stop.
TEST_F(Book, RowEndsWhereItIsStopped) {
  StartGame();
  const struct {
    int stopsInMs;
    std::string heard;
  } cases[] = {{0, "v"}, {15, "vo"}, {20, "vow"}, {30, "vow"}, {45, "vow\r"}};
  for (const auto& c : cases) {
    program.BookStop = c.stopsInMs == 0;
    game->heard.clear();
    if (c.stopsInMs > 0) StopIn(c.stopsInMs);
    modSpeech::WriteBookRow(program, L"vow");
    EXPECT_EQ(game->HeardText(), c.heard) << c.stopsInMs;
  }
}

TEST_F(Book, ClearingSendsBatchesAndRaisesBetweenThem) {
  StartGame();
  modSpeech::ClearBook(program);
  EXPECT_EQ(game->HeardText(), std::string(4000, '\b'));
  EXPECT_NEAR(Elapsed(), 20000, 5) << "5 ms a character; pumping many times takes a moment as well";
  Lines batch;
  for (int i = 0; i < 20; ++i) batch.insert(batch.end(), {"posts <8>", "sleep 5"});
  batch.push_back(kRaise);
  const Lines story = TakeStory();
  ASSERT_EQ(story.size(), 200 * batch.size());
  for (std::size_t i = 0; i < story.size(); ++i) ASSERT_EQ(story[i], batch[i % batch.size()]) << i;
}

TEST_F(Book, ClearingStopsAtTheEndOfABatch) {
  StartGame();
  StopIn(150);  // comes in between the second batch and the third
  modSpeech::ClearBook(program);
  EXPECT_EQ(game->heard.size(), 60u);
  const Lines story = TakeStory();
  EXPECT_EQ(std::count(story.begin(), story.end(), kRaise), 2);
  game->heard.clear();
  modSpeech::ClearBook(program);
  EXPECT_EQ(game->heard.size(), 20u);
}

TEST_F(Book, GoesToTheFirstClassOrElseTheSecondOrNowhere) {
  modSpeech::WriteBookRow(program, L"vow");
  modSpeech::ClearBook(program);
  EXPECT_EQ(TakeStory(), Lines{});
  EXPECT_EQ(Elapsed(), 0u);
  HeadlessWindow& second = desktop.windows.Open(kSecondGameClass);
  modSpeech::WriteBookRow(program, L"a");
  program.BookStop = true;
  modSpeech::ClearBook(program);
  EXPECT_EQ(second.heard.size(), 22u);
  StartGame();
  program.BookStop = false;
  modSpeech::WriteBookRow(program, L"b");
  EXPECT_EQ(game->HeardText(), "b\r");
  EXPECT_EQ(second.heard.size(), 22u);
}

}  // namespace

}  // namespace troth
