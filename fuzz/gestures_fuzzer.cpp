// Any bytes as Gestures.ini: at most 28 names, each without line ends and without blanks around it, in the
// order of the file.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "Require.h"
#include "livetools/GestureFile.h"
#include "platform/headless/HeadlessServices.h"
#include "script/Text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace troth;
  const HeadlessText page;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::wstring text = page.Decode(bytes);
  std::size_t place = 0;
  const auto names = ReadGestures(bytes, page);
  Require(names.size() <= kGestures, "a bar has 28 gestures");
  Require(names.empty() == bytes.empty(), "a file that is not empty has a line");
  for (const std::wstring& name : names) {
    Require(TrimBlanks(name).size() == name.size(), "a name has no blanks around it");
    Require(name.find(L'\r') == std::wstring::npos, "a name ends with its line");
    place = text.find(name, place);
    Require(place != std::wstring::npos, "the names are in the order of the file");
  }
  return 0;
}
