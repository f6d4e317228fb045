#include "authoring/frmJournal.h"

#include "core/Program.h"
#include "script/Text.h"
#include "tests/HeadlessTest.h"

namespace troth {
namespace {

const std::wstring kJournal = L"C:\\Kestrel Moors\\journal.txt";
const std::wstring kScripts = L"C:\\Games\\Trothline\\wedscripts\\My Scripts\\";

class JournalTest : public HeadlessTest {
 protected:
  void SetUp() override {
    files.PutFolder(L"C:\\Games\\Trothline\\wedscripts");
    files.Put(kJournal, "Anna: one\r\nRowan: no\r\nanna: *two*\r\n");
  }

  // What the person does in the dialog, which is closed if it is still there afterwards.
  void InDialog(const std::function<void(frmJournal&)>& act) {
    frmJournal& dialog = program.Make<frmJournal>(kJournal);
    desktop.forms.WhenModal(L"frmJournal", [&] {
      act(dialog);
      if (dialog.IsLoaded()) user.CloseWindow(dialog);
    });
    dialog.ShowModal();
  }

  void TypeNames(frmJournal& dialog, const std::wstring& character, const std::wstring& script) {
    user.Click(dialog.txtCharName);
    user.Type(character);
    user.Click(dialog.txtScriptName);
    user.Type(script);
  }

  // A journal in which Anna says the number of each line.
  static std::string LongJournal(int lines) {
    std::string journal;
    for (int line = 1; line <= lines; ++line) journal += "Anna: " + std::to_string(line) + "\r\n";
    return journal;
  }
  static std::string Numbers(int lines) {
    std::string script;
    for (int line = 1; line <= lines; ++line) script += std::to_string(line) + "\r\n";
    return script;
  }

  std::string Kept(const std::wstring& name = L"vows.txt") { return File(kScripts + name); }

