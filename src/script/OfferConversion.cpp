#include "script/OfferConversion.h"

#include "platform/Platform.h"
#include "platform/services/FileService.h"
#include "platform/services/TextService.h"
#include "script/MessageBoxes.h"
#include "script/ScriptEncoding.h"

namespace troth {

// Most editors save UTF-8 today, whose letters would be garbled, and some end lines in a way that would join
// them.
void OfferConversion(const Platform& platform, const std::wstring& path) {
  const auto bytes = platform.files.Read(path);
  const auto conversion = bytes ? ConvertScript(*bytes, platform.text) : std::nullopt;
  if (!conversion) return;
  std::wstring question = path.substr(path.rfind(L'\\') + 1) + L" was saved ";
  if (conversion->wasUtf8) question += L"as UTF-8";
  if (conversion->wasUtf8 && conversion->hadBareLineFeeds) question += L" and ";
  if (conversion->hadBareLineFeeds) question += L"with line feeds alone at the ends of its lines";
  question +=
      L", and will not be read as it was meant. Do you want to convert the file to ANSI text with Windows "
      L"line ends?";
  if (conversion->losesLetters)
    question +=
        L"\n\nSome of its letters do not exist in ANSI text. They become similar letters or question marks.";
  if (Confirms(platform, question) && !platform.files.Write(path, conversion->bytes))
    ShowBox(platform, BoxIcon::Stop, L"Cannot convert " + path + L". It is loaded as it is.");
}

}  // namespace troth
