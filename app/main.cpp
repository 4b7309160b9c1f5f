// The game on the Qt desktop.
#include <QApplication>
#include <QFileInfo>
#include <cstdio>
#include <cstdlib>

#include "app/command_line.h"
#include "qt/qt_desktop.h"
#include "ui/playing.h"

namespace {

constexpr int kNoDisplay = 1, kWrongUse = 2;  // exit status

// Where there is no display, the toolkit ends the program, with advice for those who made it.
void TellOrLeave(QtMsgType type, const QMessageLogContext& /*where*/, const QString& text) {
    const bool fatal = type == QtFatalMsg;
    std::fprintf(stderr, "%s\n",
                 fatal ? "Zarpel no encuentra una pantalla donde mostrarse." : qPrintable(text));
    if (fatal) std::_Exit(kNoDisplay);
}

QString FullPath(const std::string& path) {
    return QFileInfo(QString::fromLocal8Bit(path)).absoluteFilePath();
}

}  // namespace

int main(int argc, char** argv) {
    const zarpel::CommandLine line = zarpel::ReadCommandLine({argv + std::min(argc, 1), argv + argc});
    if (!line.Answer.empty()) {
        std::fputs(line.Answer.c_str(), line.Wrong ? stderr : stdout);
        return line.Wrong ? kWrongUse : 0;
    }
    qInstallMessageHandler(TellOrLeave);
    int noMoreWords = 1;  // the toolkit would take some for its own
    QApplication::setApplicationName(QStringLiteral("Zarpel"));
    QApplication::setDesktopFileName(QStringLiteral("zarpel"));  // by it the desktop finds name and icon
    QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);  // asking the desktop for one delays the start
    const QApplication application(noMoreWords, argv);
    zarpel::QtDesktop desktop(zarpel::ProgramFolder(), "Zarpel");
    zarpel::Playing playing(desktop);
    // The start is an event like any other: what comes meanwhile waits.
    desktop.Pass(playing, [&desktop, &playing, &line] {
        if (!line.Match) return playing.Load();
        playing.CommonDialog.FileName = desktop.PathForTheGame(FullPath(*line.Match));
        playing.CargarJuego(playing.CommonDialog.FileName);
    });
    return QApplication::exec();
}
