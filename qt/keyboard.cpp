#include "qt/keyboard.h"

#include <array>
#include <string_view>

#include "platform/keys.h"

namespace zarpel {
namespace {

#ifndef Q_OS_WIN
// What the keys are by their place, in the four rows from the digits down. On X11 and Wayland these are the
// scan codes of the first key of each row.
struct Row {
    quint32 First;
    std::string_view Keys;
};
constexpr std::array kRows = {Row{10, "1234567890"}, Row{24, "QWERTYUIOP"}, Row{38, "ASDFGHJKL"},
                              Row{52, "ZXCVBNM"}};
#endif

// The digit or letter that a key is by its place, whatever the layout has there.
int CodeOfPlace(const QKeyEvent& event) {
#ifdef Q_OS_WIN
    const quint32 key = event.nativeVirtualKey();
    const bool named = (key >= '0' && key <= '9') || (key >= 'A' && key <= 'Z');
    return named ? static_cast<int>(key) : kKeyNone;
#else
    for (const Row& row : kRows) {
        const quint32 place = event.nativeScanCode() - row.First;
        if (place < row.Keys.size()) return row.Keys.at(place);
    }
    return kKeyNone;
#endif
}

// With Shift, a digit key arrives as the character that the layout has there ("!", "\"", "@", ...), so the
// digits go by the place of the key.
int DigitOf(const QKeyEvent& event) {
    const int code = CodeOfPlace(event);
    return code >= '0' && code <= '9' ? code : kKeyNone;
}

// A letter of another script stands where the layout has no Latin ones.
bool IsForeignLetter(int key) {
    if (key <= 0 || key > QChar::LastValidCodePoint) return false;
    const QChar::Script script = QChar::script(static_cast<char32_t>(key));
    return script > QChar::Script_Common && script != QChar::Script_Latin;
}

}  // namespace

int KeyCodeOf(const QKeyEvent& event) {
    if (event.modifiers() & Qt::KeypadModifier) return kKeyNone;
    const int key = event.key();
    if (key >= Qt::Key_A && key <= Qt::Key_Z) return key;
    if (key == Qt::Key_Tab || key == Qt::Key_Backtab) return kKeyTab;
    if (key == Qt::Key_F1) return kKeyF1;
    if (const int digit = DigitOf(event)) return digit;
    if (IsForeignLetter(key)) return CodeOfPlace(event);
    // A press made by a program (an input method, an on-screen keyboard, a remote desktop) can come without
    // its place, or with a strange one.
    return key >= Qt::Key_0 && key <= Qt::Key_9 ? key : kKeyNone;
}

int ShiftMaskOf(Qt::KeyboardModifiers modifiers) {
    return (modifiers & Qt::ShiftModifier ? kShift : 0) | (modifiers & Qt::ControlModifier ? kCtrl : 0) |
           (modifiers & Qt::AltModifier ? kAlt : 0);
}

}  // namespace zarpel
