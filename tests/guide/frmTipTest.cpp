// The tip of the day: what it shows, where its buttons lead, and how it hands over.
#include "guide/frmTip.h"

#include <set>

#include "tests/shell/RunRig.h"

namespace troth {

namespace {

constexpr wchar_t kNoTips[] =
    L"That the TIPOFDAY.TXT file was not found? \r\n\r\nCreate a text file named TIPOFDAY.TXT using NotePad "
    L"with 1 tip per line. Then place it in the same directory as the application. ";

class frmTipTest : public RunTest {
 protected:
  // The tip of a start with this seed.
  std::wstring TipWith(std::uint32_t seed) {
    std::wstring tip;
    desktop.process.seed = seed;
    RunFromTip([&] { tip = Tip().lblTipText.Caption(); });
    return tip;
  }
};

TEST_F(frmTipTest, FirstTipIsRandomAlsoForNearSeeds) {
  files.Put(kTipPath, "one\r\ntwo\r\nthree\r\nfour\r\nfive");
  std::set<std::wstring> seen;
  for (std::uint32_t seed = 0; seed < 25; ++seed) seen.insert(TipWith(seed));
  EXPECT_EQ(seen, (std::set<std::wstring>{L"one", L"two", L"three", L"four", L"five"}));
  EXPECT_EQ(TipWith(7), TipWith(7));
}

TEST_F(frmTipTest, NextGoesRoundInTheOrderOfTheFile) {
  // An empty line is an empty tip, a lone line feed ends none, and an "&" is no mnemonic.
  files.Put(kTipPath, "one\r\n\r\nRice & heather\rfour\nstill four\r\n");
  const std::wstring tips[] = {L"one", L"", L"Rice & heather", L"four\nstill four"};
  RunFromTip([&] {
    const auto first = std::find(std::begin(tips), std::end(tips), Tip().lblTipText.Caption());
    ASSERT_NE(first, std::end(tips));
    for (std::size_t step = 1; step <= 9; ++step) {
      if (step % 2)
        user.Click(Tip().cmdNextTip);
      else
        user.Press('N', kAltDown);
      const auto at = static_cast<std::size_t>(first - std::begin(tips)) + step;
      EXPECT_EQ(Tip().lblTipText.Caption(), tips[at % std::size(tips)]);
    }
  });
}

TEST_F(frmTipTest, AFileWithFewTipsOrNone) {
  const struct {
    const char* bytes;
    const wchar_t* tip;
  } cases[] = {{"Only this.\r\n", L"Only this."},
               {"Only this.", L"Only this."},
               {"\r\n", L""},
               {"", L""},
               {nullptr, kNoTips}};
  for (const auto& each : cases) {
    if (each.bytes)
      files.Put(kTipPath, each.bytes);
    else
      files.Remove(kTipPath);
    RunFromTip([&] {
      for (int next = 0; next < 3; ++next) {
        EXPECT_EQ(Tip().lblTipText.Caption(), each.tip);
        user.Click(Tip().cmdNextTip);
      }
    });
  }
}

TEST_F(frmTipTest, TheTickIsKeptAtOnce) {
  RunFromTip([&] {
    user.Click(Tip().chkLoadTipsAtStartup);
    EXPECT_EQ(Stored(L"Show Tips at Startup"), L"0");
    user.Press('S', kAltDown);
    EXPECT_EQ(Stored(L"Show Tips at Startup"), L"1");
    EXPECT_EQ(TakeStory(), (Lines{"save Troth\\Options\\Show Tips at Startup=0",
                                  "save Troth\\Options\\Show Tips at Startup=1"}));
  });
}

// From the about window of a running program: tips and nothing else, as often as one likes.
TEST_F(frmTipTest, OpenedLaterItOnlyShowsTips) {
  files.Put(kTipPath, "one\r\ntwo");
  RunMain([&] {
    const frmTroth* const before = &Main();
    int shownAgain = 0;
    user.Click(Main().txtNext);
    Main().txtNext.OnGotFocus = [&] { ++shownAgain; };
    for (int time = 0; time < 2; ++time) {
      bool saw = false;
      desktop.forms.WhenModal(L"frmTip", [&] {
        saw = true;
        EXPECT_EQ(Windows(), (Lines{"frmTip", "frmAbout", "frmTroth"}));
        EXPECT_FALSE(Tip().cmdAbout.Visible());
        EXPECT_EQ(Tip().chkLoadTipsAtStartup.Ticked(), time == 1);
        if (time == 0) user.Click(Tip().chkLoadTipsAtStartup);
        EXPECT_EQ(Stored(L"Show Tips at Startup"), L"1");
        const std::wstring tip = Tip().lblTipText.Caption();
        user.Click(Tip().cmdNextTip);
        EXPECT_NE(Tip().lblTipText.Caption(), tip);
        user.Click(Tip().cmdOK);
      });
      InAbout([&] {
        user.Click(About().cdmTip);
        EXPECT_EQ(Windows(), (Lines{"frmAbout", "frmTroth"}));
        EXPECT_EQ(shownAgain, time) << "the main window is left alone";
      });
      EXPECT_TRUE(saw);
      EXPECT_EQ(Windows(), (Lines{"frmTroth"}));
      EXPECT_EQ(&Main(), before);
    }
  });
}

}  // namespace
}  // namespace troth
