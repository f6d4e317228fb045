#include "script/modScript.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/headless/HeadlessDesktop.h"
#include "script/IndexEntries.h"
#include "script/WeddingScript.h"

namespace troth {
namespace {

const std::wstring kFolder = L"C:\\Games\\Trothline\\wedscripts\\";
const std::string kReadErrorBox =
    "box stop Application error: Error while reading Script file. Aborting execution.";

class LoadScriptFile : public testing::Test {
 protected:
  void Load(const std::string& bytes, const std::wstring& name = L"vows.txt") {
    desktop.files.Put(kFolder + name, bytes);
    LoadAgain(name);
  }

  void LoadAgain(const std::wstring& name) {
    script.sFileName(kFolder + name);
    modScript::LoadScriptFile(script, entries, desktop.platform,
                              [this] { desktop.journal.Add("hotkeys down"); });
  }

  // Loads a file that ends the program, and returns what the user and the system saw.
  std::vector<std::string> LoadToTheEnd(const std::wstring& name) {
    EXPECT_THROW(LoadAgain(name), ProcessEnded);
    EXPECT_EQ(script.sFileName(), L"");
    return desktop.journal.Lines();
  }

  std::vector<std::wstring> Texts() const {
    std::vector<std::wstring> texts;
    for (const WeddingRow& row : *script.Rows()) texts.push_back(row.OriginalText());
    return texts;
  }

