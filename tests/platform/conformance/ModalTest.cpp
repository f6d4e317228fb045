// Modal windows and message boxes: whom they block, what goes on behind them, and how they end.
#include "platform/forms/InputBox.h"
#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

using Modal = ConformanceTest;

TEST_F(Modal, ReturnsToItsCallerWhenItIsHiddenUnloadedOrClosed) {
  struct Ending {
    const char* name;
    std::function<void(DialogForm&)> end;
    bool staysLoaded;
  };
  const Ending endings[] = {
      {"hidden", [](DialogForm& dialog) { dialog.Hide(); }, true},
      {"unloaded", [](DialogForm& dialog) { dialog.Unload(); }, false},
      {"button", [this](DialogForm& dialog) { desktop->Click(dialog.cmdOk); }, false},
      {"closed by the user", [this](DialogForm& dialog) { desktop->CloseWindow(dialog); }, false},
      {"Enter", [this](DialogForm&) { desktop->Press(kEnter); }, false},
  };
  DeskForm desk(platform);
  Show(desk);
  for (const Ending& ending : endings) {
    SCOPED_TRACE(ending.name);
    DialogForm dialog(platform);
    desk.cmdGo.OnClick = [&] {
      desk.Write("before");
      dialog.ShowModal();
      desk.Write("after");
    };
    desktop->WhenModal(dialog, [&] {
      desk.Write("up");
      ending.end(dialog);
    });
    desk.TakeHeard();
    desktop->Click(desk.cmdGo);
    EXPECT_EQ(desk.TakeHeard(), (Lines{"before", "up", "after"}));
    EXPECT_EQ(dialog.IsLoaded(), ending.staysLoaded);
    EXPECT_FALSE(desktop->ShownVisible(dialog));
    EXPECT_TRUE(desktop->TakesInput(desk));
  }
}

TEST_F(Modal, GivesTheKeyboardBackToTheControlThatHadIt) {
  DeskForm desk(platform);
  DialogForm dialog(platform);
  desk.MFileOpen.OnClick = [&] { dialog.ShowModal(); };
  Show(desk);
  desktop->Click(desk.txtFixed);
  desk.WatchFocus();
  desk.TakeHeard();
  desktop->WhenModal(dialog, [&] {
    EXPECT_TRUE(desktop->HasKeyboard(dialog.txtAnswer));
    dialog.Unload();
  });
  desktop->Choose(desk.MFileOpen);
  Settle();
  EXPECT_TRUE(desktop->IsActive(desk));
  EXPECT_TRUE(desktop->HasKeyboard(desk.txtFixed));
  EXPECT_EQ(desk.TakeHeard(), (Lines{"-txtFixed", "+txtFixed"}));
}

TEST_F(Modal, NestsAndEndsFromTheInsideOut) {
  DeskForm desk(platform);
  DialogForm outer(platform, L"frmOuter");
  DialogForm inner(platform, L"frmInner");
  Show(desk);
  outer.cmdMore.OnClick = [&] {
    inner.ShowModal();
    outer.Write("inner is gone");
  };
  desktop->WhenModal(inner, [&] {
    EXPECT_FALSE(desktop->TakesInput(outer));
    EXPECT_FALSE(desktop->TakesInput(desk));
    desktop->Click(inner.cmdOk);
  });
  desktop->WhenModal(outer, [&] {
    desktop->Click(outer.cmdMore);
    Settle();
    EXPECT_TRUE(outer.IsLoaded());
    EXPECT_TRUE(desktop->TakesInput(outer));
    EXPECT_TRUE(desktop->IsActive(outer));
    EXPECT_FALSE(desktop->TakesInput(desk));
    desktop->Click(outer.cmdOk);
  });
  outer.ShowModal();
  Settle();
  EXPECT_EQ(outer.TakeHeard(), (Lines{"load", "inner is gone", "query by program", "unload"}));
  EXPECT_TRUE(desktop->TakesInput(desk));
  EXPECT_TRUE(desktop->IsActive(desk));
}

// The handler that shows the modal form still runs on the form that goes.
TEST_F(Modal, CallerMayBeUnloadedByATimerMeanwhile) {
  auto desk = std::make_unique<DeskForm>(platform);
  DialogForm dialog(platform);
  bool gone = false;
  desk->WhenGone([&] { desk.reset(), gone = true; });
  desk->tmrBeat.OnTimer = [&] { desk->Unload(); };
  desk->cmdGo.OnClick = [&] {
    desk->tmrBeat.SetEnabled(true);
    dialog.ShowModal();
    EXPECT_FALSE(gone);
    EXPECT_FALSE(desk->IsLoaded());
    desk->txtName.SetText(L"last words");
  };
  Show(*desk);
  desktop->WhenModal(dialog, [&] {
    desktop->LetTimePass(300);
    EXPECT_FALSE(desk->IsLoaded());
    EXPECT_TRUE(desktop->ShownVisible(dialog));
    desktop->Click(dialog.cmdOk);
  });
  desktop->Click(desk->cmdGo);
  EXPECT_TRUE(gone);
}

