// The help file that the build made, and the bytes of files.
#pragma once

#include <QFile>
#include <QString>

namespace zarpel {

inline QString GuidePath() { return QStringLiteral(HELP_FILE); }

inline QByteArray BytesOf(const QString& file) {
    QFile in(file);
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

inline void WriteBytes(const QString& file, const QByteArray& bytes) {
    QFile out(file);
    if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size()) qFatal("no room for a file");
}

}  // namespace zarpel
