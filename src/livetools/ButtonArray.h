// An array of buttons of one size that stand on a grid: the control array "MacroButton" of the two bars.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <utility>

#include "platform/forms/CommandButton.h"

namespace troth {

// `boundsOf` gives the place of the button of an index from 0. All have a text of the user's but that of the
// index `withMnemonic`.
template <std::size_t kCount, class BoundsOf>
std::array<CommandButton, kCount> MakeMacroButtons(ControlHost& host, BoundsOf boundsOf,
                                                   std::size_t withMnemonic = kCount) {
  const auto make = [&](std::size_t index) {
    return CommandButton(host, {.name = L"MacroButton(" + std::to_wstring(index) + L")",
                                .bounds = boundsOf(static_cast<int>(index)),
                                .hasMnemonic = index == withMnemonic,
                                .font = ControlFont{.face = L"Arial", .points = 6.75}});
  };
  return [&]<std::size_t... kIndex>(std::index_sequence<kIndex...>) {
    return std::array<CommandButton, kCount>{make(kIndex)...};
  }
  (std::make_index_sequence<kCount>{});
}

}  // namespace troth