using MessageBoxes = ConformanceTest;

TEST_F(MessageBoxes, ReturnTheAnswerAndShowWhatWasAsked) {
  struct Row {
    BoxButtons buttons;
    BoxIcon icon;
    BoxAnswer answer;
  };
  const Row rows[] = {
      {BoxButtons::Ok, BoxIcon::None, BoxAnswer::Ok},
      {BoxButtons::OkCancel, BoxIcon::None, BoxAnswer::Ok},
      {BoxButtons::OkCancel, BoxIcon::None, BoxAnswer::Cancel},
      {BoxButtons::YesNo, BoxIcon::Question, BoxAnswer::Yes},
      {BoxButtons::YesNo, BoxIcon::Warning, BoxAnswer::No},
      {BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::Yes},
      {BoxButtons::YesNoCancel, BoxIcon::Information, BoxAnswer::No},
      {BoxButtons::YesNoCancel, BoxIcon::Stop, BoxAnswer::Cancel},
  };
  DeskForm desk(platform);
  Show(desk);
  const std::wstring text = L"Speak \"vows\" & go on?\n\nThere are 12 rows.";
  for (const Row& row : rows) {
    desktop->NextBox(row.answer);
    EXPECT_EQ(platform.dialogs.ShowMessage({text, L"Trothline", row.icon, row.buttons}), row.answer);
    EXPECT_EQ(desktop->BoxesSeen().back().text, text);
    EXPECT_EQ(desktop->BoxesSeen().back().title, L"Trothline");
  }
  EXPECT_EQ(desktop->BoxesSeen().size(), std::size(rows));
}

TEST_F(MessageBoxes, LetTimersAndOtherHandlersRunInside) {
  DeskForm desk(platform);
  int beats = 0;
  desk.tmrBeat.SetIntervalMs(20);
  desk.tmrBeat.OnTimer = [&] { ++beats; };
  desk.cmdGo.OnClick = [&] {
    platform.dialogs.ShowMessage({.text = L"End of script", .title = L"Trothline"});
    desk.Write("answered");
  };
  Show(desk);
  desk.TakeHeard();
  desktop->NextBox(BoxAnswer::Ok, [&] {
    desk.tmrBeat.SetEnabled(true);
    desktop->LetTimePass(200);
    desk.tmrBeat.SetEnabled(false);
    desk.Write("still up");
  });
  desktop->Click(desk.cmdGo);
  EXPECT_GE(beats, 3);
  EXPECT_EQ(desk.TakeHeard(), (Lines{"still up", "answered"}));
  EXPECT_TRUE(desktop->TakesInput(desk));
}

using Questions = ConformanceTest;

TEST_F(Questions, ShowTheirWordsAndSelectThePreset) {
  DeskForm desk(platform);
  Show(desk);
  const TextRequest request{.prompt = L"A new value for A&B", .title = L"Trothline", .preset = L"gold"};
  for (const int key : {kEnter, kEscape}) {
    InputBox box(platform.forms, request);
    desktop->WhenModal(box, [&] {
      EXPECT_EQ(desktop->ShownCaption(box), request.title);
      EXPECT_EQ(desktop->ShownCaption(box.lblPrompt), request.prompt);
      EXPECT_EQ(desktop->ShownText(box.txtAnswer), request.preset);
      EXPECT_TRUE(desktop->HasKeyboard(box.txtAnswer));
      EXPECT_FALSE(desktop->TakesInput(desk));
      desktop->Type(L"oak");
      desktop->Press(key);
    });
    box.ShowModal();
    EXPECT_EQ(box.txtAnswer.Text(), L"oak") << "what is typed replaces the preset";
  }
}

TEST_F(Questions, ReturnTheLineAsItWasLeftOrNothing) {
  const struct {
    const wchar_t* preset;
    std::optional<std::wstring> answer;
  } cases[] = {{L"", L"ring"}, {L"Newvar", L" Ash & Oak "}, {L"Newvar", L""}, {L"gold", std::nullopt}};
  DeskForm desk(platform);
  Show(desk);
  desktop->Click(desk.txtFixed);
  for (const auto& each : cases) {
    desktop->NextQuestion(each.answer);
    EXPECT_EQ(platform.dialogs.AskText({L"A new value for RING", L"Trothline", each.preset}), each.answer);
    Settle();
    EXPECT_TRUE(desktop->TakesInput(desk));
    EXPECT_TRUE(desktop->HasKeyboard(desk.txtFixed));
  }
  DialogForm dialog(platform);
  desktop->WhenModal(dialog, [&] {
    desktop->NextQuestion(L"inner");
    EXPECT_EQ(platform.dialogs.AskText({L"Name", L"Trothline", L""}), L"inner");
    Settle();
    EXPECT_TRUE(desktop->IsActive(dialog));
    EXPECT_FALSE(desktop->TakesInput(desk));
    dialog.Unload();
  });
  dialog.ShowModal();
}

}  // namespace

}  // namespace troth
