// The program as a thing of the system: its file, its names for other processes, its menu and its end.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/desktop/Patience.h"
#include "tests/desktop/Stage.h"

namespace troth::desktop {
namespace {

class ProgramTest : public DesktopTest {};

using UniqueModule = Unique<HMODULE, FreeLibrary>;

std::string ResourceOf(const std::wstring& program, const wchar_t* type) {
  const UniqueModule module(LoadLibraryExW(program.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE));
  const HRSRC found = FindResourceW(module.get(), MAKEINTRESOURCEW(1), type);
  if (!found) return {};
  const HGLOBAL loaded = LoadResource(module.get(), found);
  return {static_cast<const char*>(LockResource(loaded)), SizeofResource(module.get(), found)};
}

// A text as a version record holds it.
std::string Wide(const std::wstring& text) {
  return {reinterpret_cast<const char*>(text.c_str()), text.size() * sizeof(wchar_t)};
}

TEST_F(ProgramTest, CarriesItsVersionRecord) {
  const std::string record = ResourceOf(ProgramPath(L"Troth.exe"), RT_VERSION);
  ASSERT_GT(record.size(), sizeof(VS_FIXEDFILEINFO) + 40);
  const auto* fixed = reinterpret_cast<const VS_FIXEDFILEINFO*>(record.data() + 40);
  EXPECT_EQ(fixed->dwSignature, 0xFEEF04BDu);
  EXPECT_EQ(fixed->dwFileVersionMS, static_cast<DWORD>(MAKELONG(TROTH_MINOR, TROTH_MAJOR)));
  for (const std::wstring& text :
       {std::wstring(L"Troth.exe"), std::wstring(L"Trothline"), std::wstring(kVersion)})
    EXPECT_NE(record.find(Wide(text)), std::string::npos) << testing::PrintToString(text);
}

TEST_F(ProgramTest, AsksForModernControlsSharpPixelsAndNoRights) {
  for (const wchar_t* program : {L"Troth.exe", L"KestrelMoors.exe"}) {
    const std::string manifest = ResourceOf(ProgramPath(program), RT_MANIFEST);
    for (const char* wish : {"Microsoft.Windows.Common-Controls", "PerMonitorV2", "asInvoker"})
      EXPECT_NE(manifest.find(wish), std::string::npos) << wish;
    EXPECT_EQ(manifest.find("activeCodePage"), std::string::npos) << "files and game speak the 8-bit page";
  }
}

TEST_F(ProgramTest, IsOneHardenedFileForItself) {
  for (const wchar_t* program : {L"Troth.exe", L"KestrelMoors.exe"}) {
    const std::string file = ReadBytes(ProgramPath(program));
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(file.data());
    const auto* pe =
        reinterpret_cast<const IMAGE_NT_HEADERS64*>(file.data() + static_cast<std::ptrdiff_t>(dos->e_lfanew));
    ASSERT_EQ(pe->Signature, static_cast<DWORD>(IMAGE_NT_SIGNATURE));
    EXPECT_EQ(pe->FileHeader.Machine, IMAGE_FILE_MACHINE_AMD64);
    EXPECT_EQ(pe->OptionalHeader.Subsystem, IMAGE_SUBSYSTEM_WINDOWS_GUI);
    constexpr int kHardening = IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE | IMAGE_DLLCHARACTERISTICS_NX_COMPAT |
                               IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA;
    EXPECT_EQ(pe->OptionalHeader.DllCharacteristics & kHardening, kHardening);
    for (const char* library : {"libstdc++", "libgcc_s", "libwinpthread", "libssp"})
      EXPECT_EQ(file.find(std::string(library) + "-"), std::string::npos) << library << " must be inside";
  }
}

TEST_F(ProgramTest, NamesItsFormAndEveryControlOnIt) {
  Troth troth;
  EXPECT_EQ(TextOf(troth.Window()), L"Trothline");
  std::vector<std::wstring> names;
  for (const HWND control : ControlsOn(troth.Window())) names.push_back(NameOf(control));
  for (const wchar_t* wanted :
       {L"lblGroom", L"txtGroom", L"Label2", L"txtBride", L"Label3", L"txtFile", L"cmdBrowse", L"Label1",
        L"txtNext", L"cmdSpeak", L"chkYell", L"lblPrefix", L"txtPrefix", L"lblWedding", L"lstWedding",
        L"lblUnicode", L"lblTranslation", L"lblDebug"})
    EXPECT_EQ(std::count(names.begin(), names.end(), wanted), 1) << testing::PrintToString(wanted);
  EXPECT_EQ(std::count(names.begin(), names.end(), std::wstring()), 0) << "a control has no name";
}

TEST_F(ProgramTest, EndsWellHoweverItIsClosed) {
  constexpr void (*kWays[])(Troth&) = {
      [](Troth& troth) { PostMessageW(troth.Window(), WM_CLOSE, 0, 0); },
      [](Troth& troth) { PostMessageW(troth.Window(), WM_SYSCOMMAND, SC_CLOSE, 0); },
      [](Troth& troth) { troth.Hands().Press(VK_F4, kWithAlt); },
      [](Troth& troth) { troth.Choose(L"MFileQuit"); },
  };
  for (const auto close : kWays) {
    UseScript("hello\r\n");
    Troth troth;
    troth.Window();
    close(troth);
    EXPECT_EQ(troth.Running().ExitCode(), 0u) << "way " << std::find(kWays, std::end(kWays), close) - kWays;
  }
}

// The wait behind the leading Enter serves messages, and one of them may take the window down.
TEST_F(ProgramTest, EndsWellWhenItIsClosedInTheMiddleOfASentence) {
  UseScript("hello\r\nworld\r\n");
  Game game;
  Troth troth;
  troth.Window();
  troth.Speak();
  AWAIT(!game.HeardSoFar().bytes.empty());
  PostMessageW(troth.Window(), WM_CLOSE, 0, 0);
  EXPECT_EQ(troth.Running().ExitCode(), 0u);
}

}  // namespace
}  // namespace troth::desktop
