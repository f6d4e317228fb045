// Both stages of variables, and the directives that feed the second.
#include "script/Expansion.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/headless/HeadlessJournal.h"
#include "script/CustVars.h"
#include "script/Directives.h"
#include "script/WeddingScript.h"

namespace troth {
namespace {

CustVars Store(const std::vector<std::pair<std::wstring, std::wstring>>& definitions) {
  CustVars vars;
  for (const auto& [name, value] : definitions) vars.Add(name, value, name);
  return vars;
}

TEST(ApplyUserVars, ReplacesTheMarksOfAllSentences) {
  const CustVars vars = Store({{L"groom", L""}, {L"bride", L"Anna"}, {L"x", L"#bride#"}, {L"a b", L"AB"}});
  const struct {
    std::wstring original;
    std::wstring replaced;
  } cases[] = {
      {L"#bride#, will you?", L"Anna, will you?"},
      {L"#BRIDE##groom#.", L"Anna."},
      {L"# bride # #a b#", L"# bride # AB"},
      {L"a ## b #x#", L"a ## b #bride#"},
      {L"#nobody#bride# # #bride#", L"#nobody#bride# # Anna"},
      {L"@ of #bride#", L"@ of #bride#"},
  };
  WeddingScript script;
  script.Rows(std::make_unique<WeddingRows>());
  for (const auto& c : cases)
    script.Rows()->Add(L"stale", true, c.original[0] == L'@', {}).OriginalText(c.original);
  modScript::ApplyUserVars(script, vars);
  EXPECT_EQ(script.Rows()->Item(1).WText(), L"stale") << "no file is loaded";
  script.sFileName(L"vows.txt");
  modScript::ApplyUserVars(script, vars);
  auto row = script.Rows()->begin();
  for (const auto& c : cases) {
    EXPECT_EQ(row->WText(), c.replaced);
    EXPECT_EQ(row->OriginalText(), c.original);
    ++row;
  }
}

TEST(ExpandVariables, ReplacesTheMarksOfOneSentence) {
  const CustVars vars = Store({{L"RING", L"gold"}, {L"Cord", L"#RING#"}, {L"", L"nil"}});
  const struct {
    std::wstring text;
    std::wstring expanded;
  } cases[] = {
      {L"#ring##Ring# # RING #", L"goldgold gold"},
      {L"of # a #ring#", L"of #a#ring#"},
      {L"# #, #  x y #", L"nil, #x y#"},
      {L"#cord# #ring#", L"#RING# gold"},
      {L"a #ring# ## b #ring#", L"a gold ## b #ring#"},
  };
  for (const auto& c : cases) EXPECT_EQ(ExpandVariables(c.text, vars), c.expanded);
  EXPECT_EQ(ExpandVariables(L"# a # #ring#", CustVars{}), L"# a # #ring#");
}

TEST(CarryOutDirective, DoesWhatACommentAsksFor) {
  const std::string noDefinition = "popup Syntax error in !def command: ";
  const struct {
    std::wstring comment;
    std::vector<std::string> acts;
    std::wstring store = L"RING=gold;";
  } cases[] = {
      {L"{T0}", {"translation off"}},
      {L"{t1}", {"translation on"}},
      {L"{sS}", {"screenshot"}},
      {L"T0}", {}},
      {L"{ENTER}", {}},
      {L"{def cord, heather}", {}, L"RING=gold;CORD=heather;"},
      {L"{DEF Ring,  a, b }", {}, L"RING=a, b;"},
      {L"{def a, }", {}, L"RING=gold;A=;"},
      {L"{def  , b}", {}, L"RING=gold;=b;"},
      {L"{define a, b}", {}, L"RING=gold;INE A=b;"},
      {L"{def a,}", {noDefinition + "{def a,}"}},
      {L"{def a}", {noDefinition + "{def a}"}},
      {L"{Def,b}", {noDefinition + "{Def,b}"}},
      {L"{def}", {}},
      {L"{undef ring}", {}, L""},
      {L"{UnDefRing }", {}, L""},
      {L"{undef cord}", {}},
      {L"{undef}", {}},
      {L"{undef  }", {"popup Invalid variable name in !undef command: {undef  }"}},
      {L"{defundef ring}", {noDefinition + "{defundef ring}"}, L""},
      {L"{defundef ring, x}", {}, L"RING=gold;UNDEF RING=x;"},
  };
  for (const auto& c : cases) {
    CustVars vars = Store({{L"RING", L"gold"}});
    HeadlessJournal journal;
    CarryOutDirective(c.comment, vars,
                      {[&](bool on) { journal.Add(on ? "translation on" : "translation off"); },
                       [&] { journal.Add("screenshot"); },
                       [&](const std::wstring& text) { journal.Add("popup " + journal.Readable(text)); }});
    std::wstring store;
    for (const CustVar& variable : vars) store += variable.VarName() + L'=' + variable.VarValue() + L';';
    EXPECT_EQ(store, c.store) << journal.Readable(c.comment);
    EXPECT_EQ(journal.Lines(), c.acts) << journal.Readable(c.comment);
  }
}

}  // namespace
}  // namespace troth
