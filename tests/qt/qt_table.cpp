#include "tests/qt/qt_table.h"

#include <algorithm>

#include "engine/classnaipe.h"
#include "qt/files.h"
#include "qt/motion.h"

namespace zarpel {

void WritePicture(const QString& path, const QColor& color) {
    QImage picture(20, 30, QImage::Format_RGB32);
    picture.fill(color);
    ASSERT_TRUE(picture.save(path));
}

QColor ColorOfCard(int carta) { return {200, 6 * carta, 40}; }

// The installation, with real pictures.
QtTable::QtTable() {
    LetMove(false);
    const auto here = [this](const std::string& path) {
        return Folder.filePath(QString::fromStdString(path).section('\\', -1));
    };
    for (const auto& [path, bytes] : InstalledDesktop().Files) WriteFile(here(path), bytes);
    for (int carta = 1; carta <= classnaipe::kCartas; ++carta) {
        WritePicture(here(CardPicture(carta)), ColorOfCard(carta));
    }
    WritePicture(here("dibujo.jpg"), Qt::blue);
    Desktop.Pass(Game, [this] { Game.Load(); });
    if (!QTest::qWaitForWindowExposed(&Window())) throw std::runtime_error("the window is not shown");
}

// As at the end of the program.
QtTable::~QtTable() {
    Desktop.Pass(Game, [this] { Desktop.Unload(Game); });
    while (Desktop.WindowOf(Game)) QCoreApplication::processEvents();
}

bool QtTable::SomethingMoves() {
    return std::ranges::any_of(QApplication::allWidgets(), [this](QWidget* widget) {
        return dynamic_cast<Motion*>(widget) && widget->window() == &Window() && widget->isVisible();
    });
}

QPoint QtTable::Middle(Image& image) {
    const auto& view = ViewOf<ImageView>(image);
    return view.mapTo(&Window(), view.rect().center());
}

void QtTable::Key(Qt::Key key, quint32 scanCode, Qt::KeyboardModifiers modifiers, bool repeats) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers, scanCode, 0, 0, {}, repeats);
    QCoreApplication::sendEvent(Window().windowHandle(), &event);
}

void QtTable::InBox(std::function<void(QWidget&)> action) {
    auto* const poll = new QTimer(qApp);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, action = std::move(action)] {
        QWidget* const box = QApplication::activeModalWidget();
        if (!box) return;
        poll->stop();
        poll->deleteLater();
        action(*box);
    });
    poll->start(1);
}

}  // namespace zarpel
