// Control arrays: several controls of one kind that share a name and are told apart by an index.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <utility>

namespace troth {

// The name of a member of a control array: "cmdNav(3)".
inline std::wstring ArrayName(const wchar_t* array, std::size_t index) {
  return std::wstring(array) + L'(' + std::to_wstring(index) + L')';
}

// Controls are never moved, so each is made in its place: `make(index)` gives the control of that index.
template <std::size_t count, class Make>
auto MakeControls(const Make& make) {
  return [&make]<std::size_t... index>(std::index_sequence<index...>) {
    return std::array<decltype(make(std::size_t{})), count>{{make(index)...}};
  }
  (std::make_index_sequence<count>());
}

}  // namespace troth
