// Unloading in the middle of one's own message: each of these events ends in a handler that unloads the form,
// touches its controls and returns to code of the desktop that was still busy with them.
#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

using End = std::function<void()>;

struct SelfUnload {
  const char* event;
  std::function<void(DeskForm&, End)> wire;
  std::function<void(DesktopUnderTest&, DeskForm&)> act;
};

void PrintTo(const SelfUnload& unload, std::ostream* out) { *out << unload.event; }

const SelfUnload kSelfUnloads[] = {
    {"ButtonClicked", [](DeskForm& f, End end) { f.cmdGo.OnClick = end; },
     [](DesktopUnderTest& d, DeskForm& f) { d.Click(f.cmdGo); }},
    {"DefaultButtonByEnter", [](DeskForm& f, End end) { f.cmdGo.OnClick = end; },
     [](DesktopUnderTest& d, DeskForm& f) { d.Click(f.txtName), d.Press(kEnter); }},
    {"TextTyped", [](DeskForm& f, End end) { f.txtName.OnChange = end; },
     [](DesktopUnderTest& d, DeskForm& f) { d.Click(f.txtName), d.Type(L"x"); }},
    {"KeyPressed", [](DeskForm& f, End end) { f.txtName.OnKeyDown = [end](KeyPress&) { end(); }; },
     [](DesktopUnderTest& d, DeskForm& f) { d.Click(f.txtName), d.Press(kDown); }},
    {"KeyboardArrived", [](DeskForm& f, End end) { f.lstPlain.OnGotFocus = end; },
     [](DesktopUnderTest& d, DeskForm& f) { d.Select(f.lstPlain, 1); }},
    {"EntrySelected", [](DeskForm& f, End end) { f.lstPlain.OnClick = end; },
     [](DesktopUnderTest& d, DeskForm& f) { d.Select(f.lstPlain, 1); }},
    {"TickClicked", [](DeskForm& f, End end) { f.lstTicks.OnTick = [end](int) { end(); }; },
     [](DesktopUnderTest& d, DeskForm& f) { d.ClickTick(f.lstTicks, 1); }},
    {"EntryDoubleClicked", [](DeskForm& f, End end) { f.lstPlain.OnDoubleClick = end; },
     [](DesktopUnderTest& d, DeskForm& f) { d.DoubleClick(f.lstPlain, 1); }},
    {"MenuChosen", [](DeskForm& f, End end) { f.MFileExit.OnClick = end; },
     [](DesktopUnderTest& d, DeskForm& f) { d.Choose(f.MFileExit); }},
    {"TimerCame", [](DeskForm& f, End end) { f.tmrBeat.OnTimer = end; },
     [](DesktopUnderTest& d, DeskForm& f) { f.tmrBeat.SetEnabled(true), d.LetTimePass(300); }},
};

class FormUnload : public ConformanceTest, public testing::WithParamInterface<SelfUnload> {};

TEST_P(FormUnload, MayHappenInsideTheFormsOwnHandler) {
  auto form = std::make_unique<DeskForm>(platform);
  int calls = 0;
  bool gone = false;
  form->lstPlain.SetEntries(Entries(3));
  form->lstTicks.SetEntries(Entries(3));
  form->WhenGone([&] { form.reset(), gone = true; });
  GetParam().wire(*form, [&] {
    ++calls;
    form->Unload();
    EXPECT_FALSE(gone) << "the form went in the middle of its handler";
    form->txtName.SetText(L"last words");
    form->cmdGo.SetEnabled(false);
    form->lstPlain.SetIndex(2);
  });
  Show(*form);
  GetParam().act(*desktop, *form);
  Settle();
  EXPECT_EQ(calls, 1);
  EXPECT_TRUE(gone);
  desktop->LetTimePass(150);
  EXPECT_EQ(calls, 1);
}

INSTANTIATE_TEST_SUITE_P(, FormUnload, testing::ValuesIn(kSelfUnloads),
                         [](const auto& unload) { return std::string(unload.param.event); });

}  // namespace

}  // namespace troth
