#include "platform/qt/launcher.h"

#include <QProcess>
#include <QStringList>

#include "platform/qt/files.h"

namespace zarpel {

void Launch(const std::string& commandLine) {
    const QString whole = SystemPath(commandLine);
    if (IsRegularFile(whole)) {
        QProcess::startDetached(whole, {});
        return;
    }
    QStringList words = QProcess::splitCommand(QString::fromStdString(commandLine));
    if (words.isEmpty()) return;
    const QString program = SystemPath(words.takeFirst().toStdString());
    QProcess::startDetached(program, words);
}

}  // namespace zarpel
