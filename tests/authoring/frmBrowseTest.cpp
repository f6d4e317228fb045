// The script browser: what it lists, what its commands do to the disk, and what it says when they cannot.
#include "authoring/frmBrowse.h"

#include "authoring/frmJournal.h"
#include "platform/forms/KeyCodes.h"
#include "script/ScriptLine.h"
#include "tests/speech/SpeechRig.h"

namespace troth {
namespace {

const std::wstring kProgram = L"C:\\Games\\Trothline";
const std::wstring kRoot = kProgram + L"\\wedscripts";
const std::wstring kTemplate = kProgram + L"\\Template.scr";

class frmBrowseTest : public SpeechTest {
 protected:
  void SetUp() override {
    files.Put(kRoot + L"\\Vows.txt", "One\r\nTwo\r\n");
    files.Put(kRoot + L"\\abbey.TXT", "first\rsecond");
    files.Put(kRoot + L"\\notes.doc", "no script");
    files.Put(kRoot + L"\\Moor & Fen\\Dawn.txt", "dawn\r\n");
    files.PutFolder(kRoot + L"\\Moor & Fen\\Deep");
    files.PutFolder(kRoot + L"\\odd.txt");
    files.Put(kTemplate, "@ \xE9\nrow");
    window = &program.Open<frmTroth>();
    window->Show();
    TakeStory();
  }

