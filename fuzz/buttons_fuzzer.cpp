// Any bytes as a button file: at most ten texts, each free of line ends, which come back from the file that
// they are written to.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "Require.h"
#include "livetools/ButtonFile.h"
#include "platform/headless/HeadlessServices.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace troth;
  const HeadlessText page;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const auto texts = ReadButtonFile(bytes, page);
  Require(texts.size() <= kSpeechButtons, "a bar has ten texts");
  Require(texts.empty() == bytes.empty(), "a file that is not empty has a line");
  for (const std::wstring& text : texts)
    Require(text.find(L'\r') == std::wstring::npos, "a text ends with its line");
  Require(ReadButtonFile(WriteButtonFile(texts, page), page) == texts, "written texts come back");
  return 0;
}
