#include "authoring/frmWizard.h"

#include <array>
#include <cmath>

#include "platform/headless/HeadlessCanvas.h"
#include "tests/shell/RunRig.h"

namespace troth {
namespace {

const std::wstring kWizard = L"C:\\Games\\Trothline\\Wizard\\";
const std::wstring kScripts = L"C:\\Games\\Trothline\\wedscripts\\My Scripts\\";
const std::string kDone =
    "box information Wedding Script Wizard: Congratulations! Your wedding script has been correctly "
    "generated "
    "and written to the disk.";

class WizardTest : public RunTest {
 protected:
  static constexpr std::size_t kHelp = 0, kCancel = 1, kBack = 2, kNext = 3, kFinish = 4;

  void SetUp() override {
    files.PutFolder(L"C:\\Games\\Trothline\\wedscripts");
    for (const WizardOption& section : kWizardSections)
      for (const WizardOption& style : kWizardStyles)
        files.Put(kWizard + L"English\\" + section.tag + style.tag + L".scr",
                  desktop.text.Encode(section.tag) + "\r\n[reply\r\n]reply\r\n*smiles\r\n");
  }

  // What the person does in the wizard, which is cancelled if it is still there afterwards.
  void InWizard(const std::function<void(frmWizard&)>& act) {
    desktop.forms.WhenModal(L"frmWizard", [this, act] {
      frmWizard& wizard = *program->Opened<frmWizard>();
      act(wizard);
      if (wizard.IsLoaded()) user.Click(wizard.cmdNav[kCancel]);
    });
    user.Choose(Main().MFileWizard);
  }

  void GoToLastStep(frmWizard& wizard) {
    while (wizard.cmdNav[kNext].Enabled()) user.Click(wizard.cmdNav[kNext]);
  }

  // Types a name on the last step and presses Finish. The boxes that follow.
  Lines FinishAs(frmWizard& wizard, const std::wstring& name) {
    GoToLastStep(wizard);
    user.Click(wizard.txtScriptName);
    wizard.txtScriptName.SetText(L"");
    user.Type(name);
    TakeStory();
    user.Click(wizard.cmdNav[kFinish]);
    Lines story = TakeStory();
    std::erase_if(story, [](const std::string& line) {
      return !line.starts_with("box ") && !line.starts_with("open ");
    });
    return story;
  }

