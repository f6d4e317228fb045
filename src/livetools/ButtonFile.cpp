#include "livetools/ButtonFile.h"

#include "platform/services/TextService.h"
#include "script/LineReader.h"

namespace troth {

std::vector<std::wstring> ReadButtonFile(std::string_view bytes, const TextService& page) {
  std::vector<std::wstring> texts;
  LineReader lines{bytes};
  while (texts.size() < kSpeechButtons) {
    const auto line = lines.Next();
    if (!line) break;
    texts.push_back(page.Decode(*line));
  }
  return texts;
}

std::string WriteButtonFile(std::span<const std::wstring> texts, const TextService& page) {
  std::string bytes;
  for (const std::wstring& text : texts) bytes += page.Encode(text) + "\r\n";
  return bytes;
}

}  // namespace troth
