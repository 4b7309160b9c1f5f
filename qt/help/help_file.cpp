#include "qt/help/help_file.h"

#include <chm_lib.h>

#include <QDataStream>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QTextDocumentFragment>
#include <algorithm>
#include <memory>

#include "qt/help/help_seal.h"

namespace zarpel {
namespace {

// Far above what a help of this game needs, far below what could trouble the machine.
constexpr qint64 kMaxFileSize = 32 << 20;
constexpr quint64 kMaxContentSize = 64 << 20;
constexpr std::size_t kMaxTopics = 2000;
constexpr int kMaxDepth = 16;

// Numbers of the entries of "/#SYSTEM", a table of (number, length, bytes) after four bytes of version.
enum SystemEntry : int { ContentsFile = 0, DefaultTopic = 2, Title = 3 };

// Texts are UTF-8 in what we write; other help compilers keep to the code page of their language.
QString Decoded(const QByteArray& text) {
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString result = utf8(text);
    return utf8.hasError() ? QString::fromLatin1(text) : result;
}

QString Key(const QString& path) { return path.toLower(); }

struct Extraction {
    QHash<QString, QByteArray> objects;
    quint64 size = 0;
};

int ExtractObject(chmFile* chm, chmUnitInfo* unit, void* context) {
    auto& extraction = *static_cast<Extraction*>(context);
    extraction.size += unit->length;
    if (unit->length > kMaxContentSize || extraction.size > kMaxContentSize) return CHM_ENUMERATOR_FAILURE;
    QByteArray bytes(static_cast<qsizetype>(unit->length), '\0');
    auto* const buffer = reinterpret_cast<unsigned char*>(bytes.data());
    const auto length = static_cast<LONGINT64>(unit->length);
    if (length > 0 && chm_retrieve_object(chm, unit, buffer, 0, length) != length)
        return CHM_ENUMERATOR_FAILURE;
    extraction.objects.insert(Key(QString::fromUtf8(unit->path)), bytes);
    return CHM_ENUMERATOR_CONTINUE;
}

// Every page, picture and table of the file, or nothing when one of them cannot be read.
QHash<QString, QByteArray> Extracted(const QString& file) {
    const std::unique_ptr<chmFile, decltype(&chm_close)> chm(chm_open(QFile::encodeName(file).constData()),
                                                             chm_close);
    if (!chm) return {};
    Extraction extraction;
    const int what = CHM_ENUMERATE_NORMAL | CHM_ENUMERATE_SPECIAL | CHM_ENUMERATE_FILES;
    if (chm_enumerate(chm.get(), what, ExtractObject, &extraction) == 0) return {};
    return extraction.objects;
}

bool IsSealedFile(const QString& file) {
    if (!QFileInfo(file).isFile()) return false;
    QFile in(file);
    if (!in.open(QIODevice::ReadOnly) || in.size() > kMaxFileSize) return false;
    return IsSealed(in.readAll());
}

// A whole document is taken apart for each text, so only texts that need it take that way.
QString Plain(const QString& text) {
    return text.contains(QLatin1Char('&')) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

using Attributes = QHash<QString, QString>;

Attributes AttributesOf(const QString& tag) {
    static const QRegularExpression attribute(QStringLiteral("(name|value|type)\\s*=\\s*\"([^\"]*)\""),
                                              QRegularExpression::CaseInsensitiveOption);
    Attributes attributes;
    auto pairs = attribute.globalMatch(tag);
    while (pairs.hasNext()) {
        const auto pair = pairs.next();
        attributes.insert(pair.captured(1).toLower(), Plain(pair.captured(2)));
    }
    return attributes;
}

void SetParameter(HelpTopic& topic, const Attributes& attributes) {
    const QString name = attributes.value(QStringLiteral("name")).toLower();
    const QString value = attributes.value(QStringLiteral("value"));
    if (name == QLatin1String("name")) topic.Title = value;
    if (name == QLatin1String("local")) topic.Page = HelpFile::Address(value);
}

}  // namespace

QUrl HelpFile::Address(const QString& path) {
    const QUrl root(QStringLiteral("chm:/"));
    return root.resolved(QUrl(path));
}

std::optional<HelpFile> HelpFile::Open(const QString& file) {
    if (!IsSealedFile(file)) return std::nullopt;
    HelpFile help;
    help.objects_ = Extracted(file);
    const HelpSystem system = ReadSystem(help.Object(Address(QStringLiteral("%23SYSTEM"))));
    help.title_ = system.Title;
    help.firstPage_ = Address(system.FirstPage);
    help.contents_ = ReadContents(help.Object(Address(system.ContentsFile)));
    if (!help.Has(help.firstPage_)) return std::nullopt;
    return help;
}

bool HelpFile::Has(const QUrl& address) const {
    return address.scheme() == QLatin1String("chm") && objects_.contains(Key(address.path()));
}

QByteArray HelpFile::Object(const QUrl& address) const {
    return Has(address) ? objects_.value(Key(address.path())) : QByteArray();
}

HelpSystem ReadSystem(const QByteArray& source) {
    constexpr int kVersionLength = 4;
    HelpSystem system;
    const QHash<int, QString*> texts{
        {ContentsFile, &system.ContentsFile}, {DefaultTopic, &system.FirstPage}, {Title, &system.Title}};
    QDataStream in(source);
    in.setByteOrder(QDataStream::LittleEndian);
    in.skipRawData(kVersionLength);
    while (!in.atEnd()) {
        quint16 number = 0;
        quint16 length = 0;
        in >> number >> length;
        QByteArray text(length, '\0');
        if (in.readRawData(text.data(), length) != length) break;
        if (QString* const place = texts.value(number)) *place = Decoded(text.left(text.indexOf('\0')));
    }
    return system;
}

std::vector<HelpTopic> ReadContents(const QByteArray& source) {
    static const QRegularExpression tag(QStringLiteral("<(/?)(ul|object|param)\\b([^>]*)>"),
                                        QRegularExpression::CaseInsensitiveOption);
    std::vector<HelpTopic> topics;
    std::optional<HelpTopic> open;
    int depth = -1;
    auto tags = tag.globalMatch(Decoded(source));
    while (tags.hasNext() && topics.size() < kMaxTopics) {
        const auto found = tags.next();
        const bool closing = !found.capturedView(1).isEmpty();
        const QString name = found.captured(2).toLower();
        const Attributes attributes = AttributesOf(found.captured(3));
        if (name == QLatin1String("ul")) {
            depth = std::clamp(depth + (closing ? -1 : 1), -1, kMaxDepth);
        } else if (name == QLatin1String("param") && open) {
            SetParameter(*open, attributes);
        } else if (closing) {
            if (open && !open->Title.isEmpty()) topics.push_back(*open);
            open.reset();
        } else if (attributes.value(QStringLiteral("type")) == QLatin1String("text/sitemap")) {
            open = HelpTopic{.Title = {}, .Page = {}, .Depth = std::max(depth, 0)};
        }
    }
    return topics;
}

}  // namespace zarpel
