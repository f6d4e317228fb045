#include "livetools/frmPopup.h"

#include "tests/speech/SpeechRig.h"

namespace troth {
namespace {

class frmPopupTest : public SpeechTest {
 protected:
  // The popup comes up, is looked at and closed by `close`, Enter if none is given.
  void OnPopup(const std::function<void(frmPopup&)>& look, int closingKey = kEnterKey) {
    desktop.forms.WhenModal(L"frmPopup", [this, look, closingKey] {
      look(*program.Opened<frmPopup>());
      user.Press(closingKey);
    });
  }
  void SpeakAndExpectPopup(const std::wstring& text) {
    bool seen = false;
    OnPopup([&](frmPopup& popup) {
      seen = true;
      EXPECT_EQ(popup.lblMsg.Caption(), text);
    });
    Speak();
    EXPECT_TRUE(seen) << Readable(text);
  }
};

TEST_F(frmPopupTest, CommentsPopUpIfWantedAndMistakesInDirectivesAlways) {
  StartGame();
  Start({"one", "& Ring the bell", "two", "@{def ring}", "three", "&", "four", "@{undef  }", "five"});
  SpeakAndExpectPopup(L" Ring the bell");
  SpeakAndExpectPopup(L"Syntax error in !def command: {def ring}");
  SpeakAndExpectPopup(L"");
  SpeakAndExpectPopup(L"Invalid variable name in !undef command: {undef  }");
  EXPECT_EQ(Row(), 9);

  SelectRow(1);
  Check(window->MOptionsPopup, false);
  Speak();
  EXPECT_EQ(Row(), 3) << "passed in silence";
  SpeakAndExpectPopup(L"Syntax error in !def command: {def ring}");
}

TEST_F(frmPopupTest, StandsInFrontOfEverythingAndTheMainWindowComesBackAfterwards) {
  StartGame();
  Start({"one", "&look", "two"});
  OnPopup(
      [&](frmPopup& popup) {
        EXPECT_TRUE(desktop.forms.Find(popup)->IsTopMost());
        EXPECT_FALSE(desktop.forms.Find(*window)->IsTopMost());
      },
      kEscapeKey);
  Speak();
  EXPECT_TRUE(desktop.forms.Find(*window)->IsTopMost());

  SelectRow(1);
  Check(window->MOptionsTop, false);
  OnPopup([&](frmPopup& popup) { EXPECT_TRUE(desktop.forms.Find(popup)->IsTopMost()); });
  Speak();
  EXPECT_FALSE(desktop.forms.Find(*window)->IsTopMost());
}

TEST_F(frmPopupTest, ComesUpWhereItWasLastDraggedWithinTheScreen) {
  StartGame();
  Start({"one", "&look", "two"});
  Store(L"Popup X Position", L"99999");
  Store(L"Popup Y Position", L"-30");
  OnPopup([&](frmPopup& popup) {
    const Rect place = popup.OuterBounds();
    EXPECT_EQ(place.left + place.width, ScreenSize(desktop.forms.monitors).width);
    EXPECT_EQ(place.top, 0);
    popup.MoveTo({1500, 2250});
  });
  Speak();
  EXPECT_EQ(Stored(L"Popup X Position") + L"," + Stored(L"Popup Y Position"), L"1500,2250");
  SelectRow(1);
  OnPopup([&](frmPopup& popup) {
    EXPECT_EQ(popup.OuterBounds().left, 1500);
    EXPECT_EQ(popup.OuterBounds().top, 2250);
  });
  Speak();
}

// A press of the hotkey behind an open popup goes through the script, and may come to another one.
TEST_F(frmPopupTest, AnotherTextTakesThePlaceOfTheOneThatIsUp) {
  StartGame();
  Start({"one", "&first", "&second", "two"});
  desktop.forms.WhenModal(L"frmPopup", [&] {
    frmPopup& popup = *program.Opened<frmPopup>();
    EXPECT_EQ(popup.lblMsg.Caption(), L"first");
    window->DoSpeechRow(L"");
    EXPECT_EQ(popup.lblMsg.Caption(), L"second");
    EXPECT_TRUE(popup.Visible());
    user.Press(kEnterKey);
  });
  OnPopup([&](frmPopup& popup) { EXPECT_EQ(popup.lblMsg.Caption(), L"second"); });
  Speak();
  EXPECT_EQ(Row(), 4);
}

}  // namespace
}  // namespace troth
