// Feeds bytes to everything that reads a help file: as a whole file, as its contents tree and as its table of
// names.
#include <QTemporaryDir>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "qt/help/help_file.h"

namespace {

QByteArray BytesOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)};
}

void ReadWholeFile(const QByteArray& bytes) {
    static const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("ayuda.chm")));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) std::abort();
    file.close();
    const auto help = zarpel::HelpFile::Open(file.fileName());
    if (!help) return;
    if (!help->Has(help->FirstPage())) std::abort();
    for (const QString& path : help->Paths()) help->Object(zarpel::HelpFile::Address(path));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes = BytesOf(data, size);
    ReadWholeFile(bytes);
    zarpel::ReadSystem(bytes);
    for (const zarpel::HelpTopic& topic : zarpel::ReadContents(bytes)) {
        if (topic.Title.isEmpty() || topic.Depth < 0) std::abort();
    }
    return 0;
}
