#include "qt/views.h"

#include <qdrawutil.h>
#include <QDateTime>
#include <QMouseEvent>
#include <QPainter>

#include "qt/colors.h"
#include "qt/fonts.h"

namespace zarpel {
namespace {

// A release outside the widget takes the click back.
bool EndsClick(const QMouseEvent& release, const QWidget& widget) {
    return release.button() == Qt::LeftButton && widget.rect().contains(release.position().toPoint());
}

}  // namespace

// --- Labels ---

LabelView::LabelView(Label& label, const ViewContext& context, QWidget* parent)
    : ControlView(label, context, parent) {
    setTextFormat(Qt::PlainText);
    if (label.Click) setFocusPolicy(Qt::TabFocus);
    if (label.Click) setCursor(Qt::PointingHandCursor);
}

// Where the label stands. One that is sized to its text keeps the edge, or the middle, that its alignment
// names.
QRect LabelView::Room(const QFont& font) const {
    QRect room = context_.Scale.Pixels(PlaceOf(control_));
    if (!control_.AutoSize) return room;
    const QString caption = QString::fromStdString(control_.Caption);
    if (caption.isEmpty()) return {room.topLeft(), QSize(0, room.height())};
    const QSize natural = NaturalSize(caption, font);
    const bool right = control_.Align == Alignment::Right;
    const int most = control_.MaxWidth > 0 ? context_.Scale.Pixels(control_.MaxWidth)
                     : right               ? room.right() + 1
                                           : parentWidget()->width() - room.left();
    const int width = std::min(natural.width(), most);
    if (right) room.setLeft(room.right() + 1 - width);
    if (control_.Align == Alignment::Center) room.moveLeft(room.center().x() - width / 2);
    room.setSize({width, std::max(natural.height(), room.height())});
    return room;
}

void LabelView::Sync() {
    ControlView::Sync();
    const QString caption = QString::fromStdString(control_.Caption);
    const QFont wanted = FontOf(control_.Font, context_.Scale);
    setGeometry(Room(wanted));
    const FittedText fitted = control_.IsPath ? ShortenPath(caption, wanted, width())
                                              : FitText(caption, wanted, size(), control_.WordWrap);
    setFont(fitted.Font);
    drawn_ = fitted.Text;
    // What is hard to read is said by the tooltip.
    const bool small = fitted.Font.pixelSize() < wanted.pixelSize() || drawn_ != caption;
    if (small) setToolTip(Qt::convertFromPlainText((toolTip() + '\n' + caption).trimmed()));
    SayLater();
    update();
}

// Setting the text tells a screen reader, so only a new one is set.
void LabelView::Say() {
    const QString caption = QString::fromStdString(control_.Caption);
    if (caption != text()) setText(caption);
    if (control_.SpokenAs.empty()) return;
    const QString name = QString::fromStdString(control_.SpokenAs);
    setAccessibleName(caption.isEmpty() ? name : name + ": " + caption);
    setAccessibleDescription(QString::fromStdString(control_.ToolTip));
}

void LabelView::Write(QPainter& painter, const QPoint& offset) const {
    const int across = control_.Align == Alignment::Center  ? Qt::AlignHCenter
                       : control_.Align == Alignment::Right ? Qt::AlignRight
                                                            : Qt::AlignLeft;
    const int wrap = control_.WordWrap ? Qt::TextWordWrap : Qt::TextSingleLine;
    const int down = control_.Border ? Qt::AlignVCenter : Qt::AlignTop;
    painter.drawText(rect().translated(offset), across | down | wrap, drawn_);
}

// Letters that the ground would swallow have a thin outline. The focus is a line in black and white around
// the edge, which shows on every colour and changes none.
void LabelView::paintEvent(QPaintEvent*) {
    constexpr double kLeastContrast = 3;
    QPainter painter(this);
    const QColor letters = ColorOf(control_.ForeColor);
    const QColor ground = ColorOf(control_.Opaque ? control_.BackColor : ground_->BackColor);
    if (control_.Opaque) painter.fillRect(rect(), ground);
    if (Contrast(letters, ground) < kLeastContrast) {
        const int thin = std::max(1, context_.Scale.Enlarged(1) / 2);
        painter.setPen(Contrast(letters, Qt::black) > Contrast(letters, Qt::white) ? Qt::black : Qt::white);
        for (const QPoint side :
             {QPoint(-1, 0), {1, 0}, {0, -1}, {0, 1}, {-1, -1}, {1, 1}, {-1, 1}, {1, -1}}) {
            Write(painter, side * thin);
        }
    }
    painter.setPen(letters);
    Write(painter, {});
    if (control_.Border) painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (!hasFocus()) return;
    painter.setPen(Qt::black);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setPen(QPen(Qt::white, 1, Qt::DashLine));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void LabelView::keyPressEvent(QKeyEvent* event) {
    const bool presses =
        event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!presses || !Pressable()) return QLabel::keyPressEvent(event);
    Press();
}

void LabelView::mouseReleaseEvent(QMouseEvent* event) {
    if (EndsClick(*event, *this)) Press();
}

// --- Buttons ---

ButtonView::ButtonView(Button& button, const ViewContext& context, QWidget* parent)
    : ControlView(button, context, parent) {
    setAutoDefault(true);  // Enter presses it while it has the focus
    setDefault(button.Default);
    connect(this, &QPushButton::clicked, this, [this] { Raise(control_.Click); });
}

void ButtonView::Sync() {
    syncing_ = true;
    ControlView::Sync();
    syncing_ = false;
    const QString caption = QString::fromStdString(control_.Caption);
    if (caption != text()) setText(caption);
    setFont(FitText(QString(caption).remove('&'), FontOf({}, context_.Scale),
                    size() - QSize(height() / 4, height() / 4), false)
                .Font);
}

// A button that is disabled would hand its focus on, and the keys would press a neighbour. It keeps it.
bool ButtonView::focusNextPrevChild(bool next) { return syncing_ || QPushButton::focusNextPrevChild(next); }

// --- Frames and lines ---

AreaView::AreaView(Frame& frame, const ViewContext& context, QWidget* parent)
    : ControlView(frame, context, parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void AreaView::Sync() {
    ControlView::Sync();
    update();
}

void AreaView::paintEvent(QPaintEvent*) { QPainter(this).fillRect(rect(), ColorOf(control_.BackColor)); }

void AreaView::Dropped(Image& source) {
    if (!control_.DragDrop) return;
    Raise([this, &source] { control_.DragDrop(source); });
}

FrameView::FrameView(Frame& frame, const ViewContext& context, QWidget* parent)
    : ControlView(frame, context, parent) {
    if (frame.Click) setCursor(Qt::PointingHandCursor);
}

void FrameView::Sync() {
    ControlView::Sync();
    setTitle(QString::fromStdString(control_.Caption));
}

// The caption interrupts the upper line, as the layouts have it: what the frame holds begins right under it.
void FrameView::paintEvent(QPaintEvent*) {
    constexpr int kIndent = 120, kGap = 30;  // twips
    const QRect caption(context_.Scale.Pixels(kIndent), 0, fontMetrics().horizontalAdvance(title()),
                        fontMetrics().height());
    const int gap = context_.Scale.Pixels(kGap);
    QPainter painter(this);
    painter.drawText(caption, Qt::TextSingleLine | Qt::TextDontClip, title());
    painter.setClipRegion(QRegion(rect()) - QRegion(caption.adjusted(-gap, 0, gap, 0)));
    qDrawShadeRect(&painter, rect().adjusted(0, caption.center().y(), 0, 0), palette(), true);
}

void FrameView::mouseReleaseEvent(QMouseEvent* event) {
    if (EndsClick(*event, *this)) Raise(control_.Click);
}

LineView::LineView(Line& line, const ViewContext& context, QWidget* parent)
    : ControlView(line, context, parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LineView::Sync() {
    ControlView::Sync();
    const QRect ends = context_.Scale.Pixels(
        Place{control_.X1, control_.Y1, control_.X2 - control_.X1, control_.Y2 - control_.Y1});
    const int thickness = std::max(1, context_.Scale.Enlarged(1));
    setGeometry(QRect(ends.topLeft(), ends.size() + QSize(thickness, thickness)));
}

void LineView::paintEvent(QPaintEvent*) { QPainter(this).fillRect(rect(), ColorOf(control_.BorderColor)); }

// --- Toolbar and status bar ---

ToolBarView::ToolBarView(ToolBar& bar, const ViewContext& context, QWidget* parent)
    : ControlView(bar, context, parent) {
    for (const ToolButton& button : bar.Buttons) {
        auto* const view = buttons_.emplace_back(new QToolButton(this));
        view->setText(QString::fromStdString(button.Caption));
        view->setToolTip(QString::fromStdString(button.ToolTip));
        view->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        view->setFocusPolicy(Qt::TabFocus);
        connect(view, &QToolButton::clicked, this,
                [this, key = button.Key] { Raise([this, key] { control_.ButtonClick(key); }); });
    }
}

void ToolBarView::Sync() {
    ControlView::Sync();
    constexpr int kIconPixels = 48;
    const int pixels = context_.Scale.Enlarged(kIconPixels);
    int left = 0;
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        QToolButton* const view = buttons_[i];
        const auto picture = QString::fromStdString(control_.Buttons[i].Picture);
        view->setIcon(QPixmap::fromImage(BuiltInPicture(picture, qCeil(pixels * devicePixelRatioF()))));
        view->setIconSize({pixels, pixels});
        view->setGeometry(context_.Scale.Pixels(Place{left, 0, control_.ButtonWidth, control_.ButtonHeight}));
        left += control_.ButtonWidth;
    }
}

StatusBarView::StatusBarView(StatusBar& bar, const ViewContext& context, QWidget* parent)
    : ControlView(bar, context, parent) {
    setAutoFillBackground(true);
    for (std::size_t i = 0; i < bar.Panels.size(); ++i) {
        auto* const panel = new QLabel(this);
        panel->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        panels_.push_back(panel);
    }
    clock_.setInterval(1000);
    connect(&clock_, &QTimer::timeout, this, [this] { ShowClock(); });
}

void StatusBarView::Sync() {
    const int height = context_.Scale.Pixels(control_.Height);
    setGeometry(0, parentWidget()->height() - height, parentWidget()->width(), height);
    int left = 0;
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        const int width = control_.Panels[i].Width;
        const QRect panel = context_.Scale.Pixels(Place{left, 0, width, control_.Height});
        panels_[i]->setGeometry(panel.intersected(rect()));
        left += width;
    }
    // Nobody sees a hidden clock go.
    if (control_.Visible) {
        ShowClock();
        clock_.start();
    } else {
        clock_.stop();
    }
    setVisible(control_.Visible);
}

void StatusBarView::ShowClock() {
    const QDateTime now = QDateTime::currentDateTime();
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        const StatusBar::Panel& panel = control_.Panels[i];
        switch (panel.Holds) {
            case StatusBar::Content::Text:
                panels_[i]->setText(QString::fromStdString(panel.Text));
                break;
            case StatusBar::Content::Date:
                panels_[i]->setText(now.toString(QStringLiteral("dd/MM/yyyy")));
                break;
            case StatusBar::Content::Time:
                panels_[i]->setText(now.toString(QStringLiteral("HH:mm")));
                break;
        }
    }
}

// --- Tabs ---

TabStripView::TabStripView(TabStrip& strip, const ViewContext& context, QWidget* parent)
    : ControlView(strip, context, parent) {
    // The style draws a strip so much lighter than a button; the page in it has the button's colour.
    constexpr int kLighter = 105;  // per cent
    QPalette own = palette();
    own.setColor(QPalette::Button, own.button().color().darker(kLighter));
    setPalette(own);
    for (const TabStrip::Tab& tab : strip.Tabs) {
        const int index = addTab(new QWidget, QString::fromStdString(tab.Caption));
        setTabToolTip(index, QString::fromStdString(tab.ToolTip));
    }
    connect(this, &QTabWidget::tabBarClicked, this, [this](int index) {
        Raise([this, index] {
            control_.Selected = index + 1;
            if (control_.Click) control_.Click();
        });
    });
}

void TabStripView::Sync() {
    ControlView::Sync();
    setCurrentIndex(control_.Selected - 1);
}

}  // namespace zarpel
