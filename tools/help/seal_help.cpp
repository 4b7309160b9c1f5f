// Finishes a help file that the help compiler has written: takes out the two times of day that the compiler
// put in, so that the same pages always make the same file, and adds the seal without which the viewer does
// not open it.
//
// Usage: seal_help COMPILED SEALED
#include <QFile>
#include <QtEndian>
#include <cstdio>

#include "qt/files.h"
#include "qt/help/help_seal.h"

namespace {

constexpr qsizetype kFileTimeAt = 0x10;       // four bytes in the file's header
constexpr qsizetype kContentOffsetAt = 0x58;  // eight bytes in it: where the uncompressed objects begin
constexpr qsizetype kTimeLength = 4;

// "/#SYSTEM" is the only uncompressed object that begins with the version number 3 and goes on with the entry
// for the time, as the compiler writes it: number 10, length 4.
void ClearSystemTime(QByteArray& file) {
    const QByteArray entry("\x03\0\0\0\x0a\0\x04\0", 8);
    const auto content = qFromLittleEndian<quint64>(file.constData() + kContentOffsetAt);
    const qsizetype found = file.indexOf(entry, static_cast<qsizetype>(content));
    if (found >= 0) file.replace(found + entry.size(), kTimeLength, QByteArray(kTimeLength, '\0'));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: seal_help COMPILED SEALED\n", stderr);
        return 2;
    }
    QFile in(QFile::decodeName(argv[1]));
    if (!in.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "seal_help: cannot read %s\n", argv[1]);
        return 1;
    }
    QByteArray file = in.readAll();
    if (!file.startsWith("ITSF") || file.size() < kContentOffsetAt + 8) {
        std::fprintf(stderr, "seal_help: %s is not a compiled help file\n", argv[1]);
        return 1;
    }
    file.replace(kFileTimeAt, kTimeLength, QByteArray(kTimeLength, '\0'));
    ClearSystemTime(file);
    const std::string sealed = zarpel::Sealed(file).toStdString();
    if (zarpel::WriteFile(QFile::decodeName(argv[2]), sealed)) return 0;
    std::fprintf(stderr, "seal_help: cannot write %s\n", argv[2]);
    return 1;
}
