// What people need who do not see the screen as others do.
#include "authoring/frmBrowse.h"
#include "authoring/frmWizard.h"
#include "book/frmKMBook.h"
#include "guide/frmCredits.h"
#include "livetools/frmButtonBar.h"
#include "livetools/frmDynamic.h"
#include "livetools/frmEdit.h"
#include "livetools/frmGestures.h"
#include "livetools/frmIndex.h"
#include "livetools/frmPopup.h"
#include "livetools/frmVars.h"
#include "platform/forms/InputBox.h"
#include "shell/frmHotkey.h"
#include "tests/shell/RunRig.h"

namespace troth {

namespace {

class AccessTest : public RunTest {
 protected:
  // Gesture buttons without a gesture are dead.
  static void ExpectNames(const Form& form) {
    for (const Control* control : form.Controls())
      EXPECT_FALSE(control->IsTabStop() && control->Enabled() && control->AccessibleName().empty())
          << HeadlessJournal::Readable(form.Name() + L'.' + control->Name());
  }
};

TEST_F(AccessTest, EveryControlThatTakesTheKeyboardHasAName) {
  RunMain([&] {
    ExpectNames(Main());
    ExpectNames(InputBox(desktop.forms, {.prompt = L"Enter a name"}));
    const auto check = [&](const wchar_t* name, MenuItem& item) {
      desktop.forms.WhenModal(name, [&] {
        Form& form = desktop.forms.Active()->Portable();
        ExpectNames(form);
        form.Unload();
      });
      user.Choose(item);
    };
    check(L"frmBrowse", Main().MFileScript);
    check(L"frmWizard", Main().MFileWizard);
    check(L"frmHotkey", Main().MOptionsHotkey);
    check(L"frmVars", Main().MOptionsDefine);
    check(L"frmDynamic", Main().MViewDynamic);
    check(L"frmAbout", Main().MFileAbout);
    for (MenuItem* item : {&Main().MViewKMBook, &Main().MViewEdit, &Main().MViewButtonBar,
                           &Main().MViewGestureBar, &Main().MViewIndex})
      user.Click(Main().txtNext), user.Choose(*item);
    for (const HeadlessForm* form : desktop.forms.StackingOrder()) ExpectNames(form->Portable());
    user.Click(Main().txtNext);
    EXPECT_EQ(Main().txtNext.AccessibleName(), L"Next Sentence");
    EXPECT_EQ(Main().chkYell.AccessibleName(), L"Yell ('!' Prefix)");
    EXPECT_EQ(Main().lstWedding.AccessibleName(), L"Wedding Script");
    EXPECT_EQ(program->Opened<frmEdit>()->txtEdit.AccessibleName(), L"Sentence");
  });
}

TEST_F(AccessTest, AContrastThemeWinsOverColoursOfOurOwn) {
  RunMain([&] {
    for (const bool on : {false, true}) {
      desktop.forms.hasContrastTheme = on;
      EXPECT_EQ(Main().lblDebug.ShownBackColor().has_value(), !on);
      EXPECT_EQ(Main().lblDebug.ShownForeColor().has_value(), !on);
      EXPECT_TRUE(Main().lblDebug.BackColor());
    }
  });
}

}  // namespace

}  // namespace troth
