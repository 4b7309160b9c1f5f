// The help file that the build made, and damaged copies of it.
#pragma once

#include <QFile>
#include <QString>
#include <QTemporaryDir>

namespace zarpel {

inline QString GuidePath() { return QStringLiteral(HELP_FILE); }

inline QByteArray BytesOf(const QString& file) {
    QFile in(file);
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

// A folder with one help file in it, whose bytes a test chooses.
class Copy {
  public:
    QString Path() const { return folder_.filePath(QStringLiteral("ayuda.chm")); }

    void Write(const QByteArray& bytes) const {
        QFile out(Path());
        if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size())
            qFatal("no room for test files");
    }

  private:
    QTemporaryDir folder_;
};

}  // namespace zarpel
