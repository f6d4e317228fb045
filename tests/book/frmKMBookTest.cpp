// The book window: loading, ticking, writing, stopping, exporting.
#include "book/frmKMBook.h"

#include "platform/forms/KeyCodes.h"
#include "tests/speech/SpeechRig.h"

namespace troth {

namespace {

const std::string kAskCursor =
    "box plain Trothline: Please place your cursor in KM at the insertion point in the book you want to "
    "write.";
const std::string kCompleted = "box plain Trothline: Completed.";
const std::string kInterrupted = "box information Trothline: Interrupted by user.";
constexpr wchar_t kBookPath[] = L"C:\\Games\\Trothline\\Book.txt";
constexpr wchar_t kExportPath[] = L"C:\\Games\\Trothline\\Out.txt";

class frmKMBookTest : public SpeechTest {
 protected:
  // The book window with these rows, beside a game.
  void StartBook(const Lines& rows) {
    Start({"One.", "Two."});
    StartGame();
    user.Choose(window->MViewKMBook);
    if (!rows.empty()) Load(rows);
    TakeStory();
  }

  void Load(const Lines& rows) {
    std::string bytes;
    for (const std::string& row : rows) bytes += row + "\r\n";
    files.Put(kBookPath, bytes);
    desktop.dialogs.AnswerFile(kBookPath);
    user.Click(Book().cmdSelect);
  }

  frmKMBook& Book() { return *program.Opened<frmKMBook>(); }
  std::string Title() { return Readable(Book().Caption()); }

