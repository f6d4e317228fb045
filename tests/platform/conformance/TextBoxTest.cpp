// Text boxes: when OnChange comes, and that box and property never differ.
#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

class TextBoxes : public ConformanceTest {
 protected:
  DeskForm form{platform};

  void SetUp() override {
    form.txtName.OnChange = [this] { form.Write("now " + Narrow(form.txtName.Text())); };
    Show(form);
    desktop->Click(form.txtName);
    form.TakeHeard();
  }
  void ExpectText(const std::wstring& text) {
    EXPECT_EQ(form.txtName.Text(), text);
    EXPECT_EQ(desktop->ShownText(form.txtName), text);
  }
};

TEST_F(TextBoxes, RaiseChangeForEachRealChangeByUserOrProgram) {
  desktop->Type(L"ab");
  EXPECT_EQ(form.TakeHeard(), (Lines{"now a", "now ab"}));
  form.txtName.SetText(L"ab");
  EXPECT_EQ(form.TakeHeard(), Lines{});
  form.txtName.SetText(L"AB");
  EXPECT_EQ(form.TakeHeard(), Lines{"now AB"});
  form.txtName.SetText(L"");
  EXPECT_EQ(form.TakeHeard(), Lines{"now "});
  form.txtName.SetText(L"");
  desktop->Press(kBackspace);
  EXPECT_EQ(form.TakeHeard(), Lines{});
  ExpectText(L"");
}

TEST_F(TextBoxes, ShowAnyTextThatTheProgramSetsAndKeepItAsItIs) {
  const std::wstring texts[] = {L"&File && more", std::wstring(2000, L'x'), L"\x00E9\x20AC\x4E2D",
                                L"  blanks  ", L"tab\there"};
  for (const std::wstring& text : texts) {
    form.TakeHeard();
    form.txtName.SetText(text);
    EXPECT_EQ(form.TakeHeard().size(), 1u);
    ExpectText(text);
  }
}

TEST_F(TextBoxes, NextCharacterGoesWhereTheProgramPutTheCaret) {
  const struct {
    std::function<void()> put;
    const wchar_t* becomes;
  } cases[] = {{[&] { form.txtName.SelectAll(); }, L"x"},
               {[&] { form.txtName.PutCaretAtEnd(); }, L"oldx"},
               {[&] { form.txtName.SelectAll(), form.txtName.PutCaretAtEnd(); }, L"oldx"},
               {[&] { form.txtName.SelectAll(), desktop->Click(form.txtName); }, L"oldx"},
               {[&] { form.txtName.SelectAll(), desktop->Press(kBackspace); }, L"x"},
               {[&] { form.cmdGo.SetFocus(), form.txtName.SelectAll(), form.txtName.SetFocus(); }, L"x"}};
  for (const auto& each : cases) {
    SCOPED_TRACE(&each - cases);
    form.txtName.SetText(L"old");
    form.TakeHeard();
    each.put();
    desktop->Type(L"x");
    ExpectText(each.becomes);
  }
  form.Unload();
  form.txtName.SelectAll();
  Show(form);
  desktop->Type(L"y");
  ExpectText(L"y");
}

TEST_F(TextBoxes, ReadOnlyOneIsReachedButChangedByTheProgramAlone) {
  desktop->Click(form.txtFixed);
  EXPECT_TRUE(desktop->HasKeyboard(form.txtFixed));
  desktop->Press(kBackspace);
  EXPECT_EQ(form.txtFixed.Text(), L"fixed");
  EXPECT_EQ(desktop->ShownText(form.txtFixed), L"fixed");
  form.txtFixed.OnChange = form.Writer("change");
  form.txtFixed.SetText(L"other");
  EXPECT_EQ(desktop->ShownText(form.txtFixed), L"other");
  EXPECT_EQ(form.TakeHeard(), Lines{"change"});
}

}  // namespace

}  // namespace troth
