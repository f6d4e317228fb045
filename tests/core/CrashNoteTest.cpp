#include "core/CrashNote.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "platform/headless/HeadlessDesktop.h"

namespace troth {

namespace {

TEST(CrashNote, SaysWhenWhatAndWhere) {
  const CrashDetails details{.year = 2026,
                             .month = 11,
                             .day = 3,
                             .hour = 7,
                             .minute = 5,
                             .second = 9,
                             .exceptionCode = 0xC0000005,
                             .version = "3.1.0",
                             .module = "ntdll.dll",
                             .offset = 0x7FFE0001A2B3};
  const std::string whole =
      "Trothline 3.1.0 ended unexpectedly.\r\nWhen: 2026-11-03 07:05:09 UTC\r\nWhat: exception C0000005\r\n"
      "Where: ntdll.dll + 7FFE0001A2B3\r\n";
  std::array<char, 512> buffer;
  for (const std::size_t room : {buffer.size(), whole.size(), std::size_t{20}, std::size_t{0}}) {
    const std::size_t length = ComposeCrashNote({buffer.data(), room}, details);
    EXPECT_EQ(std::string(buffer.data(), length), whole.substr(0, room));
  }
  const std::size_t length = ComposeCrashNote(buffer, {.offset = 0});
  EXPECT_TRUE(std::string(buffer.data(), length).ends_with("Where: no module + 0\r\n"));
}

TEST(CrashNote, IsMentionedOnceAndKept) {
  HeadlessDesktop desktop;
  const std::wstring folder = desktop.files.LocalDataFolder();
  MentionCrash(desktop.platform);
  EXPECT_TRUE(desktop.dialogs.Shown().empty());
  for (const char* note : {"first", "second"}) {
    desktop.files.Put(folder + kCrashNote, note);
    MentionCrash(desktop.platform);
    MentionCrash(desktop.platform);
    EXPECT_EQ(desktop.files.Read(folder + kSeenCrashNote), note);
  }
  ASSERT_EQ(desktop.dialogs.Shown().size(), 2u);
  EXPECT_NE(desktop.dialogs.Shown()[0].text.find(folder + kSeenCrashNote), std::wstring::npos);
  desktop.files.Put(folder + kCrashNote, "third");
  desktop.files.RefuseWriting(folder + kCrashNote);
  MentionCrash(desktop.platform);
  EXPECT_EQ(desktop.dialogs.Shown().size(), 2u) << "it could not be marked, and would come back for ever";
}

}  // namespace

}  // namespace troth
