// Any bytes as a wizard file, the first of them as the user's choices: what is generated has a line for each
// line that is kept, none of them with a mark that was asked for, and loads as a script.
#include <cstddef>
#include <cstdint>
#include <string>

#include "Require.h"
#include "authoring/ScriptGenerator.h"
#include "platform/headless/HeadlessDesktop.h"
#include "script/IndexEntries.h"
#include "script/LineReader.h"
#include "script/WeddingScript.h"
#include "script/modScript.h"

namespace troth {
namespace {

std::string Generate(const HeadlessDesktop& desktop, const WizardChoices& choices) {
  std::string script;
  ScriptGenerator generator(desktop.files, desktop.text, [&script](std::string_view bytes) {
    script.append(bytes);
    return true;
  });
  Require(generator.Generate(choices, L"today") == ScriptGenerator::Outcome::Done,
          "a whole set is generated");
  return script;
}

// What the choices make of the file, line by line.
void CheckSection(const WizardChoices& choices, std::string_view file, std::string_view section) {
  LineReader<char> written(section);
  LineReader<char> read(file);
  while (const auto line = read.Next()) {
    const char mark = line->size() < 2 ? '\0' : line->front();
    const bool isMarked = mark == '[' || mark == ']' || mark == '*';
    const bool isWanted = mark == '[' ? choices.tellGroom : mark == ']' ? choices.tellBride : choices.emotes;
    if (isMarked && !isWanted) continue;
    const auto row = written.Next();
    Require(row.has_value(), "no line is lost");
    Require(isMarked ? row->ends_with(line->substr(1)) : *row == *line, "the text of a line is kept");
    Require(!isMarked || row->front() == '/' || row->front() == ':', "a mark is replaced");
  }
  Require(!written.Next(), "no line is added");
}

void CheckLoads(HeadlessDesktop& desktop, const std::string& script) {
  const std::wstring path = L"C:\\Games\\Trothline\\generated.txt";
  desktop.files.Put(path, script);
  WeddingScript loaded;
  IndexEntries entries;
  loaded.sFileName(path);
  modScript::LoadScriptFile(loaded, entries, desktop.platform);
  Require(loaded.Rows() != nullptr, "what is generated is a script");
}

}  // namespace
}  // namespace troth

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace troth;
  if (size == 0) return 0;
  const std::string file(reinterpret_cast<const char*>(data) + 1, size - 1);
  HeadlessDesktop desktop;
  desktop.files.Put(L"C:\\Wizard\\GreetingsStandard.scr", file);
  WizardChoices choices{.LanguagePath = L"C:\\Wizard",
                        .StyleName = L"Standard",
                        .emotes = (data[0] & 1) != 0,
                        .tellGroom = (data[0] & 2) != 0,
                        .tellBride = (data[0] & 4) != 0};
  const std::string head = Generate(desktop, choices);
  choices.sections[0] = true;
  const std::string script = Generate(desktop, choices);
  Require(script.starts_with(head), "the head is the same for every file");
  CheckSection(choices, file, std::string_view(script).substr(head.size()));
  CheckLoads(desktop, script);
  return 0;
}
