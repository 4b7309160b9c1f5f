#include "qt/motion.h"

#include <QCoreApplication>
#include <QEasingCurve>
#include <QPainter>
#include <QStyle>
#include <QTimerEvent>
#include <algorithm>

#include "qt/views.h"

namespace zarpel {
namespace {

constexpr int kGlideMs = 220, kRiseMs = 80;
constexpr int kComeInMs = 480;  // until the last of those that come in together lies
constexpr int kFrameMs = 16;

// In twips of the form that the widget `table` stands for.
QRectF PlaceIn(const QWidget* table, const ImageView& view) {
    QRectF place;
    for (const QWidget* at = &view; at != table; at = at->parentWidget()) {
        const Place own = dynamic_cast<const View&>(*at).Where();
        place.translate(own.Left, own.Top);
        if (at == &view) place.setSize(QSizeF(own.Width, own.Height));
    }
    return place;
}

}  // namespace

Motion::Motion(QWidget* table, const TableScale& scale, PictureStore& pictures)
    : QWidget(table->parentWidget()), table_(table), scale_(scale), pictures_(pictures) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    clock_.start();
}

void Motion::Changed() {
    if (changed_) return;
    changed_ = true;
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

bool Motion::Carries(const ImageView& view) const {
    return (dragged_ && dragged_->View == &view) ||
           std::ranges::any_of(flights_, [&view](const Flight& flight) { return flight.View == &view; });
}

// --- What moves ---

void Motion::Settle() {
    if (!changed_) return;
    changed_ = false;
    now_ = clock_.elapsed();
    std::vector<Sight> now;
    for (const Track& track : tracks_) now.push_back(SightOf(*track.View));
    if (Shows()) {
        Follow(now);
    } else {
        Land([](const Flight&) { return true; });
    }
    for (std::size_t i = 0; i < tracks_.size(); ++i) {
        Image& control = tracks_[i].View->Control();
        control.ComesFrom = control.GoesTo = Side::None;
        tracks_[i].Before = now[i];
    }
    Advance();
}

bool Motion::Shows() const {
    return window()->isVisible() && !window()->isMinimized() &&
           style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) != 0;
}

Motion::Sight Motion::SightOf(const ImageView& view) const {
    const Image& control = view.Control();
    return {control.Visible, control.Picture, PlaceIn(table_, view), view.Seen()};
}

// Who held the picture and does so no more.
const Motion::Track* Motion::Find(const std::string& picture, const std::vector<Sight>& now) const {
    for (std::size_t i = 0; i < tracks_.size(); ++i) {
        const Sight& before = tracks_[i].Before;
        const bool still = now[i].Held && now[i].Picture == picture;
        if (before.Held && before.Picture == picture && !still) return &tracks_[i];
    }
    return nullptr;
}

void Motion::Follow(const std::vector<Sight>& now) {
    const auto entering = std::ranges::count_if(
        tracks_, [](const Track& track) { return track.View->Control().ComesFrom != Side::None; });
    const auto apart = (kComeInMs - kGlideMs) / std::max<qint64>(1, entering - 1);
    const qint64 begins = now_ - kFrameMs;  // the first frame shows a step, not the old place
    qint64 turn = begins;
    std::vector<Flight> flights;
    std::vector<const ImageView*> still;
    for (std::size_t i = 0; i < tracks_.size(); ++i) {
        const Track& track = tracks_[i];
        const Sight &before = track.Before, &after = now[i];
        const Image& control = track.View->Control();
        const bool enters = after.Held && control.ComesFrom != Side::None;
        const bool stays = before.Held && after.Held && before.Picture == after.Picture && !enters;
        if (before.Held && !stays && control.GoesTo != Side::None) {
            const QRectF from = Position(track);
            flights.push_back(
                {nullptr, before.How, from, Edge(control.GoesTo, from.size()), begins, kGlideMs});
        }
        if (stays && before.At == after.At) {
            still.push_back(track.View);
        } else if (stays) {
            flights.push_back({track.View, after.How, Position(track), after.At, begins, kRiseMs});
        } else if (enters) {
            flights.push_back(
                {track.View, after.How, Edge(control.ComesFrom, after.At.size()), after.At, turn, kGlideMs});
            turn += apart;
        } else if (const Track* const source = after.Held ? Find(after.Picture, now) : nullptr) {
            flights.push_back({track.View, after.How, Position(*source), after.At, begins, kGlideMs});
        }
    }
    // What is under way to a place where nothing has changed, or off the table, goes on.
    Land([&still](const Flight& flight) {
        return flight.View && std::ranges::find(still, flight.View) == still.end();
    });
    for (const Flight& flight : flights) TakeOff(flight);
}

