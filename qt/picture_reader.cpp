#include "qt/picture_reader.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QtEndian>

#include "qt/files.h"

namespace zarpel {
namespace {

// More than the pictures of any camera have, and what they take in memory. Files are packed.
constexpr qint64 kMostPixels = qint64{64} << 20;
constexpr int kMostMegabytes = 256;
constexpr qint64 kLongestFile = qint64{64} << 20;

// A JPEG picture is gone over once for each scan that its file has, even an empty one. Ten are usual.
constexpr int kMostScans = 32;

// A file's bytes, which notices when more are asked for than there are: a BMP picture that lacks rows would
// be shown with whatever the memory held there.
class Bytes : public QBuffer {
  public:
    using QBuffer::QBuffer;
    bool CutOff() const { return cutOff_; }

  protected:
    qint64 readData(char* to, qint64 wanted) override {
        const qint64 got = QBuffer::readData(to, wanted);
        cutOff_ = cutOff_ || got < wanted;
        return got;
    }

  private:
    bool cutOff_ = false;
};

constexpr char kMark = '\xFF';

// Of a JPEG file: where the next mark begins, or -1. Any number of its first byte may fill the way.
qsizetype NextMark(const QByteArray& file, qsizetype from) {
    qsizetype at = file.indexOf(kMark, from);
    while (at >= 0 && at + 1 < file.size() && file[at + 1] == kMark) ++at;
    return at;
}

// A JPEG file that was cut off would be shown grey from there on.
bool IsWholeJpeg(const QByteArray& file) {
    constexpr uchar kFirstRestart = 0xD0, kLastRestart = 0xD7, kEnd = 0xD9, kScan = 0xDA;
    int scans = 0;
    for (qsizetype at = NextMark(file, 2); at >= 0 && at + 2 <= file.size(); at = NextMark(file, at)) {
        const auto kind = static_cast<uchar>(file[at + 1]);
        if (kind == kEnd) return true;
        if (kind == kScan && ++scans > kMostScans) return false;
        const bool bare = kind <= 1 || (kind >= kFirstRestart && kind <= kLastRestart);
        if (!bare && at + 4 > file.size()) return false;
        at += bare ? 1 : 2 + qFromBigEndian<quint16>(file.constData() + at + 2);
    }
    return false;
}

// Only what a PNG file shows: of its texts and profiles, a few bytes can unfold to gigabytes. The names of
// chunks that a reader may pass over begin with a small letter.
QByteArray BarePng(const QByteArray& file) {
    constexpr qsizetype kSignature = 8, kFrame = 12;  // length, kind and checksum around a chunk's bytes
    QByteArray bare = file.left(kSignature);
    for (qsizetype at = kSignature; at + kFrame <= file.size();) {
        const qsizetype length = kFrame + qsizetype{qFromBigEndian<quint32>(file.constData() + at)};
        const QByteArrayView kind = QByteArrayView(file).sliced(at + 4, 4);
        if (kind.front() < 'a' || kind == "tRNS") bare += file.mid(at, length);
        at += length;
    }
    return bare;
}

// With the format given, and no other tried, the toolkit asks only its own reader of that format.
QImage Decode(const char* format, QByteArray file) {
    Bytes bytes(&file);
    QImageReader::setAllocationLimit(kMostMegabytes);
    QImageReader reader(&bytes, format);
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.isEmpty() || qint64{size.width()} * size.height() > kMostPixels) return {};
    if (size.width() > kLargestPicture.width() || size.height() > kLargestPicture.height()) {
        reader.setScaledSize(size.scaled(kLargestPicture, Qt::KeepAspectRatio));
    }
    const QImage picture = reader.read();
    return bytes.CutOff() ? QImage() : picture;
}

}  // namespace

QImage ReadPicture(const QString& path) {
    if (!IsRegularFile(path)) return {};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > kLongestFile) return {};
    const QByteArray start = file.peek(8);
    if (start.startsWith("\x89PNG\r\n\x1A\n")) return Decode("png", BarePng(file.read(file.size())));
    if (start.startsWith("BM")) return Decode("bmp", file.read(file.size()));
    if (!start.startsWith("\xFF\xD8\xFF")) return {};
    const QByteArray jpeg = file.read(file.size());
    return IsWholeJpeg(jpeg) ? Decode("jpeg", jpeg) : QImage();
}

}  // namespace zarpel
