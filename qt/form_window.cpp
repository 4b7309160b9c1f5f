#include "qt/form_window.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>
#include <QWindow>
#include <map>
#include <set>
#include <utility>

#include "qt/colors.h"
#include "qt/keyboard.h"
#include "qt/motion.h"

namespace zarpel {
namespace {

// A window that has not been moved for so long stays where it is.
constexpr int kRestMs = 100;

constexpr Qt::WindowFlags kDialogFlags = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                         Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint;

// Makes the views of a container's controls, in stacking order.
class Builder : public ControlVisitor {
  public:
    Builder(const ViewContext& context, std::vector<View*>& views) : context_(context), views_(views) {}

    void Build(const Container& container, QWidget* parent) {
        QWidget* const outer = std::exchange(parent_, parent);
        const Container* const around = std::exchange(container_, &container);
        for (Control* const child : container.Children) child->Accept(*this);
        parent_ = outer;
        container_ = around;
    }

    // A covered picture is drawn again when its cover changes.
    void JoinCovers() {
        for (const auto& [image, view] : images_) {
            const auto cover = images_.find(image->Cover);
            if (cover != images_.end()) cover->second->Covers(*view);
        }
    }

    // Covers go where the pictures go that they cover.
    void LetMove() {
        std::set<const Image*> covers;
        for (const auto& [image, view] : images_) covers.insert(image->Cover);
        for (View* const view : views_) {
            auto* const image = dynamic_cast<ImageView*>(view);
            if (image && !covers.contains(&image->Control())) context_.Moves->Add(*image);
        }
    }

    void Visit(Image& image) override { images_[&image] = Add<ImageView>(image); }
    void Visit(CheckBox&) override {}  // kept, not drawn
    void Visit(Label& label) override { Add<LabelView>(label)->StandsOn(*container_); }
    void Visit(Button& button) override { Add<ButtonView>(button); }
    void Visit(Line& line) override { Add<LineView>(line); }
    void Visit(ToolBar& bar) override { Add<ToolBarView>(bar); }
    void Visit(StatusBar& bar) override { Add<StatusBarView>(bar, parent_->parentWidget()); }
    void Visit(TabStrip& strip) override { Add<TabStripView>(strip); }
    void Visit(Frame& frame) override {
        QWidget* const view =
            frame.Border ? static_cast<QWidget*>(Add<FrameView>(frame)) : Add<AreaView>(frame);
        Build(frame, view);
    }

  private:
    template <class ViewClass, class Model>
    ViewClass* Add(Model& control) {
        return Add<ViewClass>(control, parent_);
    }

    template <class ViewClass, class Model>
    ViewClass* Add(Model& control, QWidget* parent) {
        auto* const view = new ViewClass(control, context_, parent);
        views_.push_back(view);
        return view;
    }

    const ViewContext& context_;
    std::vector<View*>& views_;
    QWidget* parent_ = nullptr;  // draws container_
    const Container* container_ = nullptr;
    std::map<const Image*, ImageView*> images_;
};

QAbstractButton* ButtonOf(QWidget* window, bool Button::*role) {
    for (auto* const button : window->findChildren<QPushButton*>()) {
        auto* const view = dynamic_cast<ButtonView*>(button);
        if (view && view->Control().*role) return button;
    }
    return nullptr;
}

}  // namespace

// --- Client area ---

ClientArea::ClientArea(Form& form, const ViewContext& context, QWidget* parent)
    : QWidget(parent), form_(form), context_(context), table_(new QWidget(this)) {
    setAttribute(Qt::WA_OpaquePaintEvent);  // nothing needs to be painted below it
    setMouseTracking(true);
    table_->setMouseTracking(true);  // what happens on its bare parts happens on the area
}

void ClientArea::Arrange() {
    QRect table(QPoint(), context_.Scale.Pixels(Place{0, 0, form_.Width, form_.Height}).size());
    table.moveTopLeft({(width() - table.width()) / 2, (height() - table.height()) / 2});
    table_->setGeometry(table);
    for (QObject* const child : children()) {
        if (auto* const bar = dynamic_cast<StatusBarView*>(child)) bar->Sync();
    }
}

void ClientArea::paintEvent(QPaintEvent*) { QPainter(this).fillRect(rect(), ColorOf(form_.BackColor)); }

void ClientArea::mouseMoveEvent(QMouseEvent* event) {
    const QPointF at = event->position() - table_->pos();
    const int x = context_.Scale.Twips(at.x());
    const int y = context_.Scale.Twips(at.y());
    context_.Gate.Pass([this, x, y] { form_.Form_MouseMove(x, y); });
}

void ClientArea::mouseDoubleClickEvent(QMouseEvent*) {
    context_.Gate.Pass([this] { form_.Form_DblClick(); });
}

// --- Window ---

FormWindow::FormWindow(Form& form, const ViewContext& context, QWidget* owner)
    : QWidget(owner, form.Border == FormBorder::Sizable ? Qt::Window : kDialogFlags),
      form_(form),
      context_(context) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    client_ = new ClientArea(form, context_, this);
    if (form.Border == FormBorder::Sizable)
        client_->setMinimumSize((QSizeF(FormSize()) * kSmallestScale).toSize());
    layout->addWidget(client_, 1);
    context_.Moves = new Motion(client_->Table(), context_.Scale, context_.Pictures);
    announcer_ = new Announcer(this);
    moved_.setSingleShot(true);
    moved_.setInterval(kRestMs);
    if (form.Border == FormBorder::Sizable) {
        connect(&moved_, &QTimer::timeout, this, [this] { KeepOnScreen(*this, FormSize()); });
    }
    form.Changed = [this] {
        setWindowTitle(QString::fromStdString(form_.Caption));
        client_->update();
    };
}

