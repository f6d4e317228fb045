// What only real files have: other programs that hold them.
#include <windows.h>

#include <thread>

#include "platform/services/FileService.h"
#include "platform/win32/Win32.h"
#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

using RealFiles = ConformanceTest;

UniqueFile Hold(const std::wstring& path) {
  return UniqueFile(
      CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
}

TEST_F(RealFiles, WritingWaitsForAnotherProgramThatHoldsTheFileForAMoment) {
  const std::wstring path = desktop->PutFile(L"held.txt", "old");
  UniqueFile held = Hold(path);
  std::thread other([&] {
    Sleep(200);
    held.reset();
  });
  EXPECT_TRUE(platform.files.Write(path, "new"));
  other.join();
  EXPECT_EQ(platform.files.Read(path), "new");
}

TEST_F(RealFiles, WritingGivesUpWithoutATraceWhereTheFileStaysHeld) {
  const std::wstring folder = desktop->PutFolder(L"folder");
  const std::wstring path = desktop->PutFile(L"folder\\held.txt", "old");
  const UniqueFile held = Hold(path);
  const std::uint32_t start = platform.time.TickCount();
  EXPECT_FALSE(platform.files.Write(path, "new"));
  EXPECT_GE(platform.time.TickCount() - start, 1000u);
  EXPECT_EQ(platform.files.Read(path), "old");
  EXPECT_EQ(platform.files.List(folder).size(), 1u);
}

}  // namespace

}  // namespace troth