// --- Where it is ---

// In the middle of the edge, just out of sight.
QRectF Motion::Edge(Side side, const QSizeF& size) const {
    const QSizeF room = QSizeF(parentWidget()->size()) / scale_.Factor();
    const QPointF origin = QPointF(table_->pos()) / scale_.Factor();
    const double top = side == Side::Top ? -size.height() : room.height();
    return {QPointF((room.width() - size.width()) / 2, top) - origin, size};
}

QRectF Motion::Position(const Flight& flight) const {
    static const QEasingCurve kEased(QEasingCurve::OutCubic);
    const double passed = double(now_ - flight.Begins) / double(flight.Ms);
    const double part = kEased.valueForProgress(std::clamp(passed, 0., 1.));
    return {flight.From.topLeft() + (flight.To.topLeft() - flight.From.topLeft()) * part,
            flight.From.size() + (flight.To.size() - flight.From.size()) * part};
}

QRectF Motion::Position(const Track& track) const {
    const auto flight = std::ranges::find(flights_, track.View, &Flight::View);
    return flight == flights_.end() ? track.Before.At : Position(*flight);
}

QRect Motion::Pixels(const QRectF& place) const {
    return QRectF(place.topLeft() * scale_.Factor() + table_->pos(), place.size() * scale_.Factor()).toRect();
}

// --- Dragging ---

void Motion::Drag(ImageView& view, const QPoint& corner, const Image* place) {
    const QPointF at = QPointF(table_->mapFromGlobal(corner)) / scale_.Factor();
    dragged_ = {&view, {at, PlaceIn(table_, view).size()}, place};
    view.update();
    Advance();
}

void Motion::LetGo() {
    if (!dragged_) return;
    const Dragged dragged = *dragged_;
    dragged_.reset();
    Land([&dragged](const Flight& flight) { return flight.View == dragged.View; });
    if (Shows()) {
        TakeOff(
            {dragged.View, dragged.View->Seen(), dragged.At, PlaceIn(table_, *dragged.View), now_, kGlideMs});
    }
    dragged.View->update();
    Advance();
}

// Where the dragged picture would lie. Empty: nowhere.
QRect Motion::Mark() const {
    const auto place = std::ranges::find_if(
        tracks_, [this](const Track& track) { return dragged_->Place == &track.View->Control(); });
    return place == tracks_.end() ? QRect() : Pixels(PlaceIn(table_, *place->View));
}

// --- Drawing ---

void Motion::timerEvent(QTimerEvent*) { Advance(); }

// The view no longer draws its picture.
void Motion::TakeOff(const Flight& flight) {
    flights_.push_back(flight);
    if (flight.View) flight.View->Redraw();
}

// The views draw these pictures again.
void Motion::Land(const std::function<bool(const Flight&)>& which) {
    std::erase_if(flights_, [&which](const Flight& flight) {
        if (!which(flight)) return false;
        if (flight.View) flight.View->Redraw();
        return true;
    });
}

void Motion::Advance() {
    now_ = clock_.elapsed();
    Land([this](const Flight& flight) { return now_ >= flight.Begins + flight.Ms; });
    if (flights_.empty()) {
        frames_.stop();
    } else if (!frames_.isActive()) {
        frames_.start(kFrameMs, Qt::PreciseTimer, this);
    }
    setGeometry(parentWidget()->rect());
    setVisible(!flights_.empty() || dragged_);
    raise();
    QRegion moving;
    for (const Flight& flight : flights_) moving += Pixels(Position(flight));
    if (dragged_) moving += Pixels(dragged_->At).united(Mark());
    update(moving + painted_);
    painted_ = moving;
}

void Motion::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (const Flight& flight : flights_) {
        painter.drawPixmap(Pixels(Position(flight)), pictures_.Scaled(flight.How));
    }
    if (!dragged_) return;
    if (const QRect mark = Mark(); !mark.isEmpty()) {
        const double corner = dragged_->Place->Corner * scale_.Factor();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(255, 255, 255, 200), std::max(1, scale_.Enlarged(2)), Qt::DashLine));
        painter.setBrush(QColor(255, 255, 255, 60));
        painter.drawRoundedRect(QRectF(mark).adjusted(2, 2, -2, -2), corner, corner);
    }
    painter.drawPixmap(Pixels(dragged_->At), pictures_.Scaled(dragged_->View->Seen()));
}

}  // namespace zarpel
