// Files and folders: what is found, read, written and refused, and that no file of the user's is lost.
#include "platform/services/FileService.h"

#include <algorithm>

#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

std::string AllBytes() {
  std::string bytes;
  for (int code = 0; code < 256; ++code) bytes += static_cast<char>(code);
  return bytes;
}

class Files : public ConformanceTest {
 protected:
  FileService& files = platform.files;
  const std::wstring folder = desktop->PutFolder(L"folder");

  std::wstring Put(const std::wstring& name, const std::string& bytes) {
    return desktop->PutFile(L"folder\\" + name, bytes);
  }
  std::string Content(const std::wstring& path) { return files.Read(path).value_or("(nothing)"); }

  // The names in the folder, a folder's with a separator at its end, sorted.
  std::vector<std::wstring> Listed(const std::wstring& path) {
    std::vector<std::wstring> names;
    for (const FileEntry& entry : files.List(path))
      names.push_back(entry.name + (entry.isFolder ? L"\\" : L""));
    std::sort(names.begin(), names.end());
    return names;
  }
};

TEST_F(Files, ReadToTheirLastByte) {
  const std::string contents[] = {
      "", "x", "two\r\nlines\n", AllBytes(), AllBytes() + AllBytes(), std::string(3000000, 'x') + "end"};
  for (const std::string& bytes : contents) {
    const std::wstring file = desktop->PutFile(L"some file.txt", bytes);
    EXPECT_TRUE(platform.files.Read(file) == bytes) << bytes.size() << " bytes";
  }
}

TEST_F(Files, NamesCompareWithoutRegardToCaseAndMayLieOutsideTheCodePage) {
  desktop->PutFile(L"Script.TXT", "a");
  EXPECT_TRUE(platform.files.Exists(desktop->PutFile(L"script.txt", "b")));
  const std::wstring file = desktop->PutFile(L"\x00E9\x4E2D.txt", "c");
  EXPECT_TRUE(platform.files.Exists(file));
  EXPECT_EQ(platform.files.Read(file), "c");
}

TEST_F(Files, FoldersAreMadeWhereTheFolderAroundIsThere) {
  const std::wstring file = desktop->PutFile(L"there.txt", "x");
  const std::pair<std::wstring, bool> cases[] = {{folder, true},
                                                 {folder + L"\\new", true},
                                                 {folder + L"\\new\\below", true},
                                                 {folder + L"\\none\\below", false},
                                                 {file, false},
                                                 {file + L"\\below", false},
                                                 {L"", false}};
  for (const auto& [path, made] : cases)
    EXPECT_EQ(platform.files.CreateFolder(path), made) << testing::PrintToString(path);
  EXPECT_TRUE(platform.files.Write(folder + L"\\new\\kept.txt", "y"));
  EXPECT_TRUE(platform.files.CreateFolder(folder + L"\\new"));
  EXPECT_EQ(platform.files.Read(folder + L"\\new\\kept.txt"), "y") << "what lies in it stays";
  EXPECT_EQ(platform.files.Read(file), "x");
}

TEST_F(Files, AreListedWithTheirFolders) {
  using Names = std::vector<std::wstring>;
  EXPECT_EQ(Listed(folder), Names{});
  Put(L"b.txt", "x");
  desktop->MakeReadOnly(Put(L"a \x00E9.scr", "x"));
  desktop->PutFolder(L"folder\\Roman.old");
  Put(L"Roman.old\\inside.txt", "x");
  EXPECT_EQ(Listed(folder), (Names{L"Roman.old\\", L"a \x00E9.scr", L"b.txt"}));
  EXPECT_EQ(Listed(folder + L"\\Roman.old"), Names{L"inside.txt"});
  EXPECT_EQ(Listed(folder + L"\\none"), Names{});
  EXPECT_EQ(Listed(folder + L"\\b.txt"), Names{});
}

TEST_F(Files, ThatAreMissingOrFoldersAreNone) {
  const std::wstring file = Put(L"five.txt", "12345");
  EXPECT_TRUE(files.Exists(file));
  EXPECT_EQ(files.Size(file), 5u);
  for (const std::wstring& path : {folder, folder + L"\\none.txt", file + L"x", std::wstring()}) {
    EXPECT_FALSE(files.Exists(path));
    EXPECT_EQ(files.Read(path), std::nullopt);
    EXPECT_EQ(files.Size(path), std::nullopt);
  }
}

