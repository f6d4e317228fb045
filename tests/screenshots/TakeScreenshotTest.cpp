// The screen capture from the key press to the file, on a game window that is painted by a rule: each pixel
// has a colour of its own.
#include "screenshots/TakeScreenshot.h"

#include <map>
#include <set>

#include "screenshots/frmSSPreview.h"
#include "tests/speech/SpeechRig.h"

namespace troth {

namespace {

constexpr Color kYellow = Rgb(255, 255, 0);

Color Painted(PixelPoint place) {
  return 0x400000 | static_cast<Color>(place.top) << 10 | static_cast<Color>(place.left);
}

class TakeScreenshotTest : public SpeechTest {
 protected:
  void Set(const wchar_t* key, const wchar_t* value) { Store(L"Screenshot", key, value); }

  // The program without a label in its pictures, beside a game of 640 x 480 pixels.
  void StartWithGame() {
    if (Stored(L"Screenshot", L"Include Label") == L"(nothing)") Set(L"Include Label", L"0");
    Start({"One.", "Two."});
    StartGame();
    game->paint = Painted;
    TakeStory();
  }

  void Take() { user.Choose(window->MScreenScresnshot); }

  std::wstring PathOf(const std::wstring& file) const {
    return L"C:\\Games\\Trothline\\Screenshots\\" + program.ScreenshotSession + L'\\' + file;
  }
  bool HasFile(const std::wstring& file) { return files.Exists(PathOf(file)); }
  // What went into the file.
  const HeadlessBitmap& Picture() {
    EXPECT_TRUE(HasFile(L"TRLSS0000.bmp"));
    return static_cast<const HeadlessBitmap&>(*program.CapturedPicture);
  }

