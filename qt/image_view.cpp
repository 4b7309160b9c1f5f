#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleHints>

#include "qt/views.h"

namespace zarpel {

void ImageView::Sync() {
    ControlView::Sync();
    if (control_.Spoken && Shown()) {  // a new name is told even of a widget that is hidden
        const Speech spoken = control_.Spoken();
        setAccessibleName(QString::fromStdString(spoken.Name));
        setAccessibleDescription(QString::fromStdString(spoken.Description));
    }
    for (ImageView* const covered : covered_) covered->Sync();
    if (Shown()) context_.Pictures.Prepare(LookNow());
    update();
}

bool ImageView::Shown() const { return control_.Visible && !(control_.Cover && control_.Cover->Visible); }

Look ImageView::LookNow() const {
    return {control_.Picture, width(), height(), context_.Scale.Pixels(control_.Corner), devicePixelRatioF()};
}

QPixmap ImageView::Pixmap() const { return context_.Pictures.Scaled(LookNow()); }

void ImageView::paintEvent(QPaintEvent*) {
    if (dragged_) return;  // the card is under the pointer
    QPainter(this).drawPixmap(0, 0, Pixmap());
}

void ImageView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    pressed_ = true;
    pressedAt_ = event->position().toPoint();
}

void ImageView::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    if (!pressed_ || !control_.Draggable) return;
    if (!dragged_) {
        if ((at - pressedAt_).manhattanLength() < QApplication::startDragDistance()) return;
        dragged_ = new QLabel(window());
        dragged_->setAttribute(Qt::WA_TransparentForMouseEvents);
        dragged_->setPixmap(Pixmap());
        dragged_->resize(size());
        dragged_->show();
        update();
    }
    dragged_->move(mapTo(window(), at - pressedAt_));
}

void ImageView::mouseReleaseEvent(QMouseEvent* event) {
    if (!pressed_ || event->button() != Qt::LeftButton) return;
    pressed_ = false;
    const QPoint at = event->position().toPoint();
    if (dragged_) return Drop(event->globalPosition().toPoint());
    const bool still = (at - pressedAt_).manhattanLength() < QApplication::startDragDistance();
    if (still && rect().contains(at)) Press();
}

void ImageView::LetGo() {
    pressed_ = false;
    delete dragged_;
    dragged_ = nullptr;
    update();
}

// Only the bare table area takes a card; anywhere else it goes back to its place.
void ImageView::Drop(const QPoint& global) {
    LetGo();
    auto* const area = dynamic_cast<AreaView*>(window()->childAt(window()->mapFromGlobal(global)));
    if (area) area->Dropped(control_);
}

}  // namespace zarpel