  Lines WriteBook() {
    desktop.dialogs.Answer(BoxAnswer::Ok);
    user.Click(Book().cmdWrite);
    return TakeStory();
  }
  std::string Posted() {
    std::string text = game->HeardText();
    game->heard.clear();
    return text;
  }
  // The journal without the single steps of the writing.
  static Lines Boxes(const Lines& story) {
    Lines boxes;
    for (const std::string& line : story)
      if (line.starts_with("box")) boxes.push_back(line);
    return boxes;
  }
  bool AllEnabled(bool enabled) {
    for (const CommandButton* button :
         {&Book().cmdAll, &Book().cmdNone, &Book().cmdSelect, &Book().cmdCurrent, &Book().cmdWrite,
          &Book().cmdRow, &Book().cmdExport, &Book().cdmHelp})
      if (button->Enabled() != enabled) return false;
    return Book().cmdQuit.Enabled();
  }
};

TEST_F(frmKMBookTest, ComesUpEmptyAtItsStoredPlaceAndAtTheHeightOfTheMainWindow) {
  const struct {
    const wchar_t *x, *y;
    Point place;
  } cases[] = {
      {L"300", L"450", {300, 450}},
      {L"-1", L"450", {0, 450}},
      {L"15260", L"11419", {15260, 11419}},
      {L"15261", L"11420", {0, 0}},
  };
  Start({"One."});
  for (const auto& c : cases) {
    Store(L"KMBook", L"X Position", c.x);
    Store(L"KMBook", L"Y Position", c.y);
    window->Show();
    user.Choose(window->MViewKMBook);
    const Rect outer = Book().OuterBounds();
    EXPECT_EQ((Point{outer.left, outer.top}), c.place) << Readable(c.x);
    EXPECT_EQ(Title(), "KMBook (0 rows of 0, 0 characters of 0)");
    EXPECT_FALSE(Book().cmdWrite.Enabled() || Book().cmdRow.Enabled());
    EXPECT_TRUE(desktop.forms.Find(Book())->IsTopMost());
    Book().MoveTo({c.place.left, 75});
    user.Click(Book().cmdQuit);
    EXPECT_EQ(Stored(L"KMBook", L"Y Position"), L"75");
  }
}

TEST_F(frmKMBookTest, LoadsAFileWithAllRowsTicked) {
  StartBook({"first", "", "third"});
  EXPECT_EQ(Title(), "KMBook (3 rows of 3, 13 characters of 13)");
  EXPECT_EQ(Book().lstBook.Index(), -1);
  EXPECT_EQ(Book().lstBook.Text(2), L"third");
  EXPECT_TRUE(Book().cmdWrite.Enabled() && Book().cmdRow.Enabled());
  user.ClickTick(Book().lstBook, 0);
  EXPECT_EQ(Title(), "KMBook (2 rows of 3, 7 characters of 13)");
  user.Click(Book().cmdNone);
  EXPECT_EQ(Title(), "KMBook (0 rows of 3, 0 characters of 13)");
  user.Select(Book().lstBook, 1);
  user.Click(Book().cmdNone);
  EXPECT_EQ(Book().lstBook.Index(), 1) << "stays";
  user.Click(Book().cmdAll);
  EXPECT_EQ(Book().lstBook.Index(), -1);
  EXPECT_EQ(Title(), "KMBook (3 rows of 3, 13 characters of 13)");
}

TEST_F(frmKMBookTest, FileThatCannotBeReadLeavesTheListAndClearsTheCounters) {
  StartBook({"row", "another"});
  desktop.dialogs.AnswerFile(std::nullopt);
  user.Click(Book().cmdSelect);
  EXPECT_EQ(Title(), "KMBook (2 rows of 2, 12 characters of 12)") << "cancelled";
  desktop.dialogs.AnswerFile(L"C:\\Games\\Trothline\\Missing.txt");
  user.Click(Book().cmdSelect);
  EXPECT_EQ(Book().lstBook.Count(), 2);
  EXPECT_EQ(Title(), "KMBook (2 rows of 2, 12 characters of 12)") << "until the next update";
  user.ClickTick(Book().lstBook, 0);
  EXPECT_EQ(Title(), "KMBook (2 rows of 2, 12 characters of 12)") << "no rows are counted";
  user.Click(Book().cmdAll);
  EXPECT_EQ(Title(), "KMBook (2 rows of 2, 0 characters of 0)");
}

TEST_F(frmKMBookTest, LoadsTheScriptAsTheMainWindowShowsIt) {
  Start({"Hello #groom#.", "@comment"});
  TypeOver(window->txtGroom, L"Bram");
  user.Click(window->txtPrefix);
  user.Choose(window->MViewKMBook);
  user.Click(Book().cmdCurrent);
  ASSERT_EQ(Book().lstBook.Count(), 2);
  EXPECT_EQ(Book().lstBook.Text(0), L"Hello Bram.");
  EXPECT_EQ(Book().lstBook.Text(1), L"@comment");
  EXPECT_TRUE(Book().lstBook.Ticked(1));
}

TEST_F(frmKMBookTest, ScriptOfMoreThanTenThousandRowsIsCut) {
  Lines lines;
  for (int line = 0; line < 10001; ++line) lines.push_back("x");
  Start(lines);
  user.Choose(window->MViewKMBook);
  TakeStory();
  user.Click(Book().cmdCurrent);
  EXPECT_EQ(TakeStory(), Lines{"box stop Trothline: Script too long, size will be truncated."});
  EXPECT_EQ(Title(), "KMBook (10000 rows of 10000, 20000 characters of 20000)");
}

TEST_F(frmKMBookTest, WritesTheTickedRowsAtItsPace) {
  StartBook({"ab", "skipped", "", "+{c}"});
  user.ClickTick(Book().lstBook, 1);
  const std::uint32_t before = desktop.time.TickCount();
  EXPECT_EQ(Boxes(WriteBook()), (Lines{kAskCursor, kCompleted}));
  EXPECT_EQ(Posted(), "ab\r\r+{c}\r");
  EXPECT_EQ(desktop.time.TickCount() - before, 6u * 15 + 3 * 250);
  EXPECT_TRUE(AllEnabled(true));
  EXPECT_EQ(Book().lstBook.Index(), -1);
}

TEST_F(frmKMBookTest, BeginsAtTheCurrentRow) {
  StartBook({"one", "two", "three"});
  user.Select(Book().lstBook, 1);
  WriteBook();
  EXPECT_EQ(Posted(), "two\rthree\r");
  EXPECT_EQ(Book().lstBook.Index(), 1);
}

TEST_F(frmKMBookTest, ShowsWhichRowIsBeingWritten) {
  StartBook({"one", "two"});
  user.Select(Book().lstBook, 0);
  std::vector<int> marked;
  for (int ms = 5; ms < 700; ms += 10)
    desktop.time.After(ms, [&] {
      const int row = Book().lstBook.Marked();
      if (marked.empty() || marked.back() != row) marked.push_back(row);
    });
  WriteBook();
  desktop.time.Advance(1000);
  EXPECT_EQ(marked, (std::vector<int>{0, 1, -1}));
  EXPECT_EQ(Book().lstBook.Index(), 0);
}

TEST_F(frmKMBookTest, DeletesFirstIfTheUserAgrees) {
  StartBook({"x"});
  user.Click(Book().chkDelete);
  desktop.dialogs.Answer(BoxAnswer::Cancel);
  user.Click(Book().cmdWrite);
  EXPECT_EQ(Posted(), "");
  EXPECT_TRUE(AllEnabled(true));
  EXPECT_EQ(Book().cmdQuit.Caption(), L"&Close");
  const Lines boxes = Boxes(TakeStory());
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_TRUE(
      boxes[0].starts_with("box plain Trothline: Please place your cursor in KM at the end of the book you "
                           "want to write. The current contents"));
  WriteBook();
  EXPECT_EQ(Posted(), std::string(4000, '\b') + "x\r");
}

TEST_F(frmKMBookTest, StopCutsTheRowOffWithoutItsEnter) {
  StartBook({"abcdef", "never"});
  desktop.time.After(40, [&] {
    EXPECT_EQ(Book().cmdQuit.Caption(), L"&Stop");
    EXPECT_TRUE(AllEnabled(false));
    user.CloseWindow(Book());
    EXPECT_TRUE(Book().Visible()) << "closing is refused";
    user.Click(Book().cmdQuit);
  });
  EXPECT_EQ(Boxes(WriteBook()), (Lines{kAskCursor, kInterrupted}));
  EXPECT_EQ(Posted(), "abcd");
  EXPECT_TRUE(AllEnabled(true));
  EXPECT_EQ(Book().cmdQuit.Caption(), L"&Close");
}

TEST_F(frmKMBookTest, WritesSingleRowsOnePressAfterTheOther) {
  StartBook({"one", "two", "three"});
  user.ClickTick(Book().lstBook, 1);
  Book().cmdRow.SetFocus();
  const auto press = [&] {
    user.Press(kSpaceKey);
    return Posted() + "; row " + std::to_string(Book().lstBook.Index());
  };
  EXPECT_EQ(press(), "one\r; row 0") << "without a current row the first is written and becomes current";
  EXPECT_EQ(press(), "one\r; row 1");
  EXPECT_EQ(press(), "; row 2") << "an unticked row is passed over";
  EXPECT_EQ(press(), "three\r; row 0");
  EXPECT_EQ(Boxes(TakeStory()), Lines{});
  desktop.time.After(20, [&] { user.Click(Book().cmdQuit); });
  EXPECT_EQ(press(), "one; row 1") << "cut off before its Enter";
  EXPECT_EQ(Boxes(TakeStory()), Lines{kInterrupted});
}

TEST_F(frmKMBookTest, ProgramThatEndsWhileABookIsWrittenStopsTheWriting) {
  StartBook({"a long row that is never written to its end"});
  desktop.time.After(40, [&] { window->Unload(); });
  desktop.dialogs.Answer(BoxAnswer::Ok);
  user.Click(Book().cmdWrite);
  EXPECT_EQ(Posted(), "a lo");
  EXPECT_EQ(Boxes(TakeStory()), Lines{kAskCursor});
}

TEST_F(frmKMBookTest, ExportsTheTickedRows) {
  StartBook({"one", "", "three"});
  const auto exported = [&] {
    desktop.dialogs.AnswerFile(kExportPath);
    user.Click(Book().cmdExport);
    return File(kExportPath);
  };
  EXPECT_EQ(exported(), "one\r\n\r\nthree\r\n");
  EXPECT_EQ(Boxes(TakeStory()), Lines{});
  const FileRequest& request = desktop.dialogs.FilesAsked().back();
  EXPECT_EQ(request.fileName, L"Untitled.txt");
  EXPECT_TRUE(request.overwritePrompt);

  user.ClickTick(Book().lstBook, 0);
  EXPECT_EQ(exported(), "\r\nthree\r\n");
  const Lines boxes = Boxes(TakeStory());
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_TRUE(
      boxes[0].starts_with("box information Trothline: Warning: as some sentences in your test were not "));

  files.LeaveRoomFor(1);
  EXPECT_EQ(exported(), "\r\nthree\r\n") << "what was there stays";
  EXPECT_EQ(Boxes(TakeStory()), Lines{"box stop Trothline: Error, can't open output file"});
}

}  // namespace
}  // namespace troth
