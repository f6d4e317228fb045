// The credits: what the file says, and how it rolls.
#include "guide/frmCredits.h"

#include <algorithm>

#include "core/modMain.h"
#include "guide/CreditsFile.h"
#include "platform/headless/HeadlessCanvas.h"
#include "tests/shell/RunRig.h"

namespace troth {

namespace {

constexpr wchar_t kFile[] = L"C:\\Games\\Trothline\\Credits.dat";

// The headings, each with its lines: "Heading: one, two".
std::vector<std::string> Told(const CCredits& credits) {
  std::vector<std::string> told;
  for (const CCredit& credit : credits) {
    std::string line = Readable(credit.CreditTitle()) + ":";
    for (const CTitle& title : credit.CreditDetails()) line += " " + Readable(title.PTitle());
    told.push_back(line);
  }
  return told;
}

TEST(CreditsFile, HeadingsOpenCreditsAndOtherLinesAreNames) {
  const HeadlessText page;
  const std::string builtIn = Told(BuiltInCredits())[0];
  const struct {
    std::string bytes;
    std::vector<std::string> credits;
  } cases[] = {
      {"", {builtIn}},
      {"Anna\r\n#Testing\r\n  Rowan \r\n", {builtIn + " Anna", "Testing: Rowan"}},
      {"#One\r\n#Two\r\nx\r\n", {builtIn, "One:", "Two:"}},
      {"#\r\n##\r\n # spaced\r\n", {builtIn, "#:", " spaced:"}},
      {"a\r\n \r\n\r\nb", {builtIn}},
  };
  for (const auto& each : cases) {
    CCredits credits = BuiltInCredits();
    AppendCredits(credits, each.bytes, page);
    EXPECT_EQ(Told(credits), each.credits) << each.bytes;
  }
}

class frmCreditsTest : public RunTest {
 protected:
  frmCredits& Credits() { return *program->Opened<frmCredits>(); }
  HeadlessCanvas& Ground() { return HeadlessCanvas::Of(Credits().Ground); }

  // Opens the credits from the menu, lets `act` watch, and closes them with the button.
  void InCredits(const std::function<void()>& act) {
    RunMain([&] {
      desktop.forms.WhenModal(L"frmCredits", [&] {
        act();
        user.Click(Credits().cmdClose);
      });
      user.Choose(Main().MHelpCredits);
    });
  }

  struct Step {
    std::vector<std::wstring> texts;
    std::vector<int> sizes;
    std::uint32_t ms = 0;
    friend bool operator==(const Step&, const Step&) = default;
  };
  // One tick of the timer.
  Step NextStep() {
    Ground().TakeStrokes();
    const std::uint32_t start = desktop.time.TickCount();
    desktop.time.Advance(20);
    Step step{.texts = {}, .sizes = {}, .ms = desktop.time.TickCount() - start - 20};
    for (const CanvasStroke& stroke : Ground().Strokes()) {
      if (stroke.act != CanvasAct::Text) continue;
      if (step.texts.empty() || step.texts.back() != stroke.text) step.texts.push_back(stroke.text);
      step.sizes.push_back(static_cast<int>(stroke.font.points));
    }
    return step;
  }
};

const std::vector<int> kHeadingSizes{1, 3, 5, 7, 9, 11, 13, 15};
const std::vector<int> kNameSizes{1, 3, 5, 7, 9, 11, 13, 15, 17, 19, 21, 23, 25, 27};

TEST_F(frmCreditsTest, RollsHeadingsAndNamesInTheirSizesAndPausesWithoutEnd) {
  files.Put(kFile, "#Testing\r\nRowan\r\n#Alone\r\n");
  InCredits([&] {
    for (int round = 0; round < 2; ++round) {
      EXPECT_EQ(NextStep(), (Step{{L"Design and Programming"}, kHeadingSizes, 1500 + 8 * 20 + 1000}))
          << round;
      EXPECT_EQ(NextStep(), (Step{{kAuthor}, kNameSizes, 14 * 20 + 2000}));
      EXPECT_EQ(NextStep().sizes, kNameSizes);
      EXPECT_EQ(NextStep(), (Step{{L"Testing"}, kHeadingSizes, 8 * 20 + 1000}));
      EXPECT_EQ(NextStep(), (Step{{L"Rowan"}, kNameSizes, 14 * 20 + 2000}));
      EXPECT_EQ(NextStep(), (Step{{L"Alone"}, kHeadingSizes, 8 * 20 + 1000}));
    }
  });
}

TEST_F(frmCreditsTest, TheTitleStandsAboveTheFieldThatRolls) {
  InCredits([&] {
    std::vector<std::wstring> texts;
    for (const CanvasStroke& stroke : Ground().Strokes()) {
      if (stroke.act != CanvasAct::Text) continue;
      texts.push_back(stroke.text);
      EXPECT_EQ(stroke.color, Rgb(255, 255, 0));
      EXPECT_TRUE(stroke.font.bold);
      EXPECT_EQ(stroke.font.face, L"Times New Roman");
      EXPECT_EQ(stroke.points[0].x, 0.5);
    }
    EXPECT_EQ(texts, (std::vector<std::wstring>{L"Trothline", L"Version 3.1.0"}));

    NextStep();
    for (const CanvasStroke& stroke : Ground().Strokes()) {
      for (const CanvasPoint& point : stroke.points) EXPECT_GE(point.y, 0.5);
    }
    NextStep();
    for (const CanvasStroke& stroke : Ground().Strokes()) {
      for (const CanvasPoint& point : stroke.points) EXPECT_GE(point.y, 0.6) << "the heading stays";
      if (stroke.act == CanvasAct::Text) {
        const double width = Credits().Ground.TextWidth(stroke.text, stroke.font);
        EXPECT_NEAR(stroke.points[0].x + width / 2, 0.5, 1e-9) << "centred";
      }
    }
  });
}

TEST_F(frmCreditsTest, AClickOnTheGroundClosesAndTheNextOpeningStartsAtTheFirstCredit) {
  RunMain([&] {
    desktop.forms.WhenModal(L"frmCredits", [&] {
      for (int step = 0; step < 3; ++step) NextStep();
      user.Click(Credits().Ground);
    });
    user.Choose(Main().MHelpCredits);
    EXPECT_EQ(program->Opened<frmCredits>(), nullptr);
    desktop.forms.WhenModal(L"frmCredits", [&] {
      EXPECT_EQ(NextStep().texts[0], L"Design and Programming");
      user.Press(kEscapeKey);
    });
    user.Choose(Main().MHelpCredits);
  });
}

}  // namespace

}  // namespace troth
