#include "qt/placing.h"

#include <QScreen>
#include <QWindow>
#include <algorithm>

namespace zarpel {
namespace {

constexpr double kOfScreen = 0.8;

QMargins FrameOf(const QWidget* window) {
    const QWindow* const native = window ? window->window()->windowHandle() : nullptr;
    return native ? native->frameMargins() : QMargins();
}

}  // namespace

void PlaceAt(const Site& site, QWidget& window) {
    const QMargins frame = FrameOf(site.Owner);
    const QRect room = (site.Owner ? site.Owner : &window)->screen()->availableGeometry();
    window.resize(window.size().boundedTo(room.marginsRemoved(frame).size()));
    QRect place(QPoint(), window.size().grownBy(frame));
    place.moveCenter(site.Area.center());
    place.moveBottom(std::min({place.bottom(), site.Area.bottom(), room.bottom()}));
    place.moveRight(std::min(place.right(), room.right()));
    place.moveTopLeft({std::max(place.left(), room.left()), std::max(place.top(), room.top())});
    window.move(place.topLeft());
}

void KeepOnScreen(QWidget& window, const QSize& proportions) {
    if (window.isMaximized() || window.isMinimized() || window.isFullScreen()) return;
    const QRect room = window.screen()->availableGeometry();
    const QRect frame = window.frameGeometry();
    if (frame.width() <= room.width() && frame.height() <= room.height()) return;
    QRect place(QPoint(), proportions.scaled(room.size() * kOfScreen, Qt::KeepAspectRatio));
    place.moveCenter(room.center());
    window.setGeometry(place);
}

}  // namespace zarpel