FormWindow::~FormWindow() { form_.Changed = nullptr; }

void FormWindow::AddMenus() {
    if (form_.Menus.empty()) return;
    auto* const bar = new QMenuBar(this);
    layout()->setMenuBar(bar);
    auto* const f10 = new QShortcut(Qt::Key_F10, this);
    connect(f10, &QShortcut::activated, bar, [bar] { bar->setActiveAction(bar->actions().constFirst()); });
    for (const Menu* const menu : form_.Menus) {
        QMenu* const drop = bar->addMenu(QString::fromStdString(menu->Caption));
        for (const Menu* const entry : menu->Entries) {
            QAction* const action = drop->addAction(QString::fromStdString(entry->Caption));
            action->setMenuRole(QAction::NoRole);
            connect(action, &QAction::triggered, this, [this, entry] {
                if (entry->Click) context_.Gate.Pass(entry->Click);
            });
        }
    }
}

void FormWindow::Fill() {
    form_.Refresh();
    AddMenus();
    Builder builder(context_, views_);
    builder.Build(form_, client_->Table());
    builder.JoinCovers();
    builder.LetMove();
}

void FormWindow::Sync() {
    if (form_.Border == FormBorder::FixedDialog)
        setFixedSize(context_.Scale.Pixels(Place{0, 0, form_.Width, form_.Height}).size());
    form_.Refresh();
    client_->Arrange();
    for (View* const view : views_) {
        view->Follow();
        view->Sync();
    }
    context_.Moves->Settle();  // before the first picture
}

void FormWindow::FocusFirst() {
    if (QWidget* const button = ButtonOf(this, &Button::Default)) return button->setFocus();
    focusNextChild();
    while (dynamic_cast<ImageView*>(focusWidget())) focusNextChild();
}

void FormWindow::PlaceDialog() {
    Sync();
    auto* const below = dynamic_cast<FormWindow*>(parentWidget());
    Site site = below ? below->Middle() : Site{nullptr, screen()->geometry()};
    if (form_.CenterOnScreen) {
        site.Area =
            rect().translated(screen()->geometry().topLeft() +
                              QPoint(context_.Scale.Pixels(form_.Left), context_.Scale.Pixels(form_.Top)));
    }
    PlaceAt(site, *this);
}

QRect FormWindow::OnScreen(const Place& place) const {
    const QWidget& table = *client_->Table();
    return context_.Scale.Pixels(place).translated(table.mapToGlobal(QPoint()));
}

Site FormWindow::Middle() { return {this, OnScreen({0, 0, form_.Width, form_.Height})}; }

Site FormWindow::BoxSite() {
    return form_.BoxArea.Width > 0 ? Site{this, OnScreen(form_.BoxArea)} : Middle();
}

// Key preview: the window sees a key before the focused control, which gets it afterwards all the same; those
// that a menu takes are the menu's alone. A key that repeats because it is held down counts once, so that it
// cannot fill the computer's pause with moves.
bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Expose && !updatesEnabled()) FitNow();
    if (event->type() == QEvent::ThemeChange && Themed) Themed();
    if (event->type() == QEvent::WindowBlocked) {
        for (View* const view : views_) view->LetGo();
    }
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape &&
        context_.Moves->Dragging()) {
        for (View* const view : views_) view->LetGo();
        return true;
    }
    const bool menus = QApplication::activePopupWidget() || dynamic_cast<QMenuBar*>(focusWidget());
    if (event->type() == QEvent::KeyPress && !menus) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        const int code = KeyCodeOf(key);
        const int mask = ShiftMaskOf(key.modifiers());
        if (code != kKeyNone && !key.isAutoRepeat()) {
            context_.Gate.Pass([this, code, mask] { form_.Form_KeyDown(code, mask); });
        }
    }
    return QWidget::eventFilter(watched, event);
}

QSize FormWindow::ClientSize() const {
    layout()->activate();
    return client_->size();
}

void FormWindow::FitNow() {
    if (!Fit || !windowHandle() || !windowHandle()->isExposed()) return;
    Fit();
    setUpdatesEnabled(true);
}

void FormWindow::resizeEvent(QResizeEvent*) {
    FitNow();
    moved_.start();
}

void FormWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::WindowStateChange) moved_.start();
    QWidget::changeEvent(event);
}

// Keys reach the native window first; it exists only once the widget is shown.
void FormWindow::showEvent(QShowEvent*) {
    if (Fit && !windowHandle()->isExposed()) setUpdatesEnabled(false);
    windowHandle()->installEventFilter(this);
    connect(windowHandle(), &QWindow::screenChanged, this, &FormWindow::FitNow, Qt::UniqueConnection);
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    context_.Gate.Pass([this] { form_.Form_QueryClose(); });
}

// Enter and Escape press the default and the cancel button.
void FormWindow::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool escape = event->key() == Qt::Key_Escape;
    if (!enter && !escape) return QWidget::keyPressEvent(event);
    QAbstractButton* const button = ButtonOf(this, enter ? &Button::Default : &Button::Cancel);
    if (button) button->click();
}

}  // namespace zarpel
