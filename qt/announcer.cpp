#include "qt/announcer.h"

#include <QAccessible>
#include <QEvent>

namespace zarpel {
namespace {

// Milliseconds in which a change of the window's focus is over.
constexpr int kSettledMs = 100;

}  // namespace

Announcer::Announcer(QWidget* window) : QWidget(window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(0, 0);
    window->installEventFilter(this);
    soon_.setSingleShot(true);
    soon_.setInterval(kSettledMs);
    connect(&soon_, &QTimer::timeout, this, [this] { SayNow(); });
}

void Announcer::Say(const QString& text) {
    text_ += (text_.isEmpty() ? "" : " ") + text;
    soon_.start();
}

bool Announcer::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowActivate && !text_.isEmpty()) soon_.start();
    return QWidget::eventFilter(watched, event);
}

void Announcer::SayNow() {
    if (!isActiveWindow()) return;
    setAccessibleName(text_);
    text_.clear();
    QAccessibleEvent shown(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}

}  // namespace zarpel
