#include "qt/help/help_seal.h"

#include <QCryptographicHash>

namespace zarpel {
namespace {

QByteArray SealOf(QByteArrayView content) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(content);
    return "\nZarpel SHA-256 " + hash.result().toHex() + "\n";
}

}  // namespace

QByteArray Sealed(const QByteArray& content) { return content + SealOf(content); }

bool IsSealed(const QByteArray& file) {
    static const qsizetype sealLength = SealOf({}).size();
    if (file.size() <= sealLength) return false;
    const qsizetype contentLength = file.size() - sealLength;
    return QByteArrayView(file).sliced(contentLength) == SealOf(QByteArrayView(file).first(contentLength));
}

}  // namespace zarpel
