#include "qt/stray_input.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMouseEvent>
#include <utility>

namespace zarpel {
namespace {

bool IsKeyOrClick(QEvent::Type type) {
    switch (type) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
            return true;
        default:
            return false;
    }
}

}  // namespace

StrayInput::StrayInput() { QCoreApplication::instance()->installEventFilter(this); }

void StrayInput::DropWaiting() {
    dropping_ = true;
    QCoreApplication::processEvents();
    dropping_ = false;
}

bool StrayInput::eventFilter(QObject* watched, QEvent* event) {
    if (dropping_ && IsKeyOrClick(event->type())) return true;
    return watched->isWindowType() && IsStrayClick(watched, *event);
}

// The toolkit tells of a second click by a press, which it marks and the widgets pass over, and a double
// click.
bool StrayInput::IsStrayClick(const QObject* window, const QEvent& event) {
    switch (event.type()) {
        case QEvent::MouseButtonPress:
            if (!(static_cast<const QMouseEvent&>(event).flags() & Qt::MouseEventCreatedDoubleClick)) {
                pressed_ = window;
            }
            return false;
        case QEvent::MouseButtonDblClick:
            return releaseIsStray_ = window != pressed_;
        case QEvent::MouseButtonRelease:
            return std::exchange(releaseIsStray_, false);
        default:
            return false;
    }
}

}  // namespace zarpel
