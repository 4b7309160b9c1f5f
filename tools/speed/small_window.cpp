// The least that a program with a menu and a text can show on the toolkit: the game's start and memory are
// compared with it. Fonts are most of it; a window without words loads none.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QMainWindow window;
    window.menuBar()->addMenu(QStringLiteral("Archivo"))->addAction(QStringLiteral("Salir"));
    window.setCentralWidget(new QLabel(QStringLiteral("Zarpel")));
    window.showMaximized();
    return QApplication::exec();
}
