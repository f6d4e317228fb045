// Settings, the 8-bit code page, and the windows of other programs.
#include "platform/services/SettingsStore.h"
#include "platform/services/TextService.h"
#include "platform/services/WindowService.h"
#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

std::string AllBytes() {
  std::string bytes;
  for (int code = 0; code < 256; ++code) bytes += static_cast<char>(code);
  return bytes;
}

class Settings : public ConformanceTest {
 protected:
  std::optional<std::wstring> Read(const std::wstring& section, const std::wstring& key) {
    return platform.settings.Read(kConformanceApplication, section, key);
  }
  void Write(const std::wstring& section, const std::wstring& key, const std::wstring& value) {
    platform.settings.Write(kConformanceApplication, section, key, value);
  }
};

TEST_F(Settings, GiveBackWhateverTextWasWritten) {
  const std::wstring texts[] = {L"",
                                L" blanks ",
                                L"\"quoted\" & 'more'",
                                L"line\r\nnext\nlast\ttab",
                                L"\x00E9\x20AC\x4E2D",
                                L"C:\\Games\\Kestrel Moors\\%PATH%",
                                std::wstring(10000, L'x') + L"end"};
  for (const std::wstring& text : texts) {
    Write(L"Main", L"Value", text);
    EXPECT_EQ(Read(L"Main", L"Value"), text);
  }
}

TEST_F(Settings, NamesCompareWithoutRegardToCaseAndMayHoldAnyCharacter) {
  Write(L"Main Window", L"Left (twips)", L"1");
  EXPECT_EQ(Read(L"MAIN WINDOW", L"left (TWIPS)"), L"1");
  EXPECT_EQ(platform.settings.Read(L"TROTHLINEconformance", L"main window", L"Left (twips)"), L"1");
  Write(L"main window", L"LEFT (TWIPS)", L"2");
  EXPECT_EQ(Read(L"Main Window", L"Left (twips)"), L"2");
  Write(L"Main Window", L"\"quoted\" & 50% / \x00E9", L"3");
  EXPECT_EQ(Read(L"Main Window", L"\"quoted\" & 50% / \x00E9"), L"3");
  EXPECT_EQ(Read(L"Main Window", L"Left (twips)"), L"2");
}

using CodePage = ConformanceTest;

TEST_F(CodePage, BringsEveryByteBack) {
  const std::wstring text = platform.text.Decode(AllBytes());
  EXPECT_EQ(text.size(), 256u);
  EXPECT_EQ(platform.text.Encode(text), AllBytes());
  EXPECT_EQ(platform.text.Decode("\x80\xE9\x85z"), L"\x20AC\x00E9\x2026z");
  EXPECT_EQ(platform.text.Decode(""), L"");
  EXPECT_EQ(platform.text.Encode(L"a\x4E2Dz\x0416!"), "a?z?!");
}

using LocalDates = ConformanceTest;

TEST_F(LocalDates, HaveLongNames) {
  EXPECT_EQ(platform.time.LongDate({.year = 2001, .month = 6, .day = 15, .dayOfWeek = 5}),
            L"Friday, June 15, 2001");
  EXPECT_EQ(platform.time.DayName(0), L"Sunday");
  EXPECT_EQ(platform.time.DayName(6), L"Saturday");
  EXPECT_EQ(platform.time.MonthName(1), L"January");
  EXPECT_EQ(platform.time.MonthName(12), L"December");
}

TEST_F(LocalDates, FineTimersMakeShortSleepsShort) {
  const FineTimer fine(platform.time);
  const FineTimer another(platform.time);
  const std::uint32_t start = platform.time.TickCount();
  for (int i = 0; i < 20; ++i) platform.time.Sleep(5);
  const std::uint32_t passed = platform.time.TickCount() - start;
  EXPECT_GE(passed, 99u);
  EXPECT_LT(passed, 300u);
}

using ForeignWindows = ConformanceTest;

TEST_F(ForeignWindows, HearEachCharacterInOrder) {
  const int window = desktop->OpenForeignWindow(L"TrothConformanceGame");
  const WindowHandle handle = platform.windows.Find(L"TrothConformanceGame");
  std::vector<DesktopUnderTest::Heard> sent;
  for (int round = 0; round < 4; ++round) {
    for (unsigned code = 0; code < 256; ++code) {
      ASSERT_TRUE(platform.windows.PostCharacter(handle, static_cast<unsigned char>(code)));
      sent.push_back({code, 1});
    }
  }
  EXPECT_EQ(desktop->HeardBy(window), sent);
}

