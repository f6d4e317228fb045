// Virtual key codes, as key presses, the key notation and global hotkeys carry them. The only place where
// they stand as numbers.
#pragma once

namespace troth {

inline constexpr int kBackspaceKey = 8;
inline constexpr int kTabKey = 9;
inline constexpr int kEnterKey = 13;
inline constexpr int kEscapeKey = 27;
inline constexpr int kSpaceKey = 32;
inline constexpr int kPageUpKey = 33;
inline constexpr int kPageDownKey = 34;
inline constexpr int kEndKey = 35;
inline constexpr int kHomeKey = 36;
inline constexpr int kLeftKey = 37;
inline constexpr int kUpKey = 38;
inline constexpr int kRightKey = 39;
inline constexpr int kDownKey = 40;
inline constexpr int kInsertKey = 45;
inline constexpr int kDeleteKey = 46;
inline constexpr int kApplicationsKey = 93;
inline constexpr int kF1Key = 112;
inline constexpr int kF2Key = 113;
inline constexpr int kF10Key = 121;
inline constexpr int kF12Key = 123;

}  // namespace troth
