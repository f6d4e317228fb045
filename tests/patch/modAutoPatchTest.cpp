// How a waiting copy of the patch program takes its place, and what else is known of the patch program.
#include "patch/modAutoPatch.h"

#include "tests/shell/RunRig.h"

namespace troth {

namespace {

const std::wstring kInUse = L"C:\\Games\\Trothline\\TrothAutoPatch.exe";
const std::wstring kWaiting = L"C:\\Games\\Trothline\\AutoPatch\\TrothAutoPatch.exe";

class modAutoPatchTest : public RunTest {
 protected:
  void PutBoth() {
    files.Put(kInUse, "old program");
    files.Put(kWaiting, "new program, longer");
  }

  // The moment of the swap and a good while after it.
  Lines LetItSwap() {
    Lines story;
    RunMain([&] {
      TakeStory();
      desktop.time.Advance(60000);
      story = TakeStory();
    });
    return story;
  }

  std::string InUse() const { return File(kInUse); }
  std::string Waiting() const { return File(kWaiting); }
};

TEST_F(modAutoPatchTest, SwapsOnceThreeSecondsAfterTheStart) {
  PutBoth();
  RunMain([&] {
    EXPECT_EQ(Main().tmrPatcch.IntervalMs(), 200);
    // The main window came up 100 ms before the person.
    desktop.time.Advance(2899);
    EXPECT_EQ(InUse(), "old program");
    EXPECT_TRUE(Main().tmrPatcch.Enabled());
    desktop.time.Advance(1);
    EXPECT_EQ(InUse(), "new program, longer");
    EXPECT_EQ(Waiting(), "(nothing)");
    EXPECT_FALSE(Main().tmrPatcch.Enabled());
    files.Put(kWaiting, "newer still");
    desktop.time.Advance(60000);
    EXPECT_EQ(Waiting(), "newer still") << "once a start";
  });
  LetItSwap();
  EXPECT_EQ(InUse(), "newer still") << "at the next start";
}

TEST_F(modAutoPatchTest, SwapsAlsoWhileTheReleaseNotesAreOpen) {
  PutBoth();
  Store(L"Show Tips at Startup", L"0");
  desktop.forms.WhenModal(L"frmIntro", [&] {
    desktop.time.Advance(3000);
    EXPECT_EQ(InUse(), "new program, longer");
    user.Click(Intro().cmdOK);
  });
  desktop.time.After(5000, [&] { user.Choose(Main().MFileQuit); });
  Run([] {});
}

TEST_F(modAutoPatchTest, InstallsAPatchProgramThatWasMissing) {
  files.Put(kWaiting, "first program");
  LetItSwap();
  EXPECT_EQ(InUse(), "first program");
  EXPECT_EQ(Waiting(), "(nothing)");
}

TEST_F(modAutoPatchTest, LosesNothingWhenTheSwapFails) {
  const std::function<void(HeadlessFiles&)> faults[] = {
      [](HeadlessFiles& disk) { disk.LeaveRoomFor(12); },         // full
      [](HeadlessFiles& disk) { disk.RefuseWriting(kInUse); },    // it is running
      [](HeadlessFiles& disk) { disk.RefuseReading(kWaiting); },  // another program holds the copy
  };
  for (const auto& fault : faults) {
    HeadlessDesktop other;
    other.files.Put(kInUse, "old program");
    other.files.Put(kWaiting, "new program, longer");
    fault(other.files);
    modAutoPatch::SwapInPatchProgram(other.files);
    EXPECT_TRUE(other.files.Exists(kInUse) && other.files.Exists(kWaiting));
    EXPECT_NE(other.files.Read(kInUse), "new program, longer");
    EXPECT_TRUE(other.journal.Lines().empty()) << "no message";
  }
}

TEST_F(modAutoPatchTest, ReadsTheSettingsOfThePatchProgramAsTheTipsCome) {
  const struct {
    const wchar_t* frequency;
    const wchar_t* connection;
    const wchar_t* date;
    PatchSettings read;
  } cases[] = {{nullptr, nullptr, nullptr, {-10, 0, L"", 0}},
               {L"400", L"2", L"38123.75", {365, 2, L"", 38123.75}},
               {L"365", L"-1", L"-1.5", {365, -1, L"", -1.5}},
               {L"70000", L"70000", L"0.0625 d", {365, 32767, L"", 0.0625}},
               {L"-70000", L"x", L"", {-32768, 0, L"", 0}}};
  const auto put = [&](const wchar_t* section, const wchar_t* key, const wchar_t* value) {
    if (value) desktop.settings.Put(L"TrothAutoPatch", section, key, value);
  };
  for (const auto& each : cases) {
    put(L"Options", L"PatchFrequency", each.frequency);
    put(L"Options", L"ConnectionType", each.connection);
    put(L"Patch Information", L"Last Patch Date", each.date);
    RunFromTip([&] {
      EXPECT_EQ(program->Patch.frequency, each.read.frequency);
      EXPECT_EQ(program->Patch.connectionType, each.read.connectionType);
      EXPECT_EQ(program->Patch.proxyName, L"");
      EXPECT_EQ(program->Patch.lastPatchDate, each.read.lastPatchDate);
    });
  }
  put(L"Options", L"ProxyName", L" gate:8080 ");
  RunFromTip([&] { EXPECT_EQ(program->Patch.proxyName, L" gate:8080 "); });
  for (const std::string& line : TakeStory())
    EXPECT_FALSE(line.starts_with("save TrothAutoPatch")) << line << ": they are not ours to write";
}

TEST(MakeFolderPathTest, CreatesEachFolderOnTheWayAndNeverTheLastComponent) {
  HeadlessDesktop desktop;
  const std::wstring folder = desktop.files.ProgramFolder();
  desktop.files.PutFolder(folder + L"\\Pictures");
  modAutoPatch::MakeFolderPath(desktop.files, folder + L"\\Pictures\\Run\\Deep\\0000.bmp");
  EXPECT_TRUE(desktop.files.Write(folder + L"\\Pictures\\Run\\Deep\\0000.bmp", "picture"));
  modAutoPatch::MakeFolderPath(desktop.files, folder + L"\\Pictures\\Run\\Deep\\0000.bmp\\x");
  EXPECT_EQ(desktop.files.Read(folder + L"\\Pictures\\Run\\Deep\\0000.bmp"), "picture")
      << "a file in place of a folder stays";
  modAutoPatch::MakeFolderPath(desktop.files, L"no separator");
  modAutoPatch::MakeFolderPath(desktop.files, L"\\one separator");
}

}  // namespace
}  // namespace troth
