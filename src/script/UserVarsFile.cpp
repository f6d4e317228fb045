#include "script/UserVarsFile.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "platform/Platform.h"
#include "platform/services/FileService.h"
#include "platform/services/TextService.h"
#include "script/CustVars.h"
#include "script/LineReader.h"
#include "script/MessageBoxes.h"
#include "script/ProgramTitle.h"
#include "script/Text.h"

namespace troth::modScript {
namespace {

// "groom" and "bride" live in the boxes of the main window and not in the file.
constexpr std::int32_t kFirstOfFile = 3;

struct Definition {
  std::wstring_view name;
  std::wstring_view value;
};

std::optional<Definition> ParseDefinition(std::wstring_view line) {
  line = TrimBlanks(line);
  const auto separator = line.find(L'=');
  if (separator == 0 || separator == std::wstring_view::npos) return std::nullopt;
  return Definition{TrimBlanks(line.substr(0, separator)), TrimBlanks(line.substr(separator + 1))};
}

// Takes lines one by one and remembers whether a refused one calls for the summary at the end.
class Reader {
 public:
  Reader(CustVars& vars, Platform& platform) : vars_(vars), platform_(platform) {}

  void Take(const Definition& definition) {
    const std::wstring name(definition.name);
    CustVar* const known = vars_.Item(name);
    if (definition.value.find(L'#') != std::wstring_view::npos) {
      if (!known) hasLost_ = true;
      ShowBox(platform_, BoxIcon::None,
              L"Error: the '" + name +
                  L"' variables contains  the '#' character.\nThe variable won't be added to the list.");
    } else if (known) {
      known->VarValue(std::wstring(definition.value));
      ShowBox(platform_, BoxIcon::Information, L"Warning! Duplicate definition overrides variable " + name);
    } else {
      vars_.Add(name, definition.value, name);
      hasLost_ = false;
    }
  }

  // True if a variable was refused and no new one came in after it.
  bool HasLost() const { return hasLost_; }

 private:
  CustVars& vars_;
  Platform& platform_;
  bool hasLost_ = false;
};

struct Content {
  std::string bytes;
  bool isComplete = true;
};

// As far as the file can be read; nothing if it cannot be opened.
std::optional<Content> ReadContent(const FileService& files, const std::wstring& path) {
  const auto file = files.Open(path);
  if (!file) return std::nullopt;
  Content content;
  std::array<char, 4096> buffer;
  for (;;) {
    const auto count = file->Read(buffer);
    if (!count) content.isComplete = false;
    if (!count || *count == 0) return content;
    content.bytes.append(buffer.data(), *count);
  }
}

}  // namespace

void LoadUserVars(CustVars& vars, std::wstring_view groom, std::wstring_view bride, Platform& platform) {
  vars = CustVars{};
  vars.Add(L"groom", groom, L"groom");
  vars.Add(L"bride", bride, L"bride");

  const auto content = ReadContent(platform.files, platform.files.ProgramFolder() + L"\\Vars.txt");
  if (!content) return;
  const std::wstring text = platform.text.Decode(content->bytes);
  Reader reader(vars, platform);
  LineReader lines{std::wstring_view(text)};
  while (const auto line = lines.Next()) {
    if (const auto definition = ParseDefinition(*line)) reader.Take(*definition);
  }
  if (reader.HasLost() || !content->isComplete)
    ShowBox(platform, BoxIcon::Information,
            L"Some errors were detected while loading custom variables. Please check your VARS.TXT file");
}

bool SaveUserVars(const CustVars& vars, Platform& platform) {
  std::wstring text;
  for (std::int32_t number = kFirstOfFile; number <= vars.Count(); ++number) {
    const CustVar& variable = *vars.Item(number);
    text += variable.VarName() + L'=' + variable.VarValue() + L"\r\n";
  }
  const std::wstring path = platform.files.ProgramFolder() + L"\\VARS.TXT";
  if (platform.files.Write(path, platform.text.Encode(text))) return true;
  ShowBox(platform, BoxIcon::Stop,
          L"Error while writing '" + path +
              L"'. Your custom variables will not be correctly loaded when you next start " + kProgramTitle);
  return false;
}

}  // namespace troth::modScript
