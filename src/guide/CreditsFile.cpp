#include "guide/CreditsFile.h"

#include <string>

#include "core/modMain.h"
#include "platform/services/TextService.h"
#include "script/LineReader.h"
#include "script/Text.h"

namespace troth {

CCredits BuiltInCredits() {
  CTitles details;
  details.Add(kAuthor);
  details.Add(L"(Counselor of Hollowmere)");
  CCredits credits;
  credits.Add(L"Design and Programming", std::move(details));
  return credits;
}

void AppendCredits(CCredits& credits, std::string_view bytes, const TextService& page) {
  LineReader lines{bytes};
  while (const auto line = lines.Next()) {
    const std::wstring decoded = page.Decode(*line);
    const std::wstring text(TrimBlanks(decoded));
    if (text.size() <= 1) continue;
    if (text.starts_with(L'#'))
      credits.Add(text.substr(1), {});
    else
      credits.Item(credits.Count()).CreditDetails().Add(text);
  }
}

}  // namespace troth