  std::string Kept(const std::wstring& name) { return File(kScripts + name); }
};

TEST_F(WizardTest, LeadsThroughFiveStepsAndBack) {
  RunMain([&] {
    InWizard([&](frmWizard& wizard) {
      const Rect outer = wizard.OuterBounds();
      bool isGoingBack = false;
      EXPECT_EQ((Size{outer.width, outer.height}), (Size{7245, 5430}));
      for (const int step : {0, 1, 2, 3, 4, 3, 2, 1}) {
        SCOPED_TRACE(step);
        const auto index = static_cast<std::size_t>(step);
        EXPECT_EQ(wizard.Caption(), L"Wedding Script Wizard (Step " + std::to_wstring(step + 1) + L" of 5)");
        for (std::size_t page = 0; page < kSteps; ++page) {
          EXPECT_EQ(wizard.fraStep[page].Bounds().left, page == index ? 0 : -10000);
          EXPECT_EQ(wizard.fraStep[page].Enabled(), page == index);
        }
        EXPECT_EQ(wizard.cmdNav[kBack].Enabled(), step != 0);
        EXPECT_EQ(wizard.cmdNav[kNext].Enabled(), step != 4);
        EXPECT_EQ(wizard.cmdNav[kFinish].Enabled(), step == 4);
        EXPECT_NE(user.Focused(), nullptr);
        user.Click(wizard.cmdNav[isGoingBack || step == 4 ? kBack : kNext]);
        isGoingBack = isGoingBack || step == 4;
      }
    });
  });
}

TEST_F(WizardTest, EnterLeadsOnAndFinishes) {
  RunMain([&] {
    InWizard([&](frmWizard& wizard) {
      user.Click(wizard.optLanguage[0]);
      user.Press(kEnterKey);
      user.Click(wizard.chkSection[0]);
      for (int step = 1; step < 4; ++step) user.Press(kEnterKey);
      user.Type(L"Moor");
      user.Press(kEnterKey);
      EXPECT_FALSE(wizard.IsLoaded());
    });
  });
  EXPECT_NE(Kept(L"Moor.txt"), "(nothing)");
}

// A number for all that is drawn in each picture: one that changes has to be looked at again.
TEST_F(WizardTest, EachStepHasItsPicture) {
  RunMain([&] {
    InWizard([&](frmWizard& wizard) {
      std::array<long, kSteps> sums{};
      for (std::size_t step = 0; step < kSteps; ++step) {
        double sum = 0;
        int weight = 0;
        for (const CanvasStroke& stroke : HeadlessCanvas::Of(wizard.imgStep[step]).Strokes()) {
          sum += ++weight % 31 * (stroke.color % 9973 + 7 * stroke.radius);
          for (const CanvasPoint& point : stroke.points) sum += ++weight % 31 * (3 * point.x + 5 * point.y);
        }
        sums[step] = std::lround(sum);
      }
      EXPECT_EQ(sums, (std::array<long, kSteps>{23804316, 9397882, 22701412, 17728585, 11985070}));
    });
  });
}

TEST_F(WizardTest, HelpsOnTheStepThatIsShownAndTakesTheHelpAway) {
  desktop.shell.hasHelpViewer = true;
  const std::wstring help = L"C:\\Games\\Trothline\\Troth.hlp";
  files.Put(help, "");
  const auto topic = [](const char* what) {
    return "help C:\\Games\\Trothline\\Troth.hlp " + std::string(what);
  };
  RunMain([&] {
    TakeStory();
    InWizard([](frmWizard&) {});
    EXPECT_EQ(TakeStory(), Lines{});
    for (const bool byKey : {true, false}) {
      InWizard([&](frmWizard& wizard) {
        for (const char* number : {"20", "30", "40", "50", "60"}) {
          if (byKey)
            user.Press(kF1Key);
          else
            user.Click(wizard.cmdNav[kHelp]);
          EXPECT_EQ(TakeStory(), Lines{topic(number)});
          if (wizard.cmdNav[kNext].Enabled()) user.Click(wizard.cmdNav[kNext]);
        }
      });
      EXPECT_EQ(TakeStory(), Lines{topic("closed")});
    }
  });
}

TEST_F(WizardTest, OffersTheFoldersOfTheWizardAsLanguages) {
  const struct {
    std::vector<std::wstring> folders;
    std::vector<std::wstring> captions;
  } cases[] = {
      {{}, {}},
      {{L"100 %", L"Salt & Pepper"}, {L"100 %", L"Salt && Pepper"}},
      {{L"a", L"b", L"c", L"d", L"e", L"f", L"g", L"h", L"i", L"j", L"k"},
       {L"a", L"b", L"c", L"d", L"e", L"f", L"g", L"h", L"i", L"j"}},
  };
  for (const auto& c : cases) {
    desktop.files = HeadlessFiles();
    files.Put(kWizard + L"readme.txt", "no language");
    for (const std::wstring& folder : c.folders) files.PutFolder(kWizard + folder);
    RunMain([&] {
      InWizard([&](frmWizard& wizard) {
        std::vector<std::wstring> offered;
        for (const OptionButton& button : wizard.optLanguage) {
          EXPECT_EQ(button.Visible(), button.Enabled());
          if (button.Visible()) offered.push_back(button.Caption());
        }
        EXPECT_EQ(offered, c.captions);
        EXPECT_TRUE(wizard.optLanguage[0].Selected());
      });
    });
  }
}

TEST_F(WizardTest, WritesWhatTheUserChose) {
  files.Put(kWizard + L"Salt & Pepper\\VowsFormal.scr", "vows\r\n[I do");
  RunMain([&] {
    InWizard([&](frmWizard& wizard) {
      for (OptionButton& button : wizard.optLanguage)
        if (button.Caption() == L"Salt && Pepper") user.Click(button);
      user.Click(wizard.cmdNav[kNext]);
      for (std::size_t i = 0; i < kSections; ++i) {
        EXPECT_TRUE(wizard.chkSection[i].Ticked());
        if (kWizardSections[i].tag != std::wstring(L"Vows")) user.Click(wizard.chkSection[i]);
      }
      user.Click(wizard.cmdNav[kNext]);
      EXPECT_TRUE(wizard.optStyle[0].Selected());
      user.Click(wizard.optStyle[1]);
      user.Click(wizard.cmdNav[kNext]);
      for (CheckBox* box :
           {&wizard.chkEmotes, &wizard.chkTellGroom, &wizard.chkTellBride, &wizard.chkVerbous}) {
        EXPECT_EQ(box->Ticked(), box == &wizard.chkEmotes || box == &wizard.chkVerbous);
        user.Click(*box);
      }
      user.Click(wizard.cmdNav[kNext]);
      EXPECT_FALSE(wizard.chkEdit.Ticked());
      EXPECT_EQ(wizard.txtScriptName.Text(), L"");
      EXPECT_EQ(FinishAs(wizard, L"ours"), Lines{kDone});
      EXPECT_FALSE(wizard.IsLoaded());
    });
    const std::string script = Kept(L"ours.txt");
    const std::string date = desktop.text.Encode(desktop.time.LongDate(desktop.time.Now()));
    EXPECT_NE(script.find("@Wedding Script Wizard (" + date + ")\r\n"), std::string::npos);
    EXPECT_TRUE(script.ends_with("slot 5.\r\n/add\r\nvows\r\n/#GroomID# I do\r\n")) << script;
    EXPECT_TRUE(Main().lstWedding.Count() == 0) << "the wizard does not load the script";
    // All choices start again at the next opening.
    InWizard([](frmWizard& wizard) {
      EXPECT_TRUE(wizard.optLanguage[0].Selected());
      EXPECT_TRUE(wizard.chkSection[0].Ticked());
      EXPECT_TRUE(wizard.optStyle[0].Selected());
      EXPECT_TRUE(wizard.chkEmotes.Ticked());
    });
  });
}

TEST_F(WizardTest, TakesANameThatAFileOfTheUsersFolderCanHave) {
  const struct {
    std::wstring typed;
    std::wstring file;  // empty: refused
    std::string box = kDone;
  } cases[] = {
      {L"My wedding", L"My wedding.txt"},
      {L"  blanks  ", L"blanks.txt"},
      {L"vows.TXT", L"vows.TXT"},
      {L"", L"", "box stop Wedding Script Wizard: Error. You must provide a valid script name."},
      {L"   ", L"", "box stop Wedding Script Wizard: Error. You must provide a valid script name."},
      {L"..\\vows", L"", "box stop Wedding Script Wizard: Error: cannot create ..\\vows.txt"},
      {L"readonly", L"", "box stop Wedding Script Wizard: Error: cannot create readonly.txt"},
  };
  files.RefuseWriting(kScripts + L"readonly.txt");
  RunMain([&] {
    for (const auto& c : cases) {
      SCOPED_TRACE(Readable(c.typed));
      InWizard([&](frmWizard& wizard) {
        EXPECT_EQ(FinishAs(wizard, c.typed), Lines{c.box});
        EXPECT_EQ(wizard.IsLoaded(), c.file.empty());
        EXPECT_TRUE(!wizard.IsLoaded() || wizard.Caption() == L"Wedding Script Wizard (Step 5 of 5)");
      });
      EXPECT_TRUE(c.file.empty() || Kept(c.file).starts_with("@Wedding script generated by Trothline "));
    }
  });
}

TEST_F(WizardTest, AsksBeforeItReplacesAScript) {
  RunMain([&] {
    for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Yes}) {
      files.Put(kScripts + L"vows.txt", "old");
      const bool replaces = answer == BoxAnswer::Yes;
      InWizard([&](frmWizard& wizard) {
        desktop.dialogs.Answer(answer);
        Lines story{
            "box plain Wedding Script Wizard: vows.txt already exists in the destination directory. Do you "
            "want "
            "to overwrite it?"};
        if (replaces) story.push_back(kDone);
        EXPECT_EQ(FinishAs(wizard, L"vows"), story);
        EXPECT_EQ(wizard.IsLoaded(), !replaces);
      });
      EXPECT_EQ(Kept(L"vows.txt") == "old", !replaces);
    }
  });
}

