// The game on the Qt desktop.
#include <QApplication>

#include "qt/qt_desktop.h"
#include "ui/playing.h"

int main(int argc, char** argv) {
    QApplication::setApplicationName(QStringLiteral("Zarpel"));
    QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);  // asking the desktop for one delays the start
    const QApplication application(argc, argv);
    zarpel::QtDesktop desktop(QApplication::applicationDirPath().toStdString(), "Zarpel");
    zarpel::Playing playing(desktop);
    // The start is an event like any other: what comes meanwhile waits.
    desktop.Pass(playing, [&playing] { playing.Load(); });
    return QApplication::exec();
}
