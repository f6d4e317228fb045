// The button bar: what it sends, how it changes its texts, and where it stands.
#include "livetools/frmButtonBar.h"

#include <optional>

#include "tests/speech/SpeechRig.h"

namespace troth {

namespace {

const std::wstring kFile = L"C:\\Games\\Trothline\\Buttons\\Set.btn";
const std::string kComplaint = "box stop Trothline: Error, can't open button definition file";

class frmButtonBarTest : public SpeechTest {
 protected:
  void Open() {
    user.Click(window->txtNext);
    user.Choose(window->MViewButtonBar);
  }
  void StartOpen() {
    Start({"row"});
    Open();
    TakeStory();
  }
  frmButtonBar& Bar() { return *program.Opened<frmButtonBar>(); }
  CommandButton& Button(std::size_t index) { return Bar().MacroButton[index]; }
  // A right click on the button, and a choice in the menu that opens.
  void ChooseFor(std::size_t index, MenuItem frmButtonBar::*item) {
    desktop.forms.WhenPopup([this, item](MenuItem&) { (Bar().*item).UserChose(); });
    user.RightClick(Button(index));
  }
  void PutFile(const std::string& bytes) {
    files.PutFolder(L"C:\\Games\\Trothline\\Buttons");
    files.Put(kFile, bytes);
  }
  std::vector<std::wstring> Texts() {
    std::vector<std::wstring> texts;
    for (std::size_t index = 0; index < kSpeechButtons; ++index) {
      texts.push_back(Button(index).Caption());
      EXPECT_EQ(Button(index).ToolTip(), texts.back());
    }
    return texts;
  }
  std::vector<Rect> Places() {
    std::vector<Rect> places;
    for (const CommandButton& button : Bar().MacroButton) places.push_back(button.Bounds());
    return places;
  }
};

TEST_F(frmButtonBarTest, AClickSendsTheTextAndABlankByTheOneRule) {
  StartOpen();
  StartGame();
  const struct {
    const wchar_t* text;
    bool autoterminate;
    Lines story;
  } cases[] = {
      {L": smiles", true, {kRaise, "posts <13>", "sleep 100", "posts : smiles <13>"}},
      {L": smiles", false, {kRaise, "posts : smiles <13>"}},
      {L"/bow", false, {kRaise, "posts <13>", "sleep 100", "posts /bow <13>"}},
      {L"#groom# \x00E9", false, {kRaise, "posts #groom# <233> <13>"}},
      {L"", false, {kRaise, "posts  <13>"}},
  };
  for (const auto& each : cases) {
    user.Click(window->txtNext);
    Check(window->MOptionsAuto, each.autoterminate);
    Button(9).SetCaption(each.text);
    TakeStory();
    user.Click(Button(9));
    EXPECT_EQ(TakeStory(), each.story) << Readable(each.text);
  }
  EXPECT_EQ(Next(), "row") << "the script does not move";
}

TEST_F(frmButtonBarTest, ComesUpAsAColumnWithTheTextsThatItCameWith) {
  Start({});
  Open();
  EXPECT_EQ(Texts(), (std::vector<std::wstring>{L": smiles", L": grins", L": cough", L": clears throat",
                                                L": looks around", L": claps", L": applauds",
                                                L": smiles broadly", L": Ahemm", L"Congratulations!"}));
  EXPECT_EQ(Button(10).Caption(), L"&Horizontal");
  EXPECT_EQ(Stored(L"Button Bar", L"Visible"), L"-1");
  EXPECT_EQ(desktop.forms.Find(Bar())->Owner(), desktop.forms.Find(*window));
  EXPECT_TRUE(desktop.forms.Find(Bar())->IsTopMost());
}

TEST_F(frmButtonBarTest, TheLayoutButtonTurnsTheBarAndSendsNothing) {
  Start({});
  Open();
  StartGame();
  const Rect column = Bar().OuterBounds();
  const std::vector<Rect> columnPlaces = Places();
  for (int index = 0; index < 11; ++index)
    EXPECT_EQ(columnPlaces[static_cast<std::size_t>(index)], (Rect{0, 375 * index, 975, 375}));
  TakeStory();
  user.Click(Button(10));
  EXPECT_EQ(Button(10).Caption(), L"&Vertical");
  for (int index = 0; index < 11; ++index)
    EXPECT_EQ(Places()[static_cast<std::size_t>(index)], (Rect{975 * index, 0, 975, 375}));
  EXPECT_EQ(Bar().OuterBounds().width, column.width + 10 * 975);
  EXPECT_EQ(Bar().OuterBounds().height, column.height - 10 * 375);
  user.Click(Button(10));
  EXPECT_EQ(Button(10).Caption(), L"&Horizontal");
  EXPECT_EQ(Places(), columnPlaces);
  EXPECT_EQ(Bar().OuterBounds(), column);
  EXPECT_EQ(TakeStory(), Lines{});
}

TEST_F(frmButtonBarTest, TheMenuOffersWhatTheButtonUnderThePointerCanDo) {
  StartOpen();
  const struct {
    std::size_t button;
    bool hasText;
  } cases[] = {{0, true}, {10, false}, {9, true}};
  for (const auto& each : cases) {
    bool wasShown = false;
    desktop.forms.WhenPopup([&](MenuItem& menu) {
      wasShown = true;
      EXPECT_EQ(&menu, &Bar().MConfigure);
      EXPECT_EQ(Bar().MConfigureConfigure.Enabled(), each.hasText);
      EXPECT_EQ(Bar().MConfigureLoadSingle.Enabled(), each.hasText);
      EXPECT_TRUE(Bar().MConfigureLoadAll.Enabled());
      EXPECT_TRUE(Bar().MConfigureSave.Enabled());
    });
    user.RightClick(Button(each.button));
    EXPECT_TRUE(wasShown);
  }
}

TEST_F(frmButtonBarTest, APressWithShiftMeansNoButton) {
  StartOpen();
  for (const int shift : {kShiftDown, kControlDown, kAltDown}) {
    user.RightClick(Button(3), shift);
    EXPECT_TRUE(desktop.forms.Popups().empty());
  }
  user.MouseDown(Button(2), {.button = MouseButton::Left});
  user.MouseDown(Button(5), {.button = MouseButton::Left, .shift = kShiftDown});
  desktop.dialogs.AnswerText(L"new");
  Bar().MConfigureConfigure.UserChose();
  EXPECT_EQ(Button(2).Caption(), L"new") << "the last plain press, of either button";
  EXPECT_EQ(Button(5).Caption(), L": claps");
}

TEST_F(frmButtonBarTest, AnAnswerBecomesTextTipAndSetting) {
  StartOpen();
  const struct {
    std::optional<std::wstring> answer;
    const wchar_t* text;
  } cases[] = {{L" Bravo & more ", L" Bravo & more "},
               {L"", L" Bravo & more "},
               {std::nullopt, L" Bravo & more "},
               {L"   ", L"   "}};
  for (const auto& each : cases) {
    desktop.dialogs.AnswerText(each.answer);
    ChooseFor(4, &frmButtonBar::MConfigureConfigure);
    EXPECT_EQ(Texts()[4], each.text);
    EXPECT_EQ(Stored(L"Button Bar", L"Button 4"), each.text);
  }
  EXPECT_EQ(TakeStory()[0],
            "ask Trothline: Please enter the new text for the selected button [: looks around]");
}

TEST_F(frmButtonBarTest, LoadingTakesTheLinesThatThereAre) {
  StartOpen();
  PutFile("zero\r\n\r\n two \r\n");
  const std::vector<std::wstring> before = Texts();
  desktop.dialogs.AnswerFile(kFile);
  ChooseFor(2, &frmButtonBar::MConfigureLoadSingle);
  EXPECT_EQ(Texts()[2], L" two ") << "the line of its own number";
  EXPECT_EQ(Texts()[0], before[0]);
  EXPECT_EQ(Stored(L"Button Bar", L"Button 2"), L" two ");

  desktop.dialogs.AnswerFile(kFile);
  ChooseFor(7, &frmButtonBar::MConfigureLoadSingle);
  EXPECT_EQ(Texts()[7], before[7]) << "there is no such line";

  desktop.dialogs.AnswerFile(kFile);
  ChooseFor(10, &frmButtonBar::MConfigureLoadAll);
  std::vector<std::wstring> after = before;
  after[0] = L"zero";
  after[1] = L"";
  after[2] = L" two ";
  EXPECT_EQ(Texts(), after);
  EXPECT_EQ(Stored(L"Button Bar", L"Button 1"), L"");
  EXPECT_EQ(Stored(L"Button Bar", L"Button 3"), L"(nothing)");

  desktop.dialogs.AnswerFile(std::nullopt);
  ChooseFor(0, &frmButtonBar::MConfigureLoadAll);
  EXPECT_EQ(Texts(), after);
}

TEST_F(frmButtonBarTest, AFileThatFailsIsReportedAndNothingIsLost) {
  StartOpen();
  const std::vector<std::wstring> before = Texts();
  const auto reportOf = [&](MenuItem frmButtonBar::*item, const std::wstring& path) {
    TakeStory();
    desktop.dialogs.AnswerFile(path);
    ChooseFor(0, item);
    return TakeStory().back();
  };
  EXPECT_EQ(reportOf(&frmButtonBar::MConfigureLoadAll, L"C:\\nowhere.btn"), kComplaint);
  PutFile("locked");
  files.RefuseReading(kFile);
  EXPECT_EQ(reportOf(&frmButtonBar::MConfigureLoadAll, kFile), kComplaint);
  EXPECT_EQ(Texts(), before);

  const std::wstring kept = L"C:\\Games\\Trothline\\Buttons\\Kept.btn";
  desktop.dialogs.AnswerFile(kept);
  ChooseFor(10, &frmButtonBar::MConfigureSave);
  EXPECT_TRUE(File(kept).starts_with(": smiles\r\n: grins\r\n: cough\r\n"));
  EXPECT_EQ(desktop.dialogs.FilesAsked().back().folder, L"C:\\Games\\Trothline\\Buttons");
  EXPECT_EQ(desktop.dialogs.FilesAsked().back().fileName, L"Untitled.btn");
  files.Put(kept, "kept");
  files.LeaveRoomFor(20);
  EXPECT_EQ(reportOf(&frmButtonBar::MConfigureSave, kept), kComplaint);
  EXPECT_EQ(files.Read(kept), "kept") << "a full disk leaves the old file whole";
}

TEST_F(frmButtonBarTest, KeepsPlaceAndLayoutAndWhetherTheUserClosedIt) {
  Start({});
  Open();
  const Rect outer = Bar().OuterBounds();
  const Rect main = window->OuterBounds();
  EXPECT_EQ(outer.left, main.left + main.width) << "beside the main window";
  Bar().MoveTo({300, 450});
  user.Click(Button(10));
  Bar().Unload();
  EXPECT_EQ(Stored(L"Button Bar", L"Visible"), L"-1") << "it comes back at the next start";
  EXPECT_EQ(Stored(L"Button Bar", L"X Position"), L"300");
  EXPECT_EQ(Stored(L"Button Bar", L"Y Position"), L"450");
  EXPECT_EQ(Stored(L"Button Bar", L"Layout"), L"0");

  Store(L"Button Bar", L"Y Position", L"-1");
  Store(L"Button Bar", L"Layout", L"7");
  Open();
  EXPECT_EQ(Bar().OuterBounds().left, 300);
  EXPECT_EQ(Bar().OuterBounds().top, main.top) << "below 0 is no place";
  EXPECT_EQ(Button(10).Caption(), L"&Horizontal") << "any number but 0 is a column";
  user.CloseWindow(Bar());
  EXPECT_EQ(Stored(L"Button Bar", L"Visible"), L"0");
  EXPECT_EQ(Stored(L"Button Bar", L"Layout"), L"7");
  EXPECT_EQ(program.Opened<frmButtonBar>(), nullptr);
}

}  // namespace

}  // namespace troth
