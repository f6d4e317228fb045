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
  void PutPage(const wchar_t* name) { desktop.files.Put(kFolder + L"\\guide\\" + name, "<html>"); }
  void PutHelpFile() { desktop.files.Put(kFolder + L"\\Troth.hlp", "?"); }

  Story HelpByKey() {
    TakeStory();
    user.Press(kF1Key);
    return TakeStory();
  }

  Story HelpBy(CommandButton& button) {
    TakeStory();
    user.Click(button);
    return TakeStory();
  }
};

TEST_F(HelpTest, EachWindowOpensItsPage) {
  PutPage(L"topic-3.html");
  PutPage(L"topic-0.html");
  PutPage(L"index.html");
  const Story index{kPages + "index.html"};
  desktop.forms.WhenModal(L"frmIntro", [&] {
    EXPECT_EQ(HelpByKey(), index);
    EXPECT_EQ(HelpBy(Intro().cdmHelp), index);
    user.Click(Intro().cmdOK);
  });
  Run([&] {
    EXPECT_EQ(HelpByKey(), index);
    EXPECT_EQ(HelpBy(Tip().cdmHelp), index);
    user.Click(Tip().cmdOK);
    EXPECT_EQ(HelpByKey(), (Story{kPages + "topic-3.html"}));
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
    desktop.files.Remove(kFolder + L"\\Troth.hlp");
    if (each.hasFile) PutHelpFile();
    desktop.shell.hasHelpViewer = each.hasViewer;
    RunMain([&] {
      EXPECT_EQ(HelpByKey(), (Story{each.onTopic}));
      InAbout([&] { EXPECT_EQ(HelpByKey(), (Story{each.onContents})); });
      TakeStory();
      user.Choose(Main().MHelpContents);
      EXPECT_EQ(TakeStory(), (Story{each.hasFile ? "open " + file : kPages + "index.html"}));
    });
  }
}

TEST_F(HelpTest, FallsBackToTheIndex) {
  RunMain([&] {
    EXPECT_EQ(HelpByKey(), (Story{kPages + "index.html"})) << "no page for the topic";
    PutHelpFile();
    desktop.shell.opens = false;
    user.Choose(Main().MHelpContents);
    EXPECT_EQ(TakeStory(),
              (Story{"open C:\\Games\\Trothline\\Troth.hlp", kPages + "index.html",
                     "box information Trothline: The guide cannot be opened here. Its pages begin "
                     "with C:\\Games\\Trothline\\guide\\index.html."}))
        << "nothing opens help files or pages";
  });
}

// Finds a browser only for a page that is there.
class CarefulShell final : public ShellService {
 public:
  CarefulShell(HeadlessShell& shell, FileService& files) : shell_(shell), files_(files) {}
  bool Open(const std::wstring& file, const std::wstring& parameters, const std::wstring& folder) override {
    return shell_.Open(file, parameters, folder);
  }
  std::optional<std::wstring> FindProgramFor(const std::wstring& file) override {
    return files_.Exists(file) ? shell_.FindProgramFor(file) : std::nullopt;
  }
  bool Start(const std::wstring& commandLine) override { return shell_.Start(commandLine); }
  std::optional<std::wstring> ReadRegistry(RegistryRoot root, const std::wstring& key,
                                           const std::wstring& valueName) override {
    return shell_.ReadRegistry(root, key, valueName);
  }
  bool ShowHelpFile(const std::wstring& helpFile, int topic) override {
    return shell_.ShowHelpFile(helpFile, topic);
  }
  void CloseHelpFile(const std::wstring& helpFile) override { shell_.CloseHelpFile(helpFile); }

 private:
  HeadlessShell& shell_;
  FileService& files_;
};

class WebTest : public RunTest {
 protected:
  // What the outside sees of a page that is opened, without the stub page.
  Story Browse() {
    modMain::OpenWebPage(careful, L"https://moors.example/a?b=1&c");
    EXPECT_FALSE(files.Exists(L"C:\\temphtm.HTM"));
    EXPECT_FALSE(files.Exists(L"C:\\Users\\Officiant\\Temp\\temphtm.HTM"));
    Story story = TakeStory();
    stubs.clear();
    std::erase_if(story, [&](const std::string& line) {
      const bool isStub = line.starts_with("write ") || line.starts_with("delete ");
      if (isStub) stubs.push_back(line);
      return isStub;
    });
    return story;
  }

  CarefulShell shell{desktop.shell, files};
  Platform careful{.forms = desktop.forms,
                   .windows = desktop.windows,
                   .keyboard = desktop.keyboard,
                   .time = desktop.time,
                   .files = files,
                   .settings = settings,
                   .shell = shell,
                   .dialogs = desktop.dialogs,
                   .text = desktop.text,
                   .process = desktop.process,
                   .graphics = desktop.graphics};
  const Story opened{"open C:\\Programs\\Browser.exe https://moors.example/a?b=1&c"};
  const Story onDriveC{"write C:\\temphtm.HTM", "delete C:\\temphtm.HTM"};
  Story stubs;
};

TEST_F(WebTest, FindsTheBrowserByAPageOfItsOwn) {
  desktop.files.Put(L"C:\\temphtm.HTM", "left over");
  EXPECT_EQ(Browse(), opened);
  EXPECT_EQ(stubs, onDriveC);
}

TEST_F(WebTest, PutsThePageElsewhereWhereDriveCRefusesIt) {
  desktop.files.RefuseWriting(L"C:\\temphtm.HTM");
  EXPECT_EQ(Browse(), opened);
  EXPECT_EQ(stubs, (Story{"write C:\\temphtm.HTM (failed)", "write C:\\Users\\Officiant\\Temp\\temphtm.HTM",
                          "delete C:\\Users\\Officiant\\Temp\\temphtm.HTM"}));
}

TEST_F(WebTest, SaysThatThereIsNoBrowser) {
  desktop.shell.programForAll = std::nullopt;
  EXPECT_EQ(Browse(), (Story{"box warning Browser Not Found: Could not find default web Browser"}));
  EXPECT_EQ(stubs, onDriveC);
  desktop.shell.programForAll = L"C:\\Programs\\Browser.exe";
  desktop.files.LeaveRoomFor(0);  // no page, no browser
  EXPECT_EQ(Browse(), (Story{"box warning Browser Not Found: Could not find default web Browser"}));
}

TEST_F(WebTest, SaysThatTheBrowserDoesNotStart) {
  desktop.shell.opens = false;
  EXPECT_EQ(Browse(), (Story{opened[0], "box warning URL Failed: Web Page not Opened"}));
  EXPECT_EQ(stubs, onDriveC);
}

TEST_F(WebTest, MailGoesToTheCommandOfTheSystem) {
  const struct {
    const wchar_t* command;
    const char* started;
  } cases[] = {
      {L"mail.exe %1", "start mail.exe a@b.example"},
      {L"\"C:\\My Mail\\m.exe\" /to:\"%1\" %1 %2", "start \"C:\\My Mail\\m.exe\" /to:\"a@b.example\" %1 %2"},
      {L"mail.exe -compose", "start mail.exe -compose \"a@b.example\""},
      {L"mail.exe %", "start mail.exe % \"a@b.example\""}};
  for (const auto& each : cases) {
    desktop.shell.registry[kMailKey] = each.command;
    modMain::SendMail(platform, L"a@b.example");
    EXPECT_EQ(TakeStory(), (Story{each.started}));
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
  EXPECT_EQ(TakeStory(), (Story{"start gone.exe a@b.example", error}));
}

}  // namespace
}  // namespace troth
