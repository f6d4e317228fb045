#include "script/UserVarsFile.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/headless/HeadlessDesktop.h"
#include "script/CustVars.h"

namespace troth {
namespace {

using Lines = std::vector<std::string>;

const std::wstring kPath = L"C:\\Games\\Trothline\\Vars.txt";
const Lines kCouple = {"groom= Rowan ", "bride=Anna"};
const std::string kSummary =
    "box information Trothline: Some errors were detected while loading custom variables. Please check your "
    "VARS.TXT file";

std::string Refusal(const std::string& name) {
  return "box plain Trothline: Error: the '" + name +
         "' variables contains  the '#' character.\\xAThe variable won't be added to the list.";
}
std::string Warning(const std::string& name) {
  return "box information Trothline: Warning! Duplicate definition overrides variable " + name;
}

class UserVarsFile : public testing::Test {
 protected:
  void Load() { modScript::LoadUserVars(vars, L" Rowan ", L"Anna", desktop.platform); }

  Lines Definitions() const {
    Lines lines;
    for (const CustVar& variable : vars)
      lines.push_back(HeadlessJournal::Readable(variable.VarName() + L"=" + variable.VarValue()));
    return lines;
  }

  HeadlessDesktop desktop;
  CustVars vars;
};

TEST_F(UserVarsFile, IsReadLineByLineAndComplainsOfWhatItRefuses) {
  const struct {
    std::string file;
    Lines fromFile;
    Lines boxes;
  } cases[] = {
      {"  a = b  \r\n\r\nx=1=2\rname=\r\n; note=x", {"a=b", "x=1=2", "name=", "; note=x"}, {}},
      {"=5\r\n =5\r\nno sign\r\n=\r\na#b=c", {"a#b=c"}, {}},
      {"a=1\r\nb=2\r\nA=3\r\n", {"a=3", "b=2"}, {Warning("A")}},
      {"title=#other#\r\n", {}, {Refusal("title"), kSummary}},
      {"title=#\r\nlater=new", {"later=new"}, {Refusal("title")}},
      {"a=1\r\nb=#\r\na=2", {"a=2"}, {Refusal("b"), Warning("a"), kSummary}},
      {"a=1\r\na=2#", {"a=1"}, {Refusal("a")}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.file);
    desktop.journal.Clear();
    desktop.files.Put(kPath, c.file);
    Load();
    Lines expected = kCouple;
    expected.insert(expected.end(), c.fromFile.begin(), c.fromFile.end());
    EXPECT_EQ(Definitions(), expected);
    EXPECT_EQ(desktop.journal.Lines(), c.boxes);
    for (const CustVar& variable : vars) EXPECT_EQ(vars.Item(variable.VarName()), &variable);
  }
}

TEST_F(UserVarsFile, IsSilentlyWithoutVariablesWhenItCannotBeOpened) {
  Load();
  desktop.files.Put(kPath, "a=1");
  desktop.files.RefuseReading(kPath);
  Load();
  EXPECT_EQ(Definitions(), kCouple);
  EXPECT_EQ(desktop.journal.Lines(), Lines{});
}

TEST_F(UserVarsFile, KeepsWhatCouldBeReadAndSaysThatTheRestCouldNot) {
  desktop.files.Put(kPath, "a=1\r\nb=2\r\nc=3");
  desktop.files.FailReadingAfter(kPath, 9);
  Load();
  Lines expected = kCouple;
  expected.insert(expected.end(), {"a=1", "b=2"});
  EXPECT_EQ(Definitions(), expected);
  EXPECT_EQ(desktop.journal.Lines(), Lines{kSummary});
}

TEST_F(UserVarsFile, IsWrittenWithoutTheCoupleWholeOrStaysAsItWas) {
  desktop.files.Put(kPath, "GROOM=Tom\r\ncaf\xE9=1");
  Load();
  EXPECT_EQ(Definitions(), (Lines{"groom=Tom", "bride=Anna", "caf\\xE9=1"}));
  desktop.journal.Clear();
  desktop.files.LeaveRoomFor(7);
  EXPECT_FALSE(modScript::SaveUserVars(vars, desktop.platform));
  EXPECT_EQ(desktop.files.Read(kPath), "GROOM=Tom\r\ncaf\xE9=1");
  desktop.files.LeaveRoomFor(8);
  EXPECT_TRUE(modScript::SaveUserVars(vars, desktop.platform));
  desktop.files.RefuseWriting(kPath);
  EXPECT_FALSE(modScript::SaveUserVars(CustVars{}, desktop.platform));
  EXPECT_EQ(desktop.files.Read(kPath), "caf\xE9=1\r\n");
  const std::string box =
      "box stop Trothline: Error while writing 'C:\\Games\\Trothline\\VARS.TXT'. Your custom variables will "
      "not be correctly loaded when you next start Trothline";
  EXPECT_EQ(desktop.journal.Lines(), (Lines{box, box}));
}

}  // namespace
}  // namespace troth