  Program program{desktop.platform};
};

TEST_F(JournalTest, WritesWhatTheCharacterSaidAndSaysHowMuchItWas) {
  const struct {
    std::wstring character;
    std::wstring script;
    std::string kept;
    const char* count;
  } cases[] = {{L" anna ", L" vows ", "one\r\n: two\r\n", "2"},
               {L"ROWAN", L"x.txt", "no\r\n", "1"},
               {L"Nobody", L"100 % & more", "", "0"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(Readable(c.script));
    InDialog([&](frmJournal& dialog) {
      EXPECT_EQ(dialog.Options().helpContext, 5);
      EXPECT_EQ(dialog.Caption(), L"Import KM Journal (C:\\Kestrel Moors\\journal.txt)");
      EXPECT_EQ(dialog.StatusBar.Text(),
                L"Please type the character name exactly as it appears in the KM journal");
      TypeNames(dialog, c.character, c.script);
      user.Press(13);
      EXPECT_FALSE(dialog.IsLoaded());
    });
    const std::wstring name(TrimBlanks(c.script));
    EXPECT_EQ(Kept(name + L".txt"), c.kept);
    EXPECT_EQ(TakeStory(), Lines{"box plain Trothline: The script was created and contains " +
                                 std::string(c.count) + " sentences for the character " +
                                 Readable(TrimBlanks(c.character)) + ". The corresponding file " +
                                 Readable(name) + ".txt is located in the \"My Scripts\" subdirectory."});
  }
}

TEST_F(JournalTest, NeedsBothNames) {
  InDialog([&](frmJournal& dialog) {
    const struct {
      const wchar_t* character;
      const wchar_t* script;
      bool enabled;
    } cases[] = {{L"", L"", false},       {L"Anna", L"", false}, {L"Anna", L"vows", true},
                 {L"  ", L"vows", false}, {L"A", L" ", false},   {L"A", L"b", true}};
    for (const auto& c : cases) {
      dialog.txtCharName.SetText(c.character);
      dialog.txtScriptName.SetText(c.script);
      EXPECT_EQ(dialog.OKButton.Enabled(), c.enabled);
    }
    user.Press(27);
    EXPECT_FALSE(dialog.IsLoaded());
  });
}

TEST_F(JournalTest, ReportsProgressEvery20RowsAndAtTheEnd) {
  const struct {
    int lines;
    Lines reports;
  } cases[] = {{0, {}}, {19, {"19"}}, {20, {"20"}}, {45, {"20", "40", "45"}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.lines);
    files.Put(kJournal, LongJournal(c.lines));
    Lines reports;
    files.Delete(kScripts + L"vows.txt");
    InDialog([&](frmJournal& dialog) {
      desktop.time.onPump = [&] {
        const std::string text = Readable(dialog.StatusBar.Text());
        EXPECT_TRUE(text.starts_with("Parsing file (row # ") && text.ends_with(")")) << text;
        reports.push_back(text.substr(20, text.size() - 21));
      };
      TypeNames(dialog, L"Anna", L"vows");
      user.Click(dialog.OKButton);
      desktop.time.onPump = {};
    });
    EXPECT_EQ(reports, c.reports);
    EXPECT_EQ(Kept(), Numbers(c.lines));
  }
}

// In a journal of any length, as long as the clock moves on.
TEST_F(JournalTest, StaysResponsiveInALongJournal) {
  files.Put(kJournal, LongJournal(5000));
  int pumps = 0;
  InDialog([&](frmJournal& dialog) {
    desktop.time.onPump = [&] {
      ++pumps;
      desktop.time.Advance(50);
    };
    TypeNames(dialog, L"Anna", L"vows");
    user.Click(dialog.OKButton);
    desktop.time.onPump = {};
  });
  EXPECT_EQ(pumps, 5000 / 20);
  EXPECT_EQ(Kept(), Numbers(5000));
}

TEST_F(JournalTest, StopsAtTheNextRowAndCanStartAgain) {
  files.Put(kJournal, LongJournal(100));
  InDialog([&](frmJournal& dialog) {
    EXPECT_FALSE(dialog.cmdStop.Visible());
    TypeNames(dialog, L"Anna", L"vows");
    desktop.time.onPump = [&] {
      EXPECT_TRUE(dialog.OKButton.Enabled());
      EXPECT_FALSE(dialog.CancelButton.Enabled());
      user.Click(dialog.OKButton);
      user.Click(dialog.cmdStop);
    };
    user.Click(dialog.OKButton);
    EXPECT_EQ(dialog.StatusBar.Text(), L"Aborted. Stop button pressed.");
    EXPECT_TRUE(dialog.CancelButton.Enabled());
    EXPECT_FALSE(dialog.cmdStop.Visible());
    EXPECT_EQ(Kept(), Numbers(20));
    EXPECT_EQ(TakeStory(), Lines{}) << "a second OK starts no second import";

    desktop.time.onPump = {};
    desktop.dialogs.Answer(BoxAnswer::Yes);
    user.Click(dialog.OKButton);
    EXPECT_FALSE(dialog.IsLoaded());
    EXPECT_EQ(Kept(), Numbers(100));
  });
  const Lines story = TakeStory();
  ASSERT_EQ(story.size(), 2u);
  EXPECT_EQ(story[0],
            "box plain Trothline: C:\\Games\\Trothline\\wedscripts\\My Scripts\\vows.txt already exists. Do "
            "you want to overwrite it?");
}

TEST_F(JournalTest, StopsWhenTheWindowIsClosed) {
  files.Put(kJournal, LongJournal(100));
  InDialog([&](frmJournal& dialog) {
    TypeNames(dialog, L"Anna", L"vows");
    desktop.time.onPump = [&] { user.CloseWindow(dialog); };
    user.Click(dialog.OKButton);
    desktop.time.onPump = {};
    EXPECT_FALSE(dialog.IsLoaded());
  });
  EXPECT_EQ(Kept(), Numbers(20));
  EXPECT_EQ(TakeStory(), Lines{});
}

TEST_F(JournalTest, KeepsAScriptThatTheUserDoesNotWantToLose) {
  files.Put(kScripts + L"vows.txt", "old");
  InDialog([&](frmJournal& dialog) {
    TypeNames(dialog, L"Anna", L"vows");
    desktop.dialogs.Answer(BoxAnswer::No);
    user.Click(dialog.OKButton);
    EXPECT_TRUE(dialog.IsLoaded());
    EXPECT_EQ(Kept(), "old");
    EXPECT_FALSE(dialog.CancelButton.Enabled());
    user.Click(dialog.cmdStop);
    EXPECT_TRUE(dialog.CancelButton.Enabled());
    EXPECT_FALSE(dialog.cmdStop.Visible());
    user.Click(dialog.CancelButton);
    EXPECT_FALSE(dialog.IsLoaded());
  });
}

TEST_F(JournalTest, SaysWhichFileCannotBeUsed) {
  const std::string cannotWrite =
      "box stop Trothline: Error opening script file C:\\Games\\Trothline\\wedscripts\\"
      "My Scripts\\";
  files.RefuseWriting(kScripts + L"readonly.txt");
  for (const std::wstring name : {L"readonly", L"..\\vows", L"nul", L"a/b"}) {
    InDialog([&](frmJournal& dialog) {
      TypeNames(dialog, L"Anna", name);
      user.Click(dialog.OKButton);
      EXPECT_FALSE(dialog.IsLoaded());
    });
    EXPECT_EQ(TakeStory(), Lines{cannotWrite + Readable(name) + ".txt"});
  }
  files.RefuseReading(kJournal);
  InDialog([&](frmJournal& dialog) {
    TypeNames(dialog, L"Anna", L"vows");
    user.Click(dialog.OKButton);
    EXPECT_FALSE(dialog.IsLoaded());
  });
  EXPECT_EQ(TakeStory(),
            Lines{"box stop Trothline: Error opening input file C:\\Kestrel Moors\\journal.txt"});
  EXPECT_EQ(Kept(), "(nothing)");
}

TEST_F(JournalTest, NeverWritesOverTheJournalItself) {
  const std::wstring journal = kScripts + L"journal.txt";
  files.Put(journal, "Anna: one");
  frmJournal& dialog = program.Make<frmJournal>(journal);
  desktop.forms.WhenModal(L"frmJournal", [&] {
    TypeNames(dialog, L"Anna", L"JOURNAL");
    user.Click(dialog.OKButton);
  });
  dialog.ShowModal();
  EXPECT_EQ(files.Read(journal), "Anna: one");
}

TEST_F(JournalTest, KeepsWhatFitsOnADiskThatFillsAtAnyByte) {
  const std::string whole = "one\r\n: two\r\n";
  for (const std::size_t room : {std::size_t{0}, std::size_t{7}, whole.size()}) {
    SCOPED_TRACE(room);
    files.LeaveRoomFor(1000);
    files.Delete(kScripts + L"vows.txt");
    files.LeaveRoomFor(room);
    InDialog([&](frmJournal& dialog) {
      TypeNames(dialog, L"Anna", L"vows");
      user.Click(dialog.OKButton);
      EXPECT_FALSE(dialog.IsLoaded());
    });
    EXPECT_TRUE(whole.starts_with(Kept()));
    const Lines story = TakeStory();
    ASSERT_EQ(story.size(), 1u);
    EXPECT_EQ(story[0].starts_with("box stop Trothline: A disk error occurred while writing "),
              room < whole.size());
  }
}

}  // namespace
}  // namespace troth
