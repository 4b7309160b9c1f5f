#include "qt/keyboard.h"

#include <array>

#include "platform/keys.h"

namespace zarpel {
namespace {

// With Shift, a digit key arrives as the character that the layout has there ("!", "\"", "@", ...), so the
// digits go by the place of the key. On X11 and Wayland the main row's keys 1 to 0 have the scan codes 10 to
// 19; on Windows their virtual key codes are the digits themselves.
constexpr quint32 kScanCodeOf1 = 10;
constexpr std::array kMainRow = {'1', '2', '3', '4', '5', '6', '7', '8', '9', '0'};

int DigitOf(const QKeyEvent& event) {
#ifdef Q_OS_WIN
    const quint32 key = event.nativeVirtualKey();
    return key >= '0' && key <= '9' ? static_cast<int>(key) : kKeyNone;
#else
    const quint32 place = event.nativeScanCode() - kScanCodeOf1;
    return place < kMainRow.size() ? kMainRow.at(place) : kKeyNone;
#endif
}

}  // namespace

int KeyCodeOf(const QKeyEvent& event) {
    if (event.modifiers() & Qt::KeypadModifier) return kKeyNone;
    const int key = event.key();
    if (key >= Qt::Key_A && key <= Qt::Key_Z) return key;
    if (key == Qt::Key_Tab || key == Qt::Key_Backtab) return kKeyTab;
    if (key == Qt::Key_F1) return kKeyF1;
    if (const int digit = DigitOf(event)) return digit;
    // A press made by a program (an input method, an on-screen keyboard, a remote desktop) can come without
    // its place, or with a strange one.
    return key >= Qt::Key_0 && key <= Qt::Key_9 ? key : kKeyNone;
}

int ShiftMaskOf(Qt::KeyboardModifiers modifiers) {
    return (modifiers & Qt::ShiftModifier ? kShift : 0) | (modifiers & Qt::ControlModifier ? kCtrl : 0) |
           (modifiers & Qt::AltModifier ? kAlt : 0);
}

}  // namespace zarpel
