// Writes a wedding script from the user's choices: a head of its own, and after it the wizard files of the
// chosen sections. Used by the wizard, which opens and closes the output; knows no window and asks the user
// nothing.
//
// A wizard file is 8-bit text, one row of a script per line. The first character of a line of two or more
// characters can be a mark: "[" and "]" make the rest of the line a party message to the groom and to the
// bride, "*" an emote. A marked line is dropped if the user did not ask for its kind. Every other line is
// copied as it is.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "authoring/WizardTables.h"

namespace troth {

class FileService;
class TextService;

struct WizardChoices {
  std::wstring LanguagePath;  // the folder of the wizard files
  std::wstring StyleName;     // the tag of the style
  std::array<bool, kSections> sections{};
  bool emotes = false;
  bool tellGroom = false;
  bool tellBride = false;
  bool verbous = false;
};

class ScriptGenerator {
 public:
  enum class Outcome {
    Done,
    DiskError,          // a line of the head or of the end could not be written
    MissingWizardFile,  // a wizard file could not be read
  };

  // Takes the next bytes of the script; false if they could not be written.
  using AppendBytes = std::function<bool(std::string_view bytes)>;

  ScriptGenerator(const FileService& files, const TextService& text, AppendBytes append)
      : files_(files), text_(text), append_(std::move(append)) {}

  // `date` is today in words. Ends at the first fault; what was appended before stays.
  Outcome Generate(const WizardChoices& choices, const std::wstring& date);

 private:
  bool WriteScriptLine(std::wstring_view text);
  template <class Lines>
  bool WriteScriptLines(const Lines& lines);
  bool WriteHead(const WizardChoices& choices, const std::wstring& date);
  bool WriteSection(const WizardChoices& choices, std::wstring_view tag);

  const FileService& files_;
  const TextService& text_;
  AppendBytes append_;
};

}  // namespace troth
