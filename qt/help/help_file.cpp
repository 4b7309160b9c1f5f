#include "qt/help/help_file.h"

#include <chm_lib.h>

#include <QDataStream>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextDocumentFragment>
#include <memory>

#include "qt/help/help_seal.h"

namespace zarpel {
namespace {

// Numbers of the entries of "/#SYSTEM", a table of (number, length, bytes) after four bytes of version.
enum SystemEntry : int { ContentsFile = 0, DefaultTopic = 2, Title = 3 };

QString Key(const QString& path) { return path.toLower(); }

using Objects = QHash<QString, QByteArray>;

int ExtractObject(chmFile* chm, chmUnitInfo* unit, void* context) {
    const auto length = static_cast<LONGINT64>(unit->length);
    QByteArray bytes(length, '\0');
    auto* const buffer = reinterpret_cast<unsigned char*>(bytes.data());
    if (length > 0 && chm_retrieve_object(chm, unit, buffer, 0, length) != length)
        return CHM_ENUMERATOR_FAILURE;
    static_cast<Objects*>(context)->insert(Key(QString::fromUtf8(unit->path)), bytes);
    return CHM_ENUMERATOR_CONTINUE;
}

// Every page, picture and table of the file, or nothing when one of them cannot be read.
Objects Extracted(const QString& file) {
    const std::unique_ptr<chmFile, decltype(&chm_close)> chm(chm_open(QFile::encodeName(file).constData()),
                                                             chm_close);
    if (!chm) return {};
    Objects objects;
    const int what = CHM_ENUMERATE_NORMAL | CHM_ENUMERATE_SPECIAL | CHM_ENUMERATE_FILES;
    if (chm_enumerate(chm.get(), what, ExtractObject, &objects) == 0) return {};
    return objects;
}

bool IsSealedFile(const QString& file) {
    if (!QFileInfo(file).isFile()) return false;
    QFile in(file);
    return in.open(QIODevice::ReadOnly) && IsSealed(in.readAll());
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

// What the table "/#SYSTEM" of a help file says about it.
struct HelpSystem {
    QString Title, FirstPage, ContentsFile;
};

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
        in.readRawData(text.data(), length);
        if (QString* const place = texts.value(number)) *place = QString::fromUtf8(text.constData());
    }
    return system;
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
    return help;
}

bool HelpFile::Has(const QUrl& address) const {
    return address.scheme() == QLatin1String("chm") && objects_.contains(Key(address.path()));
}

QByteArray HelpFile::Object(const QUrl& address) const {
    return Has(address) ? objects_.value(Key(address.path())) : QByteArray();
}

std::vector<HelpTopic> ReadContents(const QByteArray& source) {
    static const QRegularExpression tag(QStringLiteral("<(/?)(ul|object|param)\\b([^>]*)>"),
                                        QRegularExpression::CaseInsensitiveOption);
    std::vector<HelpTopic> topics;
    std::optional<HelpTopic> open;
    int depth = -1;
    auto tags = tag.globalMatch(QString::fromUtf8(source));
    while (tags.hasNext()) {
        const auto found = tags.next();
        const bool closing = !found.capturedView(1).isEmpty();
        const QString name = found.captured(2).toLower();
        const Attributes attributes = AttributesOf(found.captured(3));
        if (name == QLatin1String("ul")) {
            depth += closing ? -1 : 1;
        } else if (name == QLatin1String("param") && open) {
            SetParameter(*open, attributes);
        } else if (closing) {
            if (open) topics.push_back(*open);
            open.reset();
        } else if (attributes.value(QStringLiteral("type")) == QLatin1String("text/sitemap")) {
            open = HelpTopic{.Title = {}, .Page = {}, .Depth = depth};
        }
    }
    return topics;
}

}  // namespace zarpel