// What cannot be the path of a new file, for whatever makes one.
TEST_F(Files, AreNotMadeWhereNoneCanBe) {
  const std::wstring source = Put(L"source.txt", "source");
  const std::wstring readOnly = Put(L"fixed.txt", "old");
  desktop->MakeReadOnly(readOnly);
  desktop->PutFolder(L"folder\\below");
  const struct {
    std::wstring path;
    CopyOutcome outcome;
  } cases[] = {{folder + L"\\none\\a.txt", CopyOutcome::PathNotFound},
               {source + L"\\a.txt", CopyOutcome::PathNotFound},
               {folder + L"\\why?.txt", CopyOutcome::PathNotFound},
               {folder + L"\\a:b.txt", CopyOutcome::PathNotFound},
               {folder + L"\\a/b.txt", CopyOutcome::PathNotFound},
               {folder + L"\\a\tb.txt", CopyOutcome::PathNotFound},
               {folder + L"\\below", CopyOutcome::Failed},
               {readOnly, CopyOutcome::Failed}};
  const auto before = Listed(folder);
  for (const auto& each : cases) {
    SCOPED_TRACE(testing::PrintToString(each.path));
    EXPECT_EQ(files.Copy(source, each.path, IfExists::Replace), each.outcome);
    EXPECT_FALSE(files.Write(each.path, "new"));
    EXPECT_EQ(files.Create(each.path), nullptr);
    EXPECT_EQ(Listed(folder), before);
  }
  EXPECT_EQ(Content(readOnly), "old");
  EXPECT_FALSE(files.Delete(readOnly));
}

TEST_F(Files, CopyReplacesOnlyWhenAsked) {
  const std::wstring source = Put(L"source.txt", AllBytes() + std::string(200000, 'x'));
  const std::wstring target = folder + L"\\target.txt";
  EXPECT_EQ(files.Copy(folder + L"\\none.txt", target), CopyOutcome::SourceMissing);
  EXPECT_EQ(files.Copy(folder, target), CopyOutcome::Failed);
  EXPECT_EQ(files.Copy(source, target), CopyOutcome::Done);
  EXPECT_TRUE(files.Read(target) == files.Read(source));
  Put(L"source.txt", "newer");
  EXPECT_EQ(files.Copy(source, target), CopyOutcome::Failed);
  EXPECT_TRUE(files.Read(target) != files.Read(source));
  EXPECT_EQ(files.Copy(source, target, IfExists::Replace), CopyOutcome::Done);
  EXPECT_EQ(Content(target), "newer");
}

TEST_F(Files, OfTheUserBesideATargetStayUntouched) {
  const std::vector<std::wstring> names{L"side.txt",     L"side.txt.new", L"side.txt.tmp",
                                        L"side.txt.bak", L"side.new",     L"side.tmp"};
  for (const std::wstring& name : names) Put(name, Narrow(name));
  EXPECT_TRUE(files.Write(folder + L"\\side.txt", "written"));
  EXPECT_EQ(files.Copy(folder + L"\\side.tmp", folder + L"\\copy.txt"), CopyOutcome::Done);
  for (const std::wstring& name : names) {
    const bool isTarget = name == L"side.txt";
    EXPECT_EQ(Content(folder + L'\\' + name), isTarget ? "written" : Narrow(name));
  }
  EXPECT_EQ(files.List(folder).size(), names.size() + 1) << "a temporary file is left";
}

TEST_F(Files, AreRenamedButNeverReplaced) {
  const std::wstring old = Put(L"old.txt", "content");
  const std::wstring taken = Put(L"taken.txt", "other");
  desktop->PutFolder(L"folder\\below");
  const std::wstring refused[] = {taken, folder + L"\\below", folder + L"\\none\\a.txt",
                                  folder + L"\\why?.txt", folder + L"\\"};
  for (const std::wstring& name : refused) {
    const auto error = files.Rename(old, name);
    ASSERT_TRUE(error) << testing::PrintToString(name);
    EXPECT_FALSE(error->empty() || error->ends_with(L'\n'));
  }
  EXPECT_TRUE(files.Rename(folder + L"\\none.txt", folder + L"\\new.txt"));
  EXPECT_EQ(Content(taken), "other");
  EXPECT_EQ(files.Rename(old, folder + L"\\New.scr"), std::nullopt);
  EXPECT_EQ(files.Rename(folder + L"\\New.scr", folder + L"\\NEW.scr"), std::nullopt);
  EXPECT_FALSE(files.Exists(old));
  EXPECT_EQ(Content(folder + L"\\new.scr"), "content");
  // Wine keeps the letters as they were.
  EXPECT_EQ(Listed(folder).size(), 3u);
}

TEST_F(Files, AreWrittenAndReadPieceByPiece) {
  const std::wstring path = Put(L"long.txt", "what was there before, and longer");
  auto writer = files.Create(path);
  ASSERT_TRUE(writer);
  EXPECT_EQ(files.Size(path), 0u);
  EXPECT_TRUE(writer->Append("one\r\n"));
  EXPECT_TRUE(writer->Append(""));
  EXPECT_EQ(files.Size(path), 5u) << "each piece goes to the disk at once";
  EXPECT_TRUE(writer->Append("two"));
  EXPECT_TRUE(writer->Close());
  EXPECT_FALSE(writer->Append("late"));

  auto reader = files.Open(path);
  ASSERT_TRUE(reader);
  std::string bytes;
  char buffer[3];
  while (const auto count = reader->Read(buffer)) {
    if (*count == 0) break;
    bytes.append(buffer, *count);
  }
  EXPECT_EQ(bytes, "one\r\ntwo");
  EXPECT_EQ(reader->Read(buffer), 0u);
  EXPECT_EQ(files.Open(folder), nullptr);
  EXPECT_EQ(files.Open(folder + L"\\none.txt"), nullptr);
}

}  // namespace

}  // namespace troth
