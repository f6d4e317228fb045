// The ways out of the program: help, web pages and mail.
#include "core/modMain.h"

#include "tests/shell/RunRig.h"

namespace troth {

namespace {

const std::wstring kFolder = L"C:\\Games\\Trothline";
const std::string kPages = "open C:\\Games\\Trothline\\guide\\";
constexpr wchar_t kMailKey[] = L"mailto\\shell\\open\\command";

class HelpTest : public RunTest {
 protected:
  void PutPage(const wchar_t* name) { files.Put(kFolder + L"\\guide\\" + name, "<html>"); }
  void PutHelpFile() { files.Put(kFolder + L"\\Troth.hlp", "?"); }

  Lines HelpByKey() {
    TakeStory();
    user.Press(kF1Key);
    return TakeStory();
  }

  Lines HelpBy(CommandButton& button) {
    TakeStory();
    user.Click(button);
    return TakeStory();
  }
};

TEST_F(HelpTest, EachWindowOpensItsPage) {
  PutPage(L"topic-3.html");
  PutPage(L"topic-0.html");
  PutPage(L"index.html");
  const Lines index{kPages + "index.html"};
  desktop.forms.WhenModal(L"frmIntro", [&] {
    EXPECT_EQ(HelpByKey(), index);
    EXPECT_EQ(HelpBy(Intro().cdmHelp), index);
    user.Click(Intro().cmdOK);
  });
  Run([&] {
    EXPECT_EQ(HelpByKey(), index);
    EXPECT_EQ(HelpBy(Tip().cdmHelp), index);
    user.Click(Tip().cmdOK);
    EXPECT_EQ(HelpByKey(), (Lines{kPages + "topic-3.html"}));
    InAbout([&] {
      EXPECT_EQ(HelpByKey(), index);
      EXPECT_EQ(HelpBy(About().cdmHelp), index);
    });
    user.Choose(Main().MHelpContents);
    EXPECT_EQ(TakeStory(), index);
    user.Choose(Main().MFileQuit);
  });
}

TEST_F(HelpTest, OpensTheOldViewerWhereItAndAHelpFileAre) {
  PutPage(L"topic-3.html");
  const std::string file = "C:\\Games\\Trothline\\Troth.hlp";
  const struct {
    bool hasFile;
    bool hasViewer;
    std::string onTopic;
    std::string onContents;
  } cases[] = {{false, false, kPages + "topic-3.html", kPages + "index.html"},
               // The viewer is not called for a file that is not there: it would block.
               {false, true, kPages + "topic-3.html", kPages + "index.html"},
               {true, false, kPages + "topic-3.html", kPages + "index.html"},
               {true, true, "help " + file + " 3", "help " + file + " 0"}};
  for (const auto& each : cases) {
    SCOPED_TRACE(each.onContents);
    files.Remove(kFolder + L"\\Troth.hlp");
    if (each.hasFile) PutHelpFile();
    desktop.shell.hasHelpViewer = each.hasViewer;
    RunMain([&] {
      EXPECT_EQ(HelpByKey(), (Lines{each.onTopic}));
      InAbout([&] { EXPECT_EQ(HelpByKey(), (Lines{each.onContents})); });
      TakeStory();
      user.Choose(Main().MHelpContents);
      EXPECT_EQ(TakeStory(), (Lines{each.hasFile ? "open " + file : kPages + "index.html"}));
    });
  }
}

class WebTest : public RunTest {
 protected:
  // What the outside sees of a page that is opened, without the stub page.
  Lines Browse() {
    modMain::OpenWebPage(platform, L"https://moors.example/a?b=1&c");
    EXPECT_FALSE(files.Exists(L"C:\\temphtm.HTM"));
    EXPECT_FALSE(files.Exists(L"C:\\Users\\Officiant\\Temp\\temphtm.HTM"));
    Lines story = TakeStory();
    stubs.clear();
    std::erase_if(story, [&](const std::string& line) {
      const bool isStub = line.starts_with("write ") || line.starts_with("delete ");
      if (isStub) stubs.push_back(line);
      return isStub;
    });
    return story;
  }

  const Lines opened{"open C:\\Programs\\Browser.exe https://moors.example/a?b=1&c"};
  const Lines onDriveC{"write C:\\temphtm.HTM", "delete C:\\temphtm.HTM"};
  Lines stubs;
};

TEST_F(WebTest, FindsTheBrowserByAPageOfItsOwn) {
  files.Put(L"C:\\temphtm.HTM", "left over");
  EXPECT_EQ(Browse(), opened);
  EXPECT_EQ(stubs, onDriveC);
}

TEST_F(WebTest, PutsThePageElsewhereWhereDriveCRefusesIt) {
  files.RefuseWriting(L"C:\\temphtm.HTM");
  EXPECT_EQ(Browse(), opened);
  EXPECT_EQ(stubs, (Lines{"write C:\\temphtm.HTM (failed)", "write C:\\Users\\Officiant\\Temp\\temphtm.HTM",
                          "delete C:\\Users\\Officiant\\Temp\\temphtm.HTM"}));
}

TEST_F(WebTest, SaysThatThereIsNoBrowser) {
  desktop.shell.programForAll = std::nullopt;
  EXPECT_EQ(Browse(), (Lines{"box warning Browser Not Found: Could not find default web Browser"}));
  EXPECT_EQ(stubs, onDriveC);
}

TEST_F(WebTest, SaysThatTheBrowserDoesNotStart) {
  desktop.shell.opens = false;
  EXPECT_EQ(Browse(), (Lines{opened[0], "box warning URL Failed: Web Page not Opened"}));
  EXPECT_EQ(stubs, onDriveC);
}

TEST_F(WebTest, MailGoesToTheCommandOfTheSystem) {
  const struct {
    const wchar_t* command;
    const char* started;
  } cases[] = {
      {L"mail.exe %1", "start mail.exe a@b.example"},
      {L"\"C:\\My Mail\\m.exe\" /to:\"%1\" %1 %2", "start \"C:\\My Mail\\m.exe\" /to:\"a@b.example\" %1 %2"},
      {L"mail.exe %", "start mail.exe % \"a@b.example\""}};
  for (const auto& each : cases) {
    desktop.shell.registry[kMailKey] = each.command;
    modMain::SendMail(platform, L"a@b.example");
    EXPECT_EQ(TakeStory(), (Lines{each.started}));
  }
}

TEST_F(WebTest, SaysThatNoMailProgramStarts) {
  const std::string error = "box stop Mail Error: Error 0";
  modMain::SendMail(platform, L"a@b.example");
  EXPECT_EQ(TakeStory().back(), error) << "no command";
  desktop.shell.registry[kMailKey] = L"";
  modMain::SendMail(platform, L"a@b.example");
  EXPECT_EQ(TakeStory().back(), error) << "empty command";
  desktop.shell.registry[kMailKey] = L"gone.exe %1";
  desktop.shell.starts = false;
  modMain::SendMail(platform, L"a@b.example");
  EXPECT_EQ(TakeStory(), (Lines{"start gone.exe a@b.example", error}));
}

}  // namespace
}  // namespace troth