  HeadlessDesktop desktop;
  WeddingScript script;
  IndexEntries entries;
};

TEST_F(LoadScriptFile, TurnsEachLineIntoARow) {
  Load("  Welcome.\r\n\r\n$2000$, #groom#?\r@note\r\n$500$,&popup\r\n$500$,\r\none\ntwo");
  const struct {
    std::wstring text;
    std::int32_t delayMs;
    bool isComment;
  } expected[] = {{L"Welcome.", 0, false},
                  {L"#groom#?", 2000, false},
                  {L"@note", 0, true},
                  {L"&popup", 500, true},
                  {L"one\ntwo", 0, false}};
  ASSERT_EQ(script.Rows()->Count(), 5);
  std::int32_t number = 0;
  for (const auto& row : expected) {
    const WeddingRow& loaded = script.Rows()->Item(std::to_wstring(++number));
    EXPECT_EQ(&loaded, &script.Rows()->Item(number));
    EXPECT_EQ(loaded.OriginalText(), row.text);
    EXPECT_EQ(loaded.WText(), row.text);
    EXPECT_EQ(loaded.Delay(), row.delayMs);
    EXPECT_EQ(loaded.IsComment(), row.isComment);
    EXPECT_TRUE(loaded.IsEnabled());
    EXPECT_EQ(loaded.IndexPointer(), 0);
  }
  EXPECT_TRUE(desktop.journal.Lines().empty());
}

TEST_F(LoadScriptFile, PutsEachRowUnderTheLatestChapter) {
  Load("Hello.\r\n@!Vows\r\nI do.\r\n@!a\r\n$100$,@!Rings\r\n@!Feast\r\nEat!");
  const struct {
    std::wstring title;
    std::int32_t row;
  } chapters[] = {{L"Vows", 2}, {L"Rings", 5}, {L"Feast", 6}};
  ASSERT_EQ(entries.Count(), 3);
  std::int32_t number = 0;
  for (const auto& chapter : chapters) {
    const IndexEntry& entry = entries.Item(++number);
    EXPECT_EQ(entry.IText(), chapter.title);
    EXPECT_EQ(entry.ScriptPointer(), chapter.row);
    EXPECT_EQ(entry.ListPointer(), 0);
  }
  std::vector<std::int32_t> pointers;
  for (const WeddingRow& row : *script.Rows()) pointers.push_back(row.IndexPointer());
  EXPECT_EQ(pointers, (std::vector<std::int32_t>{0, 1, 1, 1, 2, 3, 3}));
}

TEST_F(LoadScriptFile, NamesTheScriptAfterTheFileUpToItsFirstTxt) {
  const struct {
    std::wstring file;
    std::wstring language;
  } cases[] = {{L"MyScript.TXT", L"MyScript"},
               {L"myscript.txt", L"myscript"},
               {L"a.txt.old", L"a"},
               {L"b.Txt.tXt", L"b"},
               {L".txt", L""},
               {L"c.txtual", L"c"},
               {L"d.scr.txt", L"d.scr"},
               {L"\u00F1and\u00FA.txt", L"\u00F1and\u00FA"}};
  for (const auto& c : cases) {
    Load("Hello.", c.file);
    EXPECT_EQ(script.LanguageString(), c.language);
    EXPECT_EQ(script.sFileName(), kFolder + c.file);
  }
}

TEST_F(LoadScriptFile, ReplacesWhatWasLoadedBefore) {
  Load("@!Old\r\nOld row.\r\nOld row.", L"old.txt");
  script.CurrentRow(3);
  script.Dirty(true);
  Load("@!New\r\nNew row.", L"new.txt");
  EXPECT_EQ(Texts(), (std::vector<std::wstring>{L"@!New", L"New row."}));
  ASSERT_EQ(entries.Count(), 1);
  EXPECT_EQ(entries.Item(1).IText(), L"New");
  EXPECT_EQ(script.CurrentRow(), 0);
  EXPECT_FALSE(script.Dirty());
  EXPECT_EQ(script.LanguageString(), L"new");
}

TEST_F(LoadScriptFile, WithoutAFileThereIsSilentlyNoScript) {
  desktop.files.PutFolder(kFolder + L"folder.txt");
  desktop.files.PutFolder(kFolder + L"folder");
  for (const std::wstring& path : {std::wstring(), kFolder + L"gone.txt", kFolder + L"gone.scr",
                                   kFolder + L"folder.txt", kFolder + L"folder"}) {
    Load("@!Vows\r\nI do.");
    script.Dirty(true);
    script.sFileName(path);
    modScript::LoadScriptFile(script, entries, desktop.platform);
    EXPECT_EQ(script.sFileName(), L"");
    EXPECT_EQ(script.Rows(), nullptr);
    EXPECT_FALSE(script.Dirty());
    EXPECT_EQ(entries.Count(), 1) << "the entries stay until the lists are cleared";
    EXPECT_TRUE(desktop.journal.Lines().empty());
  }
}

TEST_F(LoadScriptFile, AFileThatCannotBeReadEndsTheProgramAfterAMessage) {
  desktop.files.Put(kFolder + L"locked.txt", "Hello.");
  desktop.files.RefuseReading(kFolder + L"locked.txt");
  EXPECT_EQ(LoadToTheEnd(L"locked.txt"), (std::vector<std::string>{kReadErrorBox, "hotkeys down", "end 1"}));
}

TEST_F(LoadScriptFile, ANameWithoutTxtEndsTheProgram) {
  for (const std::wstring name : {L"vows.scr", L"vowstxt", L"sub.txt\\vows", L"vows.tx"}) {
    desktop.journal.Clear();
    desktop.files.Put(kFolder + name, "Hello.");
    EXPECT_EQ(LoadToTheEnd(name), (std::vector<std::string>{kReadErrorBox, "hotkeys down", "end 1"}));
  }
}

std::string Repeated(const std::string& line, int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += line;
  return text;
}

TEST_F(LoadScriptFile, LoadsTheFirstRowsOfALongerFileAndMarksIt) {
  Load(Repeated("x\r\n", 32767) + "@!beyond\r\nmore\r\n");
  EXPECT_EQ(script.Rows()->Count(), 32767);
  EXPECT_EQ(script.Rows()->Item(L"32767").OriginalText(), L"x");
  EXPECT_EQ(entries.Count(), 0);
  EXPECT_EQ(script.sFileName(), kFolder + L"vows.txt");
  EXPECT_TRUE(script.IsTruncated());
  Load("x");
  EXPECT_FALSE(script.IsTruncated());
}

TEST_F(LoadScriptFile, TakesEveryByteAsText) {
  std::string bytes;
  for (int byte = 255; byte >= 0; --byte) bytes += static_cast<char>(byte);
  Load(bytes + "\r\n\x80uro caf\xE9");
  ASSERT_EQ(script.Rows()->Count(), 3);
  EXPECT_EQ(script.Rows()->Item(1).OriginalText().size(), 255u - '\r');
  EXPECT_EQ(script.Rows()->Item(2).OriginalText(),
            std::wstring(L"\f\v\n\t\b\a\x06\x05\x04\x03\x02\x01\0", 13));
  EXPECT_EQ(script.Rows()->Item(3).OriginalText(), L"\u20ACuro caf\u00E9");
}

}  // namespace
}  // namespace troth
