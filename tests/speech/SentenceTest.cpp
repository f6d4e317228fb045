// How the sentence of the selected row is built, and what the person may do to it before it is spoken.
#include "tests/speech/SpeechRig.h"

namespace troth {

namespace {

class Sentence : public SpeechTest {};

TEST_F(Sentence, PutsPrefixOrYellMarkInFrontAsTheRowAllows) {
  const struct {
    std::wstring prefix;
    bool yell;
    std::size_t column;
  } heads[] = {{L"", false, 0},        {L"   ", false, 0},        {L"", true, 1},   {L"   ", true, 1},
               {L"Priest:", false, 2}, {L"  Priest:  ", true, 2}, {L"!", false, 3}, {L" ! ", true, 3}};
  const struct {
    std::string row;
    std::string sentences[4];  // without a head, with the yell mark, with "Priest:", with "!" as prefix
  } cases[] = {
      {"hello", {"hello", "! hello", "Priest: hello", "! hello"}},
      // Speech marks of the row's own meet the yell mark.
      {"; hello", {"; hello", "; hello", "Priest: ; hello", "! hello"}},
      {": bows", {": bows", ": bows", "Priest: : bows", "! bows"}},
      {"! wake up", {"! wake up", "! wake up", "Priest: ! wake up", "! wake up"}},
      {":bows", {":bows", "! :bows", "Priest: :bows", "! :bows"}},
      {"/party", {"/party", "/party", "/party", "/party"}},
      {"~hello", {"~hello", "~hello", "~hello", "~hello"}},
      // One character gives no text of its own, whatever it is.
      {"a", {"", "! ", "Priest: ", "! "}},
      {"@", {}},
      {"@note", {}},
      {"&note", {}},
  };
  Lines rows = {"first"};
  for (const auto& c : cases) rows.push_back(c.row);
  Start(rows);
  for (const auto& head : heads) {
    TypeOver(window->txtPrefix, head.prefix);
    Tick(window->chkYell, head.yell);
    int number = 1;
    for (const auto& c : cases) {
      SelectRow(++number);
      EXPECT_EQ(Next(), c.sentences[head.column]) << c.row << " with prefix " << Readable(head.prefix);
      EXPECT_EQ(window->SelectNewText(), window->txtNext.Text());
    }
  }
}

TEST_F(Sentence, OfAnUntickedRowIsEmptyUntilItIsTickedAgain) {
  StartGame();
  Start({"One.", "Two."});
  Tick(window->chkYell, true);
  user.ClickTick(window->lstWedding, 0);
  EXPECT_EQ(Next(), "");
  user.ClickTick(window->lstWedding, 0);
  EXPECT_EQ(Next(), "! One.");
  user.ClickTick(window->lstWedding, 0);
  Speak();
  EXPECT_EQ(TakeStory(), Lines{});
  EXPECT_EQ(Next(), "! Two.");
  SelectRow(1);
  TypeOver(window->txtNext, L"spoken all the same");
  Speak();
  EXPECT_EQ(TakeStory(), (Lines{kRaise, "posts <13>spoken all the same<13>"}));
}

TEST_F(Sentence, IsBuiltAgainByAChangeOfPrefixOrYell) {
  Start({"One.", "Two."});
  TypeOver(window->txtNext, L"mine");
  user.Choose(window->MOptionsTranslate);
  user.Choose(window->MOptionsEmote);
  EXPECT_EQ(Next(), "mine");
  TypeOver(window->txtPrefix, L"P");
  EXPECT_EQ(Next(), "P One.");
  TypeOver(window->txtNext, L"mine");
  user.Click(window->chkYell);
  EXPECT_EQ(Next(), "P One.");
}

TEST_F(Sentence, ExpandsTheTextButNotTheHead) {
  Start({"a#v#", "; a#v#", "~a#v#", "/a#v#", "#", "@#v#"});
  program.DynamicVars.Add(L"V", L"x", L"V");
  const struct {
    int row;
    std::wstring prefix;
    bool yell;
    std::string sentence;
  } cases[] = {{1, L"", false, "ax"},    {1, L"#v#:", false, "#v#: ax"}, {1, L"", true, "! ax"},
               {2, L"", true, "; ax"},   {2, L"!", false, "! ax"},       {2, L"P:", true, "P: ; ax"},
               {3, L"P:", false, "~ax"}, {4, L"P:", false, "/ax"},       {5, L"P:", false, "P: "},
               {6, L"P:", false, ""}};
  for (const auto& c : cases) {
    window->txtPrefix.SetText(c.prefix);
    window->chkYell.SetTicked(c.yell);
    window->lstWedding.SetIndex(c.row - 1);
    EXPECT_EQ(Readable(window->SelectNewText()), c.sentence) << c.row;
  }
}

}  // namespace

}  // namespace troth
