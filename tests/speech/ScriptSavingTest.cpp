// What a script that was changed in memory looks like in its file, under which names it can be kept, and what
// stays as it was when it cannot.
#include "speech/ScriptSaving.h"

#include "tests/speech/SpeechRig.h"

namespace troth {

namespace {

const std::wstring kMyScripts = L"C:\\Games\\Trothline\\wedscripts\\My Scripts\\";
const std::string kAsk =
    "ask Trothline: Please select a new name for your script. The new script will be saved in the 'My "
    "Scripts' "
    "subdirectory []";

class Saving : public SpeechTest {
 protected:
  // The story of saving under a name; nothing is Cancel.
  Lines SaveAs(std::optional<std::wstring> name) {
    TakeStory();
    desktop.dialogs.AnswerText(std::move(name));
    user.Choose(window->MFileSaveas);
    return TakeStory();
  }

  std::string Kept(const std::wstring& name) { return File(kMyScripts + name); }
};

TEST_F(Saving, KeepsWhatUnattendedSpeechHeeds) {
  const struct {
    std::string line;
    int learnedMs;  // -1 for none
    std::string kept;
  } rows[] = {{"#bride# \x80", -1, "#bride# \x80"},
              {"  $ 3000$ , Two", -1, "$3000$,Two"},
              {"Three", 1800, "Three"},
              {"Four", 2000, "$2000$,Four"},
              {"$9000$,Five", 1000, "Five"},
              {"$9000$,@!Vows", -1, "@!Vows"},
              {"&note", 4000, "&note"},
              {"$5000$,$6000$,x", -1, "$5000$,$6000$,x"},
              {"$3000$ no comma", -1, "$3000$ no comma"}};
  Lines lines;
  std::string kept;
  for (const auto& row : rows) {
    lines.insert(lines.end(), {row.line, ""});
    kept += row.kept + "\r\n";
  }
  Start(lines);
  program.ScriptNow.Rows()->Item(1).WText(L"Ann \u20AC");
  for (int i = 0; i < static_cast<int>(std::size(rows)); ++i)
    if (rows[i].learnedMs >= 0) program.ScriptNow.Rows()->Item(i + 1).Delay(rows[i].learnedMs);
  program.ScriptNow.Dirty(true);
  user.ClickTick(window->lstWedding, 1);
  SelectRow(3);
  EXPECT_TRUE(files.List(kMyScripts).empty()) << "the first save makes the folder";
  EXPECT_EQ(SaveAs(L"  vows "), Lines{kAsk});
  EXPECT_EQ(Kept(L"vows.txt"), kept);
  EXPECT_FALSE(program.ScriptNow.Dirty());
  EXPECT_EQ(program.ScriptNow.sFileName(), kMyScripts + L"vows.txt");
  EXPECT_EQ(window->txtFile.Text(), L"vows.txt");
  EXPECT_EQ(program.ScriptNow.LanguageString(), L"Vows");
  EXPECT_EQ(Row(), 3);
  EXPECT_FALSE(window->lstWedding.Ticked(1));
}

TEST_F(Saving, GoesByTheNameIntoTheFolderOfTheUsersScriptsOrNowhere) {
  const struct {
    std::optional<std::wstring> typed;
    std::wstring name;  // empty: nothing happens
    bool isKept = true;
  } cases[] = {{L"vows", L"vows.txt"},
               {L" Vows.TXT ", L"Vows.TXT"},
               {L"a.txt.old", L"a.txt.old"},
               {L"console", L"console.txt"},
               {std::nullopt, L""},
               {L"   ", L""},
               {L"..\\Vows", L"..\\Vows.txt", false},
               {L"C:\\vows.txt", L"C:\\vows.txt", false},
               {L"why?", L"why?.txt", false},
               {L"Com1 .txt", L"Com1 .txt", false}};
  Start({"One"});
  for (const auto& c : cases) {
    SCOPED_TRACE(Readable(c.typed.value_or(L"(cancel)")));
    files.Remove(kMyScripts + c.name);
    program.ScriptNow.Dirty(true);
    const bool fails = !c.name.empty() && !c.isKept;
    Lines story{kAsk};
    if (fails) story.push_back("box stop Trothline: Error: cannot create " + Readable(c.name));
    EXPECT_EQ(SaveAs(c.typed), story);
    const bool isKept = !c.name.empty() && c.isKept;
    EXPECT_EQ(Kept(c.name), isKept ? "One\r\n" : "(nothing)");
    EXPECT_EQ(program.ScriptNow.Dirty(), !isKept);
  }
}

TEST_F(Saving, AsksBeforeReplacingAFile) {
  Start({"One"});
  for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Yes}) {
    files.Put(kMyScripts + L"vows.txt", "old");
    program.ScriptNow.Dirty(true);
    desktop.dialogs.Answer(answer);
    EXPECT_EQ(SaveAs(L"vows"), (Lines{kAsk,
                                      "box question Trothline: vows.txt already exists in the destination "
                                      "directory. Do you want to overwrite it?"}));
    EXPECT_EQ(desktop.dialogs.Shown().back().buttons, BoxButtons::YesNo);
    EXPECT_EQ(Kept(L"vows.txt"), answer == BoxAnswer::Yes ? "One\r\n" : "old");
    EXPECT_EQ(program.ScriptNow.Dirty(), answer != BoxAnswer::Yes);
  }
}

TEST_F(Saving, LosesNothingOnADiskThatFillsAtAnyByte) {
  Start({"$2000$,One", "@note", "Two"});
  const std::size_t needed = std::string("$2000$,One\r\n@note\r\nTwo\r\n").size();
  files.Put(kMyScripts + L"vows.txt", "old");
  program.ScriptNow.Dirty(true);
  for (const std::size_t free : {std::size_t{0}, needed / 2, needed - 1, needed}) {
    files.LeaveRoomFor(free);
    desktop.dialogs.Answer(BoxAnswer::Yes);
    const Lines story = SaveAs(L"vows");
    if (free == needed) break;
    EXPECT_EQ(story.back(), "box stop Trothline: Error: cannot create vows.txt");
    EXPECT_EQ(Kept(L"vows.txt"), "old");
    EXPECT_TRUE(program.ScriptNow.Dirty());
    EXPECT_EQ(program.ScriptNow.sFileName(), kScriptPath);
  }
  EXPECT_FALSE(program.ScriptNow.Dirty());
}

TEST_F(Saving, NeedsAScript) {
  window = &program.Open<frmTroth>();
  window->Show();
  user.Choose(window->MFileSaveas);
  EXPECT_EQ(TakeStory(), Lines{"box information Trothline: Please load a script file first."});
}

TEST_F(Saving, RestoresTheTicksOfALoadIfThatIsMeant) {
  Start({"One", "@note", "Three"});
  for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Yes}) {
    const bool isMeant = answer == BoxAnswer::Yes;
    for (int row = 0; row < 3; ++row) window->lstWedding.SetTicked(row, row == 1);
    SelectRow(3);
    TypeOver(window->txtNext, L"typed");
    TakeStory();
    desktop.dialogs.Answer(answer);
    user.Choose(window->MOptionsRestore);
    EXPECT_EQ(TakeStory(), Lines{"box question Trothline: Do you really want to restore selected rows to the "
                                 "default configuration?"});
    for (int row = 0; row < 3; ++row) EXPECT_EQ(window->lstWedding.Ticked(row), (row != 1) == isMeant);
    EXPECT_EQ(Row(), 3);
    EXPECT_EQ(Next(), isMeant ? "Three" : "");
  }
}

}  // namespace

}  // namespace troth
