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

TEST_F(Settings, AreMissingUntilWritten) {
  EXPECT_EQ(Read(L"Main", L"Never"), std::nullopt);
  EXPECT_EQ(Read(L"NoSection", L"Never"), std::nullopt);
  EXPECT_EQ(platform.settings.Read(L"TrothlineConformanceNone", L"Main", L"Never"), std::nullopt);
  Write(L"Main", L"Other", L"1");
  EXPECT_EQ(Read(L"Main", L"Never"), std::nullopt);
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

TEST_F(Settings, SectionsKeepTheirKeysApart) {
  Write(L"One", L"Key", L"1");
  Write(L"Two", L"Key", L"2");
  EXPECT_EQ(Read(L"One", L"Key"), L"1");
  EXPECT_EQ(Read(L"Two", L"Key"), L"2");
}

using CodePage = ConformanceTest;

TEST_F(CodePage, BringsEveryByteBack) {
  const std::wstring text = platform.text.Decode(AllBytes());
  EXPECT_EQ(text.size(), 256u);
  EXPECT_EQ(platform.text.Encode(text), AllBytes());
  EXPECT_EQ(platform.text.Decode("\x80\xE9\x85z"), L"\x20AC\x00E9\x2026z");
  EXPECT_EQ(platform.text.Decode(""), L"");
  EXPECT_EQ(platform.text.Encode(L""), "");
}

TEST_F(CodePage, WritesWhatItLacksAsAQuestionMark) {
  EXPECT_EQ(platform.text.Encode(L"a\x4E2Dz\x0416!"), "a?z?!");
}

using ForeignWindows = ConformanceTest;

TEST_F(ForeignWindows, AreFoundByTheirClassAlone) {
  EXPECT_EQ(platform.windows.Find(L"TrothConformanceNone"), WindowHandle::None);
  desktop->OpenForeignWindow(L"TrothConformanceOne");
  EXPECT_NE(platform.windows.Find(L"TrothConformanceOne"), WindowHandle::None);
  EXPECT_EQ(platform.windows.Find(L"TrothConformanceTwo"), WindowHandle::None);
  EXPECT_EQ(platform.windows.Find(L"TrothConformance"), WindowHandle::None);
}

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
  platform.windows.Raise(handle);
  platform.windows.Raise(WindowHandle::None);
  EXPECT_FALSE(platform.windows.OuterRect(handle));
  EXPECT_FALSE(platform.windows.OuterRect(WindowHandle::None));
}

TEST_F(ForeignWindows, AFormFindsItsPlaceBesideOneInPixels) {
  DialogForm form(platform);
  Show(form);
  desktop->OpenForeignWindow(L"TrothConformanceGame");
  Settle();
  const auto game = platform.windows.OuterRect(platform.windows.Find(L"TrothConformanceGame"));
  ASSERT_TRUE(game && game->left < game->right && game->top < game->bottom);
  form.MoveToPixel({game->left, game->bottom});
  Settle();
  constexpr int kTwipsAPixel = 15;
  EXPECT_EQ(form.OuterBounds().left, game->left * kTwipsAPixel);
  EXPECT_EQ(form.OuterBounds().top, game->bottom * kTwipsAPixel);
}

TEST_F(ForeignWindows, AreRaised) {
  DeskForm form(platform);
  Show(form);
  const int first = desktop->OpenForeignWindow(L"TrothConformanceOne");
  const int second = desktop->OpenForeignWindow(L"TrothConformanceTwo");
  platform.windows.Raise(platform.windows.Find(L"TrothConformanceOne"));
  EXPECT_TRUE(desktop->WasRaised(first));
  EXPECT_FALSE(desktop->WasRaised(second));
  platform.windows.Raise(platform.windows.Find(L"TrothConformanceTwo"));
  EXPECT_TRUE(desktop->WasRaised(second));
}

}  // namespace

}  // namespace troth
