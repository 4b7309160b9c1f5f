#include <QAccessible>
#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleHints>
#include <algorithm>

#include "qt/motion.h"
#include "qt/views.h"

namespace zarpel {

// A click does not give it the focus: the space bar takes what the pointer has chosen.
ImageView::ImageView(Image& image, const ViewContext& context, QWidget* parent)
    : ControlView(image, context, parent) {
    if (image.Click) setFocusPolicy(Qt::TabFocus);
}

void ImageView::Sync() {
    ControlView::Sync();
    if (control_.Spoken) SayLater();
    for (ImageView* const covered : covered_) covered->Sync();
    if (Shown()) context_.Pictures.Prepare(LookNow());
    context_.Moves->Changed();
    update();
}

// Not while it is hidden: a new name would be told all the same.
void ImageView::Say() {
    if (!Shown()) return;
    const Speech spoken = control_.Spoken();
    const QString name = QString::fromStdString(spoken.Name);
    if (name != accessibleName()) setAccessibleName(name);
    if (selected_ == spoken.Selected) return;
    selected_ = spoken.Selected;
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

bool ImageView::Shown() const { return control_.Visible && !(control_.Cover && control_.Cover->Visible); }

void ImageView::Covers(ImageView& covered) {
    covered_.push_back(&covered);
    covered.cover_ = this;
}

Look ImageView::LookNow() const {
    return {control_.Picture, width(), height(), context_.Scale.Pixels(control_.Corner), devicePixelRatioF()};
}

Look ImageView::Seen() const { return cover_ && cover_->Shown() ? cover_->LookNow() : LookNow(); }

void ImageView::Redraw() {
    update();
    if (cover_) cover_->update();
}

bool ImageView::DrawnElsewhere() const {
    return context_.Moves->Carries(*this) ||
           std::ranges::any_of(covered_, [](const ImageView* covered) { return covered->DrawnElsewhere(); });
}

void ImageView::paintEvent(QPaintEvent*) {
    if (DrawnElsewhere()) return;
    QPainter painter(this);
    painter.drawPixmap(0, 0, context_.Pictures.Scaled(LookNow()));
    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) PaintFocus(painter);
}

// For eyes that follow the keyboard: a frame, dark outside and light inside, so that it is seen on every card
// and every table.
void ImageView::PaintFocus(QPainter& painter) const {
    const qreal line = context_.Scale.Enlarged(2);
    const qreal corner = context_.Scale.Pixels(control_.Corner);
    QRectF frame = rect();
    painter.setRenderHint(QPainter::Antialiasing);
    for (const QColor& color : {QColor(Qt::black), QColor(255, 214, 0)}) {
        painter.setPen(QPen(color, line));
        painter.drawRoundedRect(frame.adjusted(line / 2, line / 2, -line / 2, -line / 2), corner, corner);
        frame.adjust(line, line, -line, -line);
    }
}

void ImageView::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space || !Pressable()) return QWidget::keyPressEvent(event);
    if (!event->isAutoRepeat()) Press();
}

void ImageView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    pressed_ = true;
    pressedAt_ = event->position().toPoint();
}

void ImageView::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    if (!pressed_ || !control_.Draggable) return;
    dragged_ = dragged_ || (at - pressedAt_).manhattanLength() >= QApplication::startDragDistance();
    if (!dragged_) return;
    const AreaView* const area = AreaAt(event->globalPosition().toPoint());
    context_.Moves->Drag(*this, mapToGlobal(at - pressedAt_), area ? area->DropPlace() : nullptr);
}

void ImageView::mouseReleaseEvent(QMouseEvent* event) {
    if (!pressed_ || event->button() != Qt::LeftButton) return;
    pressed_ = false;
    const QPoint at = event->position().toPoint();
    if (dragged_) {
        AreaView* const area = AreaAt(event->globalPosition().toPoint());
        LetGo();
        if (area) area->Dropped(control_);
        return;
    }
    const bool still = (at - pressedAt_).manhattanLength() < QApplication::startDragDistance();
    if (still && rect().contains(at)) Press();
}

void ImageView::LetGo() {
    pressed_ = false;
    if (!dragged_) return;
    dragged_ = false;
    context_.Moves->LetGo();
}

// Only the bare table area takes a card, where nothing covers it, be it a window of another program; anywhere
// else the card goes back to its place.
AreaView* ImageView::AreaAt(const QPoint& global) const {
    auto* const area = dynamic_cast<AreaView*>(QApplication::widgetAt(global));
    return area && area->window() == window() ? area : nullptr;
}

}  // namespace zarpel