TEST_F(ForeignWindows, DeadOnesAreNeitherFoundNorWrittenTo) {
  const int window = desktop->OpenForeignWindow(L"TrothConformanceGame");
  const WindowHandle handle = platform.windows.Find(L"TrothConformanceGame");
  desktop->CloseForeignWindow(window);
  EXPECT_EQ(platform.windows.Find(L"TrothConformanceGame"), WindowHandle::None);
  const std::uint32_t start = platform.time.TickCount();
  EXPECT_FALSE(platform.windows.PostCharacter(handle, 'x'));
  EXPECT_FALSE(platform.windows.PostCharacter(WindowHandle::None, 'x'));
  EXPECT_LT(platform.time.TickCount() - start, 1000u) << "a dead window is not waited for";
  for (const WindowHandle gone : {handle, WindowHandle::None}) {
    EXPECT_FALSE(platform.windows.Raise(gone));
    EXPECT_FALSE(platform.windows.IsMinimised(gone));
    EXPECT_FALSE(platform.windows.OuterRect(gone));
    EXPECT_FALSE(platform.windows.ClientRect(gone));
    platform.windows.Restore(gone);
    platform.windows.SetStacking(gone, Stacking::TopMost);
  }
}

TEST_F(ForeignWindows, ComeBackFromTheTaskBarWithTheSameRectangles) {
  const int window = desktop->OpenForeignWindow(L"TrothConformanceGame");
  const WindowHandle handle = platform.windows.Find(L"TrothConformanceGame");
  desktop->LetTimePass(100);
  const auto outer = platform.windows.OuterRect(handle);
  const auto client = platform.windows.ClientRect(handle);
  ASSERT_TRUE(outer && client);
  EXPECT_LE(outer->left, client->left);
  EXPECT_LT(outer->top, client->top) << "the title bar is no part of the client area";
  EXPECT_LE(client->right, outer->right);
  EXPECT_LE(client->bottom, outer->bottom);
  EXPECT_LT(client->left, client->right);
  EXPECT_FALSE(platform.windows.IsMinimised(handle));
  desktop->MinimiseForeignWindow(window);
  EXPECT_TRUE(platform.windows.IsMinimised(handle));
  platform.windows.Restore(handle);
  // The other program takes its time.
  for (int wait = 0; wait < 50 && platform.windows.OuterRect(handle) != outer; ++wait)
    desktop->LetTimePass(100);
  EXPECT_FALSE(platform.windows.IsMinimised(handle));
  EXPECT_EQ(platform.windows.OuterRect(handle), outer);
  EXPECT_EQ(platform.windows.ClientRect(handle), client);
}

TEST_F(ForeignWindows, AreStackedWhereTheyAre) {
  const int window = desktop->OpenForeignWindow(L"TrothConformanceGame");
  const WindowHandle handle = platform.windows.Find(L"TrothConformanceGame");
  desktop->LetTimePass(100);
  const auto outer = platform.windows.OuterRect(handle);
  for (const Stacking stacking : {Stacking::TopMost, Stacking::NotTopMost}) {
    platform.windows.SetStacking(handle, stacking);
    EXPECT_EQ(desktop->IsForeignTopMost(window), stacking == Stacking::TopMost);
    EXPECT_EQ(platform.windows.OuterRect(handle), outer);
  }
}

TEST_F(ForeignWindows, AFormFindsItsPlaceBesideOneInPixels) {
  DialogForm form(platform);
  Show(form);
  desktop->OpenForeignWindow(L"TrothConformanceGame");
  Settle();
  const auto game = platform.windows.OuterRect(platform.windows.Find(L"TrothConformanceGame"));
  ASSERT_TRUE(game && game->left < game->right && game->top < game->bottom);
  const Rect place = platform.forms.FromPixels(*game);
  constexpr int kTwipsAPixel = 15;
  EXPECT_EQ(place.left, game->left * kTwipsAPixel);
  EXPECT_EQ(place.top + place.height, game->bottom * kTwipsAPixel);
  form.MoveTo({place.left, place.top + place.height});
  Settle();
  EXPECT_EQ(form.OuterBounds().left, place.left);
  EXPECT_EQ(form.OuterBounds().top, place.top + place.height);
}

TEST_F(ForeignWindows, AreRaised) {
  DeskForm form(platform);
  Show(form);
  const int first = desktop->OpenForeignWindow(L"TrothConformanceOne");
  const int second = desktop->OpenForeignWindow(L"TrothConformanceTwo");
  EXPECT_TRUE(platform.windows.Raise(platform.windows.Find(L"TrothConformanceOne")));
  EXPECT_TRUE(desktop->WasRaised(first));
  EXPECT_FALSE(desktop->WasRaised(second));
  platform.windows.Raise(platform.windows.Find(L"TrothConformanceTwo"));
  EXPECT_TRUE(desktop->WasRaised(second));
}

}  // namespace

}  // namespace troth
