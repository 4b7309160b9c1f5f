#include "qt/launcher.h"

#include <QProcess>
#include <QStringList>

#include "qt/files.h"

namespace zarpel {

void Run(const std::string& commandLine, const GamePaths& paths) {
    const QString whole = paths.ToRead(commandLine);
    if (IsRegularFile(whole)) {
        QProcess::startDetached(whole, {});
        return;
    }
    QString line = QString::fromStdString(commandLine);
    // The preference file writes double quotes as apostrophes.
    if (!line.contains('"')) line.replace('\'', '"');
    QStringList words = QProcess::splitCommand(line);
    if (words.isEmpty()) return;
    const QString program = paths.ToRead(words.takeFirst().toStdString());
    QProcess::startDetached(program, words);
}

}  // namespace zarpel
