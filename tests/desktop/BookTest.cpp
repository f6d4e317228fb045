// A book that is written into the game: its rows at their pace, a stop in the middle of a row, and a window
// that does not close meanwhile.
#include <gtest/gtest.h>

#include <algorithm>
#include <future>

#include "tests/desktop/Patience.h"
#include "tests/desktop/Stage.h"

namespace troth::desktop {
namespace {

constexpr ULONGLONG kCharacterMs = 15;
constexpr ULONGLONG kRowMs = 250;
constexpr ULONGLONG kMostPercent = 115;

class BookTest : public DesktopTest {
 protected:
  // The book window with the rows of the script.
  HWND OpenBook(Troth& troth) {
    troth.Choose(L"MViewKMBook");
    const HWND book = troth.AwaitForm(L"frmKMBook");
    ClickButton(FindNamed(book, L"cmdCurrent"));
    AWAIT(IsWindowEnabled(FindNamed(book, L"cmdWrite")));
    return book;
  }
  // Up to the moment at which the first character may go out.
  static void StartWriting(const Troth& troth, HWND book) {
    ClickButton(FindNamed(book, L"cmdWrite"));
    const Box box = troth.AwaitBox();
    EXPECT_EQ(box.text,
              L"Please place your cursor in KM at the insertion point in the book you want to write.");
    PostMessageW(box.window, WM_COMMAND, IDOK, 0);
    AWAIT(!IsWindow(box.window));
  }
};

TEST_F(BookTest, WritesTwoHundredRowsAtTheirPace) {
  constexpr int kRows = 200;
  std::string script;
  std::string wanted;
  ULONGLONG pausesMs = 0;
  for (int row = 0; row < kRows; ++row) {
    const std::string text =
        std::string(1, static_cast<char>('a' + row % 26)) + (row % 10 == 0 ? " #x#" : "");
    script += text + "\r\n";
    wanted += text + '\r';
    pausesMs += text.size() * kCharacterMs + kRowMs;
  }
  UseScript(script);
  Game game;
  Troth troth;
  const HWND book = OpenBook(troth);
  StartWriting(troth, book);
  const ULONGLONG startedAt = GetTickCount64();
  // What the same pauses take on this machine at this time, with nothing between them.
  auto bareMs = std::async(std::launch::async, [&] {
    for (ULONGLONG leftMs = pausesMs - kRows * kRowMs; leftMs > 0; leftMs -= kCharacterMs)
      Sleep(kCharacterMs);
    for (int row = 0; row < kRows; ++row) Sleep(kRowMs);
    return GetTickCount64() - startedAt;
  });
  EXPECT_EQ(TextOf(FindNamed(book, L"cmdQuit")), L"&Stop");
  ASSERT_TRUE(Eventually([&] { return troth.BoxIsUp(); }, pausesMs * 2));
  const ULONGLONG passedMs = GetTickCount64() - startedAt;
  const Box box = troth.AwaitBox();
  EXPECT_EQ(box.text, L"Completed.");
  troth.Answer(box);
  EXPECT_EQ(game.HeardToTheEnd().bytes, wanted);
  EXPECT_GE(passedMs + kRowMs, pausesMs);
  EXPECT_LE(passedMs * 100, bareMs.get() * kMostPercent);
}

TEST_F(BookTest, StopsInTheMiddleOfARowAndRefusesToCloseUntilThen) {
  const std::string row(400, 'x');
  UseScript(row + "\r\nnever\r\n");
  Game game;
  Troth troth;
  const HWND book = OpenBook(troth);
  StartWriting(troth, book);
  AWAIT(!game.HeardSoFar().bytes.empty());
  PostMessageW(book, WM_CLOSE, 0, 0);
  const std::size_t before = game.HeardSoFar().bytes.size();
  AWAIT(game.HeardSoFar().bytes.size() > before + 10);
  EXPECT_TRUE(IsWindowVisible(book));
  ClickButton(FindNamed(book, L"cmdQuit"));
  const Box box = troth.AwaitBox();
  EXPECT_EQ(box.text, L"Interrupted by user.");
  troth.Answer(box);
  AWAIT_EQ(L"&Close", TextOf(FindNamed(book, L"cmdQuit")));
  const std::string heard = game.HeardToTheEnd().bytes;
  EXPECT_LT(heard.size(), row.size());
  EXPECT_EQ(heard, std::string(heard.size(), 'x')) << "no Enter follows";
  PostMessageW(book, WM_CLOSE, 0, 0);
  AWAIT(!IsWindow(book));
}

}  // namespace
}  // namespace troth::desktop