TEST_F(WizardTest, SaysWhyAScriptIsNotComplete) {
  RunMain([&] {
    files.Remove(kWizard + L"English\\VowsStandard.scr");
    InWizard([&](frmWizard& wizard) {
      EXPECT_EQ(FinishAs(wizard, L"short"),
                Lines{"box stop Wedding Script Wizard: Incorrect Wizard configuration. "
                      "Please reinstall Trothline"});
      EXPECT_FALSE(wizard.IsLoaded());
    });
    EXPECT_TRUE(Kept(L"short.txt").ends_with("History\r\n: smiles\r\n"));
    files.LeaveRoomFor(50);
    InWizard([&](frmWizard& wizard) {
      EXPECT_EQ(
          FinishAs(wizard, L"full"),
          Lines{"box stop Wedding Script Wizard: A disk error occurred while writing your wedding script."});
      EXPECT_FALSE(wizard.IsLoaded());
    });
    EXPECT_TRUE(Kept(L"full.txt").starts_with("@Wedding script generated by Trothline "));
  });
}

TEST_F(WizardTest, OpensTheScriptForEditingIfThatIsWanted) {
  RunMain([&] {
    for (const bool opens : {true, false}) {
      desktop.shell.opens = opens;
      InWizard([&](frmWizard& wizard) {
        GoToLastStep(wizard);
        user.Click(wizard.chkEdit);
        Lines story{kDone, "open C:\\Games\\Trothline\\wedscripts\\My Scripts\\vows.txt"};
        if (!opens)
          story.push_back(
              "box stop Trothline: Error: cannot edit the generated script file. Either your default "
              "association "
              "for .txt file is wrong, or you are running out of memory.");
        if (!opens) files.Remove(kScripts + L"vows.txt");
        EXPECT_EQ(FinishAs(wizard, L"vows"), story);
        EXPECT_FALSE(wizard.IsLoaded());
      });
      EXPECT_TRUE(Kept(L"vows.txt").ends_with("@End of script (Wedding Script Wizard)\r\n"));
    }
  });
}

}  // namespace
}  // namespace troth
