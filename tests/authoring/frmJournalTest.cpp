#include "authoring/frmJournal.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "core/Program.h"
#include "platform/headless/HeadlessDesktop.h"
#include "script/Text.h"

namespace troth {
namespace {

using Story = std::vector<std::string>;

const std::wstring kJournal = L"C:\\Kestrel Moors\\journal.txt";
const std::wstring kScripts = L"C:\\Games\\Trothline\\wedscripts\\My Scripts\\";

// Lets the test act whenever the program serves the waiting events.
class PumpedTime final : public TimeService {
 public:
  explicit PumpedTime(HeadlessTime& time) : time_(time) {}
  std::uint32_t TickCount() const override { return time_.TickCount(); }
  void Sleep(int ms) override { time_.Sleep(ms); }
  LocalTime Now() const override { return time_.Now(); }
  std::wstring LongDate(const LocalTime& date) const override { return time_.LongDate(date); }
  std::wstring DayName(int dayOfWeek) const override { return time_.DayName(dayOfWeek); }
  std::wstring MonthName(int month) const override { return time_.MonthName(month); }
  void Pump(int waitMs) override {
    time_.Pump(waitMs);
    if (onPump) onPump();
  }

  std::function<void()> onPump;

 private:
  void SetFineResolution(bool) override {}

