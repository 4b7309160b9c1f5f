// Key codes and shift masks as windows get them: the code of a letter is the upper-case letter's whatever
// Shift and Caps Lock say, the code of a digit of the main row is the digit's. Number pad and function keys
// have codes of their own, so that they are never taken for letters or digits.
#pragma once

namespace zarpel {

enum KeyCode { kKeyNone = 0, kKeyTab = 9, kKeyF1 = 112 };  // and 'A' to 'Z', '0' to '9'

enum ShiftMask { kShift = 1, kCtrl = 2, kAlt = 4 };

}  // namespace zarpel