  // The user closes the preview after `act`.
  void WhenPreview(std::function<void(frmSSPreview&)> act) {
    desktop.forms.WhenModal(L"frmSSPreview", [this, act = std::move(act)] {
      auto& preview = *program.Opened<frmSSPreview>();
      act(preview);
      if (preview.Visible()) user.Click(preview.OKButton);
    });
  }
  bool GameIsTopMost() const { return game->stacking == Stacking::TopMost; }
  bool MainIsTopMost() { return desktop.forms.Find(*window)->IsTopMost(); }
};

TEST_F(TakeScreenshotTest, CopiesTheWholeWindowOrTheClientAreaPixelForPixel) {
  const struct {
    const wchar_t* removeBorder;
    PixelRect area;
  } cases[] = {{L"0", {0, 0, 640, 480}}, {L"1", {4, 23, 636, 476}}};
  for (const auto& c : cases) {
    Store(L"Screenshot", L"Remove Border", c.removeBorder);
    if (window) window->Unload();
    StartWithGame();
    program.ScreenshotCounter = 0;
    Take();
    const HeadlessBitmap& picture = Picture();
    ASSERT_EQ(picture.Size().width, c.area.right - c.area.left);
    ASSERT_EQ(picture.Size().height, c.area.bottom - c.area.top);
    for (int top = 0; top < picture.Size().height; ++top)
      for (int left = 0; left < picture.Size().width; ++left)
        ASSERT_EQ(picture.At({left, top}), Painted({c.area.left + left, c.area.top + top}))
            << left << ' ' << top;
    game->alive = false;
  }
}

TEST_F(TakeScreenshotTest, LabelColoursItsCornerAndNothingElse) {
  Set(L"Include Label", L"1");
  Set(L"Include Date", L"0");
  StartWithGame();
  TypeOver(window->txtGroom, L" Alan");
  TypeOver(window->txtBride, L"Beth ");
  constexpr int kWidth = 13 * HeadlessGraphics::kCellWidth;  // "Alan and Beth"
  for (const bool removeBorder : {false, true}) {
    for (int position = 0; position < 4; ++position) {
      program.Screenshots.removeBorder = removeBorder;
      program.Screenshots.labelPosition = position;
      program.ScreenshotCounter = 0;
      Take();
      const HeadlessBitmap& picture = Picture();
      const int left = position % 2 == 0 ? 5 : picture.Size().width - 10 - kWidth;
      const int top = position >= 2 ? picture.Size().height - 5 - 16 : removeBorder ? 5 : 25;
      int letters = 0;
      for (int y = 0; y < picture.Size().height; ++y)
        for (int x = 0; x < picture.Size().width; ++x) {
          const bool isInside = x >= left && x < left + kWidth && y >= top && y < top + 16;
          if (picture.At({x, y}) != kYellow) continue;
          ++letters;
          ASSERT_TRUE(isInside) << position << ": " << x << ' ' << y;
        }
      EXPECT_EQ(letters, 11 * 6 * 14) << position;
    }
  }
}

TEST_F(TakeScreenshotTest, TakesHalfASecondAndBeepsWithoutAPreview) {
  StartWithGame();
  const std::uint32_t before = desktop.time.TickCount();
  Take();
  EXPECT_EQ(desktop.time.TickCount() - before, 500u);
  const Lines story = TakeStory();
  EXPECT_EQ(std::count(story.begin(), story.end(), "beep"), 1);
  EXPECT_EQ(story.front(), kRaise);
}

TEST_F(TakeScreenshotTest, GameStandsInFrontForTheMomentOfTheCapture) {
  Set(L"Show Preview", L"1");
  StartWithGame();
  game->minimised = true;
  game->isCovered = true;
  ASSERT_TRUE(MainIsTopMost());
  bool isMainTopMost = true;
  bool isGameTopMost = false;
  game->paint = [&](PixelPoint place) {
    isMainTopMost = MainIsTopMost();
    isGameTopMost = GameIsTopMost();
    return Painted(place);
  };
  WhenPreview([&](frmSSPreview& preview) {
    EXPECT_FALSE(isMainTopMost);
    EXPECT_TRUE(isGameTopMost);
    EXPECT_FALSE(MainIsTopMost());
    EXPECT_FALSE(GameIsTopMost());
    EXPECT_EQ(preview.Options().helpContext, 9);
    EXPECT_EQ(preview.lblComment.Caption(), PathOf(L"TRLSS0000.bmp"));
    EXPECT_FALSE(HasFile(L"TRLSS0000.bmp")) << "the file comes when the preview is closed";
    TakeStory();
  });
  Take();
  EXPECT_TRUE(MainIsTopMost());
  EXPECT_FALSE(game->minimised);
  EXPECT_EQ(Picture().At({10, 10}), Painted({10, 10}));
  const Lines story = TakeStory();
  EXPECT_EQ(std::count(story.begin(), story.end(), "beep"), 0);

  Check(window->MOptionsTop, false);
  WhenPreview([](frmSSPreview&) {});
  Take();
  EXPECT_FALSE(MainIsTopMost());
}

TEST_F(TakeScreenshotTest, FirstAttemptNamesTheFolderOfTheRunAndOnlyAPictureUsesANumber) {
  StartWithGame();
  game->alive = false;
  Take();
  EXPECT_EQ(TakeStory(), Lines{"box information Trothline: Kestrel Moors is not running!"});
  Check(window->MOptionsPopup, false);
  Take();
  EXPECT_EQ(TakeStory(), Lines{});
  const std::wstring session = program.ScreenshotSession;
  EXPECT_NE(session, L"");
  EXPECT_EQ(program.ScreenshotCounter, 0);

  StartGame(kSecondGameClass);
  game->refusesRaise = true;
  Take();
  EXPECT_EQ(TakeStory().back(), "box stop Trothline: Error: cannot activate KM window");
  EXPECT_EQ(program.ScreenshotCounter, 0);
  EXPECT_EQ(files.List(L"C:\\Games\\Trothline\\Screenshots").size(), 0u);

  game->refusesRaise = false;
  Take();
  desktop.time.Advance(3600 * 1000);
  Take();
  EXPECT_EQ(program.ScreenshotSession, session);
  EXPECT_TRUE(HasFile(L"TRLSS0000.bmp"));
  EXPECT_TRUE(HasFile(L"TRLSS0001.bmp"));
}

TEST_F(TakeScreenshotTest, NumberIsUsedUpWhenTheFileCannotBeWritten) {
  StartWithGame();
  const auto numberAfter = [&](const std::function<void()>& obstacle) {
    obstacle();
    Take();
    EXPECT_EQ(TakeStory().back(), "beep") << "nothing is reported";
    return program.ScreenshotCounter;
  };
  EXPECT_EQ(numberAfter([&] { program.Screenshots.baseFileName = L"a?b"; }), 1);
  EXPECT_EQ(numberAfter([&] {
              program.Screenshots.baseFileName = L"A";
              files.LeaveRoomFor(1000);
            }),
            2);
  EXPECT_FALSE(HasFile(L"A0001.bmp"));
  EXPECT_EQ(numberAfter([&] { files.LeaveRoomFor(100'000'000); }), 3);
  EXPECT_TRUE(HasFile(L"A0002.bmp"));
}

TEST_F(TakeScreenshotTest, GameThatClosesDuringTheCaptureLeavesNoFileAndTheMainWindowInPlace) {
  StartWithGame();
  // In the pause after the raise, after the restore, and while it is in front.
  for (const int ms : {50, 150, 350}) {
    game->alive = true;
    desktop.time.After(ms, [&] { game->alive = false; });
    Take();
    EXPECT_TRUE(MainIsTopMost());
    desktop.time.Advance(1000);
  }
  EXPECT_EQ(program.ScreenshotCounter, 3);
  EXPECT_FALSE(HasFile(L"TRLSS0000.bmp"));
}

TEST_F(TakeScreenshotTest, HotkeyDuringThePreviewShowsTheNewerPicture) {
  Set(L"Show Preview", L"1");
  Set(L"Hotkey Enabled", L"1");
  StartWithGame();
  WhenPreview([&](frmSSPreview& preview) {
    user.PressHotkey(kF12Key);
    EXPECT_EQ(preview.lblComment.Caption(), PathOf(L"TRLSS0001.bmp"));
    EXPECT_TRUE(HasFile(L"TRLSS0001.bmp"));
    EXPECT_FALSE(MainIsTopMost()) << "not before the preview is closed";
  });
  Take();
  EXPECT_TRUE(HasFile(L"TRLSS0000.bmp"));
  EXPECT_TRUE(MainIsTopMost());
}

// --- The preview. ---

TEST_F(TakeScreenshotTest, PreviewTakesTheSizeOfItsPicture) {
  Set(L"Show Preview", L"1");
  StartWithGame();
  for (const PixelSize size : {PixelSize{300, 200}, PixelSize{640, 480}, PixelSize{1100, 200}}) {
    game->place = {0, 0, size.width, size.height};
    WhenPreview([&](frmSSPreview& preview) {
      EXPECT_EQ(preview.picScreenShot.Shown(), program.CapturedPicture.get());
      const Rect picture = preview.picScreenShot.Bounds();
      EXPECT_EQ(picture, (Rect{120, 600, size.width * 15, size.height * 15}));
      const Rect outer = preview.OuterBounds();
      EXPECT_EQ(outer.width - picture.width, 90 + 240) << "as wide around the picture as in the design";
      EXPECT_GE(outer.left, 0) << "Close can be reached";
      EXPECT_GE(outer.top, 0);
    });
    Take();
  }
}

TEST_F(TakeScreenshotTest, ClickAnywhereInThePreviewClosesIt) {
  Set(L"Show Preview", L"1");
  StartWithGame();
  const std::vector<std::function<void(frmSSPreview&)>> ways = {
      [&](frmSSPreview& preview) { user.Click(preview.OKButton); },
      [&](frmSSPreview& preview) { user.Click(preview.lblComment); },
      [&](frmSSPreview& preview) { user.Click(preview.picScreenShot); },
      [&](frmSSPreview& preview) { user.Click(preview); },
      [&](frmSSPreview&) { user.Press(kEscapeKey); },
      [&](frmSSPreview&) { user.Press(kEnterKey); },
  };
  for (const auto& way : ways) {
    WhenPreview([&](frmSSPreview& preview) {
      way(preview);
      EXPECT_FALSE(program.Opened<frmSSPreview>() && preview.Visible());
    });
    Take();
  }
  EXPECT_TRUE(HasFile(L"TRLSS0005.bmp"));
}

}  // namespace
}  // namespace troth