  HeadlessTime& time_;
};

class JournalTest : public testing::Test {
 protected:
  void SetUp() override {
    desktop.files.PutFolder(L"C:\\Games\\Trothline\\wedscripts");
    desktop.files.Put(kJournal, "Anna: one\r\nRowan: no\r\nanna: *two*\r\n");
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

  Story TakeStory() {
    Story story = desktop.journal.Lines();
    desktop.journal.Clear();
    return story;
  }
  std::string Kept(const std::wstring& name = L"vows.txt") {
    return desktop.files.Read(kScripts + name).value_or("(nothing)");
  }

  HeadlessDesktop desktop;
  HeadlessUser& user = desktop.user;
  PumpedTime time{desktop.time};
  Platform platform{.forms = desktop.forms,
                    .windows = desktop.windows,
                    .keyboard = desktop.keyboard,
                    .time = time,
                    .files = desktop.files,
                    .settings = desktop.settings,
                    .shell = desktop.shell,
                    .dialogs = desktop.dialogs,
                    .text = desktop.text,
                    .process = desktop.process,
                    .graphics = desktop.graphics};
  Program program{platform};
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
    SCOPED_TRACE(HeadlessJournal::Readable(c.script));
    InDialog([&](frmJournal& dialog) {
      EXPECT_EQ(dialog.Caption(), L"Import KM Journal (C:\\Kestrel Moors\\journal.txt)");
      EXPECT_EQ(dialog.StatusBar.Text(),
                L"Please type the character name exactly as it appears in the KM journal");
      TypeNames(dialog, c.character, c.script);
      user.Press(13);
      EXPECT_FALSE(dialog.IsLoaded());
    });
    const std::wstring name(TrimBlanks(c.script));
    EXPECT_EQ(Kept(name + L".txt"), c.kept);
    EXPECT_EQ(TakeStory(),
              Story{"box plain Trothline: The script was created and contains " + std::string(c.count) +
                    " sentences for the character " + HeadlessJournal::Readable(TrimBlanks(c.character)) +
                    ". The corresponding file " + HeadlessJournal::Readable(name) +
                    ".txt is located in the \"My Scripts\" subdirectory."});
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
    Story reports;
  } cases[] = {{0, {}}, {19, {"19"}}, {20, {"20"}}, {45, {"20", "40", "45"}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.lines);
    desktop.files.Put(kJournal, LongJournal(c.lines));
    Story reports;
    desktop.files.Delete(kScripts + L"vows.txt");
    InDialog([&](frmJournal& dialog) {
      time.onPump = [&] {
        const std::string text = HeadlessJournal::Readable(dialog.StatusBar.Text());
        EXPECT_TRUE(text.starts_with("Parsing file (row # ") && text.ends_with(")")) << text;
        reports.push_back(text.substr(20, text.size() - 21));
      };
      TypeNames(dialog, L"Anna", L"vows");
      user.Click(dialog.OKButton);
      time.onPump = {};
    });
    EXPECT_EQ(reports, c.reports);
    EXPECT_EQ(Kept(), Numbers(c.lines));
  }
}

// In a journal of any length, as long as the clock moves on.
TEST_F(JournalTest, StaysResponsiveInALongJournal) {
  desktop.files.Put(kJournal, LongJournal(5000));
  int pumps = 0;
  InDialog([&](frmJournal& dialog) {
    time.onPump = [&] {
      ++pumps;
      desktop.time.Advance(50);
    };
    TypeNames(dialog, L"Anna", L"vows");
    user.Click(dialog.OKButton);
    time.onPump = {};
  });
  EXPECT_EQ(pumps, 5000 / 20);
  EXPECT_EQ(Kept(), Numbers(5000));
}

TEST_F(JournalTest, StopsAtTheNextRowAndCanStartAgain) {
  desktop.files.Put(kJournal, LongJournal(100));
  InDialog([&](frmJournal& dialog) {
    EXPECT_FALSE(dialog.cmdStop.Visible());
    TypeNames(dialog, L"Anna", L"vows");
    time.onPump = [&] {
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
    EXPECT_EQ(TakeStory(), Story{}) << "a second OK starts no second import";

    time.onPump = {};
    desktop.dialogs.Answer(BoxAnswer::Yes);
    user.Click(dialog.OKButton);
    EXPECT_FALSE(dialog.IsLoaded());
    EXPECT_EQ(Kept(), Numbers(100));
  });
  const Story story = TakeStory();
  ASSERT_EQ(story.size(), 2u);
  EXPECT_EQ(story[0],
            "box plain Trothline: C:\\Games\\Trothline\\wedscripts\\My Scripts\\vows.txt already exists. Do "
            "you want to overwrite it?");
}

TEST_F(JournalTest, StopsWhenTheWindowIsClosed) {
  desktop.files.Put(kJournal, LongJournal(100));
  InDialog([&](frmJournal& dialog) {
    TypeNames(dialog, L"Anna", L"vows");
    time.onPump = [&] { user.CloseWindow(dialog); };
    user.Click(dialog.OKButton);
    time.onPump = {};
    EXPECT_FALSE(dialog.IsLoaded());
  });
  EXPECT_EQ(Kept(), Numbers(20));
  EXPECT_EQ(TakeStory(), Story{});
}

TEST_F(JournalTest, KeepsAScriptThatTheUserDoesNotWantToLose) {
  desktop.files.Put(kScripts + L"vows.txt", "old");
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
  desktop.files.RefuseWriting(kScripts + L"readonly.txt");
  for (const std::wstring name : {L"readonly", L"..\\vows", L"nul", L"a/b"}) {
    InDialog([&](frmJournal& dialog) {
      TypeNames(dialog, L"Anna", name);
      user.Click(dialog.OKButton);
      EXPECT_FALSE(dialog.IsLoaded());
    });
    EXPECT_EQ(TakeStory(), Story{cannotWrite + HeadlessJournal::Readable(name) + ".txt"});
  }
  desktop.files.RefuseReading(kJournal);
  InDialog([&](frmJournal& dialog) {
    TypeNames(dialog, L"Anna", L"vows");
    user.Click(dialog.OKButton);
    EXPECT_FALSE(dialog.IsLoaded());
  });
  EXPECT_EQ(TakeStory(),
            Story{"box stop Trothline: Error opening input file C:\\Kestrel Moors\\journal.txt"});
  EXPECT_EQ(Kept(), "(nothing)");
}

TEST_F(JournalTest, NeverWritesOverTheJournalItself) {
  const std::wstring journal = kScripts + L"journal.txt";
  desktop.files.Put(journal, "Anna: one");
  frmJournal& dialog = program.Make<frmJournal>(journal);
  desktop.forms.WhenModal(L"frmJournal", [&] {
    TypeNames(dialog, L"Anna", L"JOURNAL");
    user.Click(dialog.OKButton);
  });
  dialog.ShowModal();
  EXPECT_EQ(desktop.files.Read(journal), "Anna: one");
}

TEST_F(JournalTest, KeepsWhatFitsOnADiskThatFillsAtAnyByte) {
  const std::string whole = "one\r\n: two\r\n";
  for (std::size_t room = 0; room <= whole.size(); ++room) {
    SCOPED_TRACE(room);
    desktop.files.LeaveRoomFor(1000);
    desktop.files.Delete(kScripts + L"vows.txt");
    desktop.files.LeaveRoomFor(room);
    InDialog([&](frmJournal& dialog) {
      TypeNames(dialog, L"Anna", L"vows");
      user.Click(dialog.OKButton);
      EXPECT_FALSE(dialog.IsLoaded());
    });
    EXPECT_TRUE(whole.starts_with(Kept()));
    const Story story = TakeStory();
    ASSERT_EQ(story.size(), 1u);
    EXPECT_EQ(story[0].starts_with("box stop Trothline: A disk error occurred while writing "),
              room < whole.size());
  }
}

}  // namespace
}  // namespace troth
