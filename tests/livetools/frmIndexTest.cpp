#include "livetools/frmIndex.h"

#include "tests/speech/SpeechRig.h"

namespace troth {
namespace {

class frmIndexTest : public SpeechTest {
 protected:
  frmIndex& Index() { return *program.Opened<frmIndex>(); }
};

TEST_F(frmIndexTest, FollowsTheScriptAlsoWhileHidden) {
  Store(L"Index Visible", L"0");
  Start({"before", "@!Welcome", "hello", "@!Vows", "@!Rings", "the ring"});
  EXPECT_FALSE(Index().Visible());
  EXPECT_EQ(Shown(Index().lstIndex), "Welcome;Vows;Rings;");
  const int expected[] = {-1, 0, 0, 1, 2, 2};
  for (int row = 1; row <= 6; ++row) {
    SelectRow(row);
    EXPECT_EQ(Index().lstIndex.Index(), expected[row - 1]) << "row " << row;
    EXPECT_EQ(Row(), row) << "the main list is not moved again";
  }
  window->RefreshScript();
  EXPECT_EQ(Shown(Index().lstIndex), "Welcome;Vows;*Rings;");

  LoadScript({"no paragraphs"});
  EXPECT_EQ(Shown(Index().lstIndex), "");
  EXPECT_TRUE(Index().cmdGoto.Enabled());
  user.Choose(window->MViewIndex);
  user.Click(Index().cmdGoto);
  EXPECT_EQ(Row(), 1);
  LoadScript({});
  EXPECT_FALSE(Index().cmdGoto.Enabled());
}

TEST_F(frmIndexTest, JumpsToTheChapterRowAndCarriesNothingOutOnTheWay) {
  StartGame();
  Start({"@!Welcome", "hello", "@{def ring, gold}", "@!Rings", "the #ring# ring"});
  user.Select(Index().lstIndex, 1);
  EXPECT_EQ(Row(), 1) << "a click alone jumps nowhere";
  user.Click(Index().cmdGoto);
  EXPECT_EQ(Row(), 4);
  EXPECT_EQ(Next(), "");
  user.Click(window->cmdSpeak);
  EXPECT_EQ(Next(), "the #ring# ring");
  user.DoubleClick(Index().lstIndex, 0);
  EXPECT_EQ(Row(), 1);
}

TEST_F(frmIndexTest, ItsPlaceIsNotedEveryHalfSecondWhileOneSeesIt) {
  Start({"hello"});
  Index().MoveTo({1500, 900});
  desktop.time.Advance(400);
  EXPECT_EQ(program.IndexX, 0);
  desktop.time.Advance(200);
  EXPECT_EQ(program.IndexX, 1500);
  EXPECT_EQ(program.IndexY, 900);
  desktop.forms.Find(Index())->Minimise(true);
  Index().MoveTo({-30000, -30000});
  desktop.time.Advance(600);
  EXPECT_EQ(program.IndexX, 1500);
  desktop.forms.Find(Index())->Minimise(false);
  Index().MoveTo({40000, 900});
  desktop.time.Advance(600);
  EXPECT_EQ(program.IndexX, 32767) << "no place far out comes back as another";
}

TEST_F(frmIndexTest, ClosingOnlyHidesItAndTheMenuBringsItBack) {
  Start({"@!Welcome", "hello"});
  Index().MoveTo({1500, 900});
  desktop.time.Advance(600);
  user.CloseWindow(Index());
  EXPECT_FALSE(Index().Visible());
  EXPECT_FALSE(program.IndexVisible);
  EXPECT_EQ(Shown(Index().lstIndex), "*Welcome;");
  Index().MoveTo({0, 0});
  user.Choose(window->MViewIndex);
  EXPECT_TRUE(Index().Visible());
  EXPECT_EQ(Index().OuterBounds().left, 1500);
  window->Unload();
  EXPECT_EQ(Stored(L"Index Visible"), L"1");
}

}  // namespace
}  // namespace troth
