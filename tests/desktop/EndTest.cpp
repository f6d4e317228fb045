// Ends of a run that the user did not ask the program for: the session ends, or the program crashes.
#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/desktop/Patience.h"
#include "tests/desktop/Stage.h"

namespace troth::desktop {
namespace {

namespace fs = std::filesystem;

using SessionTest = DesktopTest;

TEST_F(SessionTest, WhatANormalEndWritesIsWritten) {
  Troth troth;
  troth.SetChecked(L"MOptionsEmote", true);
  EXPECT_EQ(Ask(troth.Window(), WM_QUERYENDSESSION), TRUE);
  EXPECT_EQ(StoredSetting(L"Options", L"Skip Emote"), L"") << "another program may still keep the session";
  Ask(troth.Window(), WM_ENDSESSION, TRUE);
  EXPECT_EQ(StoredSetting(L"Options", L"Skip Emote"), L"1");
  EXPECT_EQ(troth.Running().ExitCode(), 0u);
}

TEST_F(SessionTest, WaitsForLearnedPausesAndAsks) {
  UseScript("one\r\ntwo\r\nthree\r\n");
  const Game game;
  Troth troth;
  troth.SetChecked(L"MOptionsLearning", true);
  troth.Speak();
  AWAIT_EQ(L"two", troth.Text(L"txtNext"));
  EXPECT_EQ(Ask(troth.Window(), WM_QUERYENDSESSION), FALSE);
  const Box box = troth.AwaitBox();
  EXPECT_EQ(box.text.find(L"Your currently loaded script has been modified"), 0u);
  PostMessageW(box.window, WM_COMMAND, IDNO, 0);
  EXPECT_EQ(troth.Running().ExitCode(), 0u);
  EXPECT_EQ(StoredSetting(L"Options", L"Skip Emote"), L"0");
}

class CrashTest : public DesktopTest {
 protected:
  CrashTest() { Forget(); }
  ~CrashTest() override { Forget(); }

  static fs::path InLocalData(const wchar_t* name) {
    return fs::path(_wgetenv(L"LOCALAPPDATA")) / "Trothline" / name;
  }
  static void Forget() {
    std::error_code ignored;
    for (const fs::path& path : {Note(), SeenNote()}) fs::remove(path, ignored);
  }
  static fs::path Note() { return InLocalData(L"crash.txt"); }
  static fs::path SeenNote() { return InLocalData(L"crash (seen).txt"); }

  // Starts a thread of the program at an address where it cannot go on, and returns the note.
  static std::string Crash(FARPROC address) {
    Troth troth;
    troth.Window();
    CloseHandle(CreateRemoteThread(troth.Running().Handle(), nullptr, 0,
                                   reinterpret_cast<LPTHREAD_START_ROUTINE>(reinterpret_cast<void*>(address)),
                                   nullptr, 0, nullptr));
    EXPECT_EQ(troth.Running().ExitCode(), 70u);
    return ReadBytes(Note().wstring());
  }
};

TEST_F(CrashTest, LeavesANoteThatTheNextStartMentionsOnce) {
  const FARPROC breakPoint = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "DbgBreakPoint");
  const std::string note = Crash(breakPoint);
  EXPECT_EQ(note.find("Trothline " + fs::path(kVersion).string() + " ended unexpectedly.\r\nWhen: 20"), 0u)
      << note;
  EXPECT_NE(note.find("What: exception 80000003\r\nWhere: ntdll.dll + "), std::string::npos) << note;
  {
    Troth next;
    const Box box = next.AwaitBox();
    EXPECT_NE(box.text.find(SeenNote().wstring()), std::wstring::npos);
    next.Answer(box);
    next.Window();
    EXPECT_TRUE(next.Quit());
  }
  EXPECT_FALSE(fs::exists(Note()));
  EXPECT_EQ(ReadBytes(SeenNote().wstring()), note);
  Troth again;
  again.Window();
  EXPECT_FALSE(again.BoxIsUp());
}

TEST_F(CrashTest, AnAddressOfNoModuleIsNotedAsItIs) {
  const std::string note = Crash(reinterpret_cast<FARPROC>(0x10));
  EXPECT_NE(note.find("What: exception C0000005\r\nWhere: no module + 10\r\n"), std::string::npos) << note;
}

}  // namespace
}  // namespace troth::desktop
