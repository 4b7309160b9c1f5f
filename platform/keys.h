// Key codes and shift masks as windows get them: the code of a letter is the upper-case letter's whatever
// Shift and Caps Lock say, the code of a digit of the main row is the digit's. Number pad and function keys
// have codes of their own, so that they are never taken for letters or digits.
#pragma once

namespace zarpel {

// Besides 'A' to 'Z' and '0' to '9'.
constexpr int kKeyNone = 0;
constexpr int kKeyTab = 9;
constexpr int kKeyF1 = 112;

constexpr int kShift = 1;
constexpr int kCtrl = 2;
constexpr int kAlt = 4;

}  // namespace zarpel
