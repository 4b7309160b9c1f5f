#include "tests/qt/qt_table.h"

#include <QFile>

#include "engine/classnaipe.h"

namespace zarpel {
namespace {

void WriteFile(const QString& path, const std::string& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes.data(), static_cast<qint64>(bytes.size()));
}

}  // namespace

void WritePicture(const QString& path, const QColor& color, const QSize& size) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(color);
    ASSERT_TRUE(picture.save(path));
}

QColor ColorOfCard(int carta) { return {200, 6 * carta, 40}; }

// The installation of the scripted desktop, with real pictures.
QtTable::QtTable() {
    const ScriptedDesktop scripted;
    for (const auto& [path, bytes] : scripted.Files) {
        WriteFile(Folder.filePath(QString::fromStdString(path).section('\\', -1)), bytes);
    }
    for (int carta = 1; carta <= classnaipe::kCartas; ++carta) {
        const QString name = QString::fromStdString(CardPicture(carta)).section('\\', -1);
        WritePicture(Folder.filePath(name), ColorOfCard(carta));
    }
    WritePicture(Folder.filePath("dibujo.jpg"), Qt::blue);
    Desktop.Pass(Game, [this] { Game.Load(); });
    if (!QTest::qWaitForWindowExposed(&Window())) throw std::runtime_error("the window is not shown");
}

// As at the end of the program.
QtTable::~QtTable() {
    QTimer::singleShot(0, [this] {
        if (!Desktop.WindowOf(Game)) return QApplication::quit();
        Desktop.Pass(Game, [this] { Desktop.Unload(Game); });
    });
    QApplication::exec();
}

QPoint QtTable::Middle(Control& control, QWidget& container) {
    const Scale scale;
    return container.mapTo(&Window(), scale.Pixels(PlaceOf(control)).center());
}

QPoint QtTable::Middle(Image& image) {
    auto& view = ViewOf<ImageView>(image);
    return Middle(image, *view.parentWidget());
}

QPoint QtTable::BareTable() { return ViewOf<AreaView>(Game.Frame1).mapTo(&Window(), QPoint(5, 5)); }

void QtTable::Click(const QPoint& at, Qt::MouseButton button) {
    QTest::mouseClick(Window().windowHandle(), button, {}, at);
}

void QtTable::Drag(const QPoint& from, const QPoint& to) {
    QWindow* const window = Window().windowHandle();
    QTest::mousePress(window, Qt::LeftButton, {}, from);
    QTest::mouseMove(window, (from + to) / 2);
    QTest::mouseMove(window, to);
    QTest::mouseRelease(window, Qt::LeftButton, {}, to);
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