  // What the person does in the browser, which is closed by Esc if it is still there then.
  void Browse(const std::function<void(frmBrowse&)>& act) {
    desktop.forms.WhenModal(L"frmBrowse", [this, act] {
      act(*program.Opened<frmBrowse>());
      if (program.Opened<frmBrowse>()) user.Press(kEscapeKey);
    });
    user.Choose(window->MFileScript);
  }
  Lines Listed(const frmBrowse& browser) const {
    Lines names;
    for (int i = 0; i < browser.lstvScripts.Count(); ++i)
      names.push_back(Readable(browser.lstvScripts.Entry(i).text));
    return names;
  }
  // A node by the text of it.
  int NodeOf(const frmBrowse& browser, std::wstring_view text) const {
    for (int node = 0; node < browser.trvDirs.Count(); ++node)
      if (browser.trvDirs.Node(node).text == text) return node;
    throw HeadlessFailure("no such folder");
  }
  void ExpectSelected(const frmBrowse& browser, const std::wstring& path) const {
    EXPECT_EQ(browser.stsBar.Text(), path);
    for (const MenuItem* item :
         {&browser.MEditEdit, &browser.MEditDelete, &browser.MEditRename, &browser.MEditLoad})
      EXPECT_EQ(item->Enabled(), path != L"<none>") << Readable(item->Name());
  }
};

TEST_F(frmBrowseTest, ShowsTheFoldersAndTheScriptsOfTheRoot) {
  Browse([&](frmBrowse& browser) {
    EXPECT_EQ(browser.Caption(), L"Trothline Script Browser");
    ASSERT_EQ(browser.trvDirs.Node(0).text, L"Scripts");
    EXPECT_EQ(browser.trvDirs.Selected(), 0);
    const int moor = NodeOf(browser, L"Moor & Fen");
    const int deep = NodeOf(browser, L"Deep");
    EXPECT_EQ(browser.trvDirs.KeyOf(moor), kRoot + L"\\Moor & Fen");
    EXPECT_EQ(browser.trvDirs.Node(moor).parent, 0);
    EXPECT_EQ(browser.trvDirs.KeyOf(deep), kRoot + L"\\Moor & Fen\\Deep");
    EXPECT_EQ(browser.trvDirs.Node(deep).parent, moor);
    NodeOf(browser, L"odd.txt");
    EXPECT_EQ(Listed(browser), (Lines{"abbey.TXT", "Vows.txt"}));
    EXPECT_EQ(browser.lstvScripts.Entry(1).key, kRoot + L"\\Vows.txt");
    EXPECT_EQ(browser.lstvScripts.Entry(1).toolTip, kRoot + L"\\Vows.txt");
    ExpectSelected(browser, kRoot + L"\\abbey.TXT");
    EXPECT_EQ(browser.txtScript.Text(), L"") << "shown at a click, not before";
  });
}

TEST_F(frmBrowseTest, FollowsClicksAndKeysThroughFoldersAndScripts) {
  Browse([&](frmBrowse& browser) {
    user.Click(browser.lstvScripts, 0);
    EXPECT_EQ(browser.txtScript.Text(), L"first\r\nsecond\r\n");
    user.Press(kDownKey);
    EXPECT_EQ(browser.txtScript.Text(), L"One\r\nTwo\r\n");
    ExpectSelected(browser, kRoot + L"\\Vows.txt");
    user.Click(browser.lstvScripts, -1);
    ExpectSelected(browser, L"<none>");
    EXPECT_EQ(browser.txtScript.Text(), L"One\r\nTwo\r\n");

    user.Click(browser.trvDirs, NodeOf(browser, L"Deep"));
    EXPECT_EQ(Listed(browser), Lines{});
    EXPECT_EQ(browser.txtScript.Text(), L"");
    ExpectSelected(browser, L"<none>");
    user.DoubleClick(browser.lstvScripts, -1);
    user.Press(kEnterKey);
    user.Press(kF2Key);
    user.Press(kDeleteKey);
    EXPECT_TRUE(browser.Visible());

    user.Click(browser.trvDirs, NodeOf(browser, L"Moor & Fen"));
    EXPECT_EQ(Listed(browser), Lines{"Dawn.txt"});
    files.RefuseReading(kRoot + L"\\Moor & Fen\\Dawn.txt");
    browser.txtScript.SetText(L"as it was");
    user.Click(browser.lstvScripts, 0);
    EXPECT_EQ(browser.txtScript.Text(), L"as it was");
    ExpectSelected(browser, kRoot + L"\\Moor & Fen\\Dawn.txt");
  });
  EXPECT_EQ(TakeStory(), Lines{});
}

TEST_F(frmBrowseTest, ContextMenuIsThatOfTheSelectionAndComesUpForTheRightButtonAlone) {
  Browse([&](frmBrowse& browser) {
    Lines shown;
    const auto note = [&] {
      desktop.forms.WhenPopup([&](MenuItem& menu) { shown.push_back(Readable(menu.Name())); });
    };
    const struct {
      std::function<void()> act;
      Lines shown;
    } steps[] = {{[&] { user.RightClick(browser.lstvScripts, 1); }, {"MEdit"}},
                 {[&] { user.Press(kUpKey); }, {}},
                 {[&] { user.Press(kApplicationsKey); }, {"MEdit"}},
                 {[&] { user.Click(browser.lstvScripts, 1); }, {}},
                 {[&] { user.RightClick(browser.lstvScripts, -1); }, {"MNew"}},
                 {[&] { user.Press(kApplicationsKey); }, {"MNew"}}};
    for (const auto& step : steps) {
      shown.clear();
      if (!step.shown.empty()) note();
      step.act();
      EXPECT_EQ(shown, step.shown);
    }
    desktop.dialogs.AnswerText(L"Dusk");
    desktop.forms.WhenPopup([&](MenuItem&) { browser.MNewNew.UserChose(); });
    user.RightClick(browser.lstvScripts, -1);
    EXPECT_EQ(Listed(browser), (Lines{"abbey.TXT", "Dusk.txt", "Vows.txt"}));
  });
}

TEST_F(frmBrowseTest, NewScriptIsACopyOfTheTemplateOpenedInTheEditor) {
  const struct {
    const char* why;
    std::optional<std::wstring> typed;
    std::wstring name;  // empty: nothing happens
    std::string said;   // of the box, or the act
    bool isMade = false;
  } cases[] = {{"gives up", std::nullopt, L"", ""},
               {"blanks", L"   ", L"", ""},
               {"default", L"Untitled", L"Untitled.txt", "open", true},
               {"a second time", L" untitled ", L"untitled.txt",
                "box information Trothline: \"C:\\Games\\Trothline\\wedscripts\\untitled.txt\" is the name "
                "of an existing "
                "script. Please select a different name.",
                true},
               {"extension inside", L"my.txt.bak", L"my.txt.bak", "open", true},
               {"blanks, % and &", L" 100 % A & B.TXT", L"100 % A & B.TXT", "open", true},
               {"a character that no file has", L"why?", L"why?.txt", "characters"},
               {"out of the folder", L"..\\Vows2", L"..\\Vows2.txt", "characters"},
               {"a device", L"nul", L"nul.txt", "characters"},
               {"a folder of that name", L"odd", L"odd.txt",
                "box stop Trothline: Cannot create the requested script file."}};
  Browse([&](frmBrowse& browser) {
    for (const auto& each : cases) {
      SCOPED_TRACE(each.why);
      const std::wstring path = kRoot + L'\\' + each.name;
      Lines story{"ask Trothline: Please input a name for your new script. [Untitled]"};
      if (each.said == "open")
        story.push_back("open " + Readable(path));
      else if (each.said == "characters")
        story.push_back(
            "box stop Trothline: Cannot create the requested script file. Please make sure you didn't use "
            "any "
            "characters that are not allowed in filenames.");
      else if (!each.said.empty())
        story.push_back(each.said);
      desktop.dialogs.AnswerText(each.typed);
      TakeStory();
      user.Choose(browser.MEditNew);
      Lines heard = TakeStory();
      // The folder that the editor starts in is not of interest here.
      for (std::string& line : heard)
        if (line.starts_with("open ")) line = line.substr(0, story.back().size());
      EXPECT_EQ(heard, story);
      EXPECT_EQ(each.isMade, File(path) == "@ \xE9\nrow");
    }
    EXPECT_EQ(Listed(browser), (Lines{"100 % A & B.TXT", "abbey.TXT", "Untitled.txt", "Vows.txt"}));
    ExpectSelected(browser, kRoot + L"\\100 % A & B.TXT");
  });
}

TEST_F(frmBrowseTest, SaysWhyANewScriptCannotBeMadeOrEdited) {
  Browse([&](frmBrowse& browser) {
    const auto making = [&](const wchar_t* name) {
      desktop.dialogs.AnswerText(name);
      TakeStory();
      user.Choose(browser.MEditNew);
      return TakeStory().back();
    };
    desktop.shell.opens = false;
    EXPECT_EQ(making(L"a"),
              "box stop Trothline: Error: cannot edit the new script file. Either your default association "
              "for .txt "
              "file is wrong, or you are running out of memory.");
    EXPECT_EQ(Listed(browser).front(), "a.txt");
    user.Choose(browser.MEditEdit);
    EXPECT_EQ(TakeStory().back(),
              "box stop Trothline: Error: cannot edit the selected script file. Either your default "
              "association for "
              ".txt file is wrong, or you are running out of memory.");
    files.LeaveRoomFor(1);
    EXPECT_EQ(making(L"b"), "box stop Trothline: Cannot create the requested script file.");
    EXPECT_EQ(File(kRoot + L"\\b.txt"), "(nothing)");
    files.Remove(kTemplate);
    EXPECT_EQ(
        making(L"c"),
        "box stop Trothline: Cannot create the requested script file. Please make sure the Template.scr file "
        "exists in your Trothline installation directory \"C:\\Games\\Trothline\".");
  });
}

TEST_F(frmBrowseTest, DeletesOnlyAfterYesAndListsAgainInAnyCase) {
  const std::wstring path = kRoot + L"\\abbey.TXT";
  const std::string ask = "box question Trothline: Do you really want to delete " + Readable(path);
  Browse([&](frmBrowse& browser) {
    desktop.dialogs.Answer(BoxAnswer::No);
    user.Choose(browser.MEditDelete);
    EXPECT_EQ(TakeStory(), Lines{ask});
    EXPECT_EQ(desktop.dialogs.Shown().back().buttons, BoxButtons::YesNo);
    files.RefuseWriting(path);
    files.Put(kRoot + L"\\Zeal.txt", "");
    desktop.dialogs.Answer(BoxAnswer::Yes);
    user.Choose(browser.MEditDelete);
    EXPECT_EQ(TakeStory(), (Lines{ask, "box stop Trothline: Cannot delete " + Readable(path)}));
    EXPECT_EQ(Listed(browser), (Lines{"abbey.TXT", "Vows.txt", "Zeal.txt"}));
    user.Click(browser.lstvScripts, 2);
    desktop.dialogs.Answer(BoxAnswer::Yes);
    user.Press(kDeleteKey);
    EXPECT_EQ(Listed(browser), (Lines{"abbey.TXT", "Vows.txt"}));
    EXPECT_EQ(File(kRoot + L"\\Zeal.txt"), "(nothing)");
  });
}

TEST_F(frmBrowseTest, RenamesInPlaceAndKeepsTheFormerNameWhereItCannot) {
  const struct {
    std::optional<std::wstring> typed;
    Lines listed;
    bool fails = false;
  } cases[] = {{L"Zeal.txt", {"Vows.txt", "Zeal.txt"}},
               {std::nullopt, {"Vows.txt", "Zeal.txt"}},
               {L"ZEAL.txt", {"Vows.txt", "ZEAL.txt"}},
               {L"vows.TXT", {"Vows.txt", "ZEAL.txt"}, true},
               {L"what?.txt", {"Vows.txt", "ZEAL.txt"}, true},
               {L"", {"Vows.txt", "ZEAL.txt"}, true},
               {L"plain", {"Vows.txt"}}};
  Browse([&](frmBrowse& browser) {
    user.Click(browser.lstvScripts, 0);
    for (const auto& each : cases) {
      SCOPED_TRACE(Readable(each.typed.value_or(L"(Esc)")));
      const std::wstring name = browser.lstvScripts.Entry(browser.lstvScripts.Index()).text;
      TakeStory();
      user.Press(kF2Key);
      user.EndLabelEdit(browser.lstvScripts, each.typed);
      const Lines story = TakeStory();
      EXPECT_EQ(story.size(), each.fails ? 1u : 0u);
      if (each.fails) {
        EXPECT_TRUE(story.front().starts_with("box stop Trothline: Error, script file " + Readable(name) +
                                              " cannot be renamed: "))
            << story.front();
      }
      EXPECT_EQ(Listed(browser), each.listed);
      if (browser.lstvScripts.Count() > 1) user.Click(browser.lstvScripts, 1);
    }
  });
  EXPECT_EQ(File(kRoot + L"\\plain"), "first\rsecond");
}

TEST_F(frmBrowseTest, LoadsTheSelectedScriptFromItsStartAndCloses) {
  Check(window->MOptionsTranslate, true);
  Browse([&](frmBrowse& browser) { user.DoubleClick(browser.lstvScripts, 1); });
  EXPECT_EQ(program.Opened<frmBrowse>(), nullptr);
  EXPECT_EQ(program.ScriptNow.sFileName(), kRoot + L"\\Vows.txt");
  EXPECT_EQ(window->txtFile.Text(), L"Vows");
  EXPECT_EQ(Next(), "One");
  EXPECT_FALSE(window->MOptionsTranslate.Checked());
  EXPECT_FALSE(window->lblTranslation.Visible());

  Browse([&](frmBrowse& browser) {
    user.Click(browser.trvDirs, NodeOf(browser, L"Moor & Fen"));
    user.Choose(browser.MEditLoad);
  });
  EXPECT_EQ(Next(), "dawn");
  Browse([&](frmBrowse&) {});
  EXPECT_EQ(Next(), "dawn") << "closed without a load";
}

TEST_F(frmBrowseTest, OffersToConvertAScriptThatWouldBeMisread) {
  const std::wstring path = kRoot + L"\\Vows.txt";
  const std::string asked =
      "box question Trothline: Vows.txt was saved as UTF-8 and with line feeds alone at the ends of "
      "its lines, and will not be read as it was meant. Do you want to convert the file to ANSI text "
      "with Windows line ends?";
  const std::string before = "caf\xC3\xA9\nTwo\n";
  const struct {
    BoxAnswer answer;
    bool isRefused;
    Lines story;
    std::string file;
    std::string next;
  } cases[] = {{BoxAnswer::No, false, {asked}, before, "caf\\xC3\\xA9\\xATwo\\xA"},
               {BoxAnswer::Yes,
                true,
                {asked, "box stop Trothline: Cannot convert " + Readable(path) + ". It is loaded as it is."},
                before,
                "caf\\xC3\\xA9\\xATwo\\xA"},
               {BoxAnswer::Yes, false, {asked}, "caf\xE9\r\nTwo\r\n", "caf\\xE9"}};
  for (const auto& each : cases) {
    files.Remove(path);
    files.Put(path, before);
    files.LeaveRoomFor(each.isRefused ? 0 : 1000);
    desktop.dialogs.Answer(each.answer);
    TakeStory();
    Browse([&](frmBrowse& browser) { user.DoubleClick(browser.lstvScripts, 1); });
    EXPECT_EQ(TakeStory(), each.story);
    EXPECT_EQ(File(path), each.file);
    EXPECT_EQ(Next(), each.next);
  }
}

TEST_F(frmBrowseTest, LearnedDelaysAreAskedForFirst) {
  Browse([&](frmBrowse& browser) { user.DoubleClick(browser.lstvScripts, 1); });
  program.ScriptNow.Dirty(true);
  desktop.dialogs.Answer(BoxAnswer::Cancel);
  user.Click(window->cmdBrowse);
  EXPECT_EQ(program.Opened<frmBrowse>(), nullptr);
  desktop.dialogs.Answer(BoxAnswer::No);
  bool wasOpen = false;
  desktop.forms.WhenModal(L"frmBrowse", [&] {
    wasOpen = true;
    user.Press(kEscapeKey);
  });
  user.Click(window->cmdBrowse);
  EXPECT_TRUE(wasOpen);
  EXPECT_TRUE(program.ScriptNow.Dirty());
}

TEST_F(frmBrowseTest, ImportsAJournalAndShowsItsFolder) {
  const std::wstring journal = kRoot + L"\\Moor & Fen\\journal.log";
  files.Put(journal, "Anna: Hello\r\n");
  Browse([&](frmBrowse& browser) {
    TakeStory();
    desktop.dialogs.AnswerFile(std::nullopt);
    user.Choose(browser.MBFileImportJournal);
    EXPECT_EQ(
        TakeStory(),
        (Lines{"box information Trothline: If you wish to only import a part of a long saved journal, you "
               "should better extract the relevant part first using a normal editor. Otherwise, the "
               "resulting script will take a long time to load and display.",
               "ask Please select the KM journal file you wish to import []"}));
    desktop.dialogs.AnswerFile(journal);
    desktop.forms.WhenModal(L"frmJournal", [&] {
      frmJournal& dialog = *program.Opened<frmJournal>();
      user.Click(dialog.txtCharName);
      user.Type(L"Anna");
      user.Click(dialog.txtScriptName);
      user.Type(L"said");
      user.Click(dialog.OKButton);
    });
    user.Choose(browser.MBFileImportJournal);
    EXPECT_EQ(browser.trvDirs.KeyOf(NodeOf(browser, L"My Scripts")), kRoot + L"\\My Scripts");
  });
  EXPECT_EQ(File(kRoot + L"\\My Scripts\\said.txt"), "Hello\r\n");
}

}  // namespace
}  // namespace troth
