// The player's guide as the build made it: nothing is lost on the way from its sources, and nothing leads
// nowhere.
#include <chm_lib.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>
#include <QSet>
#include <memory>

#include "platform/qt/help/help_file.h"
#include "tests/help/sample_help.h"

namespace zarpel {
namespace {

// Every address that the page `html` leads to or shows.
QStringList AddressesIn(const QString& html) {
    static const QRegularExpression attribute(
        QStringLiteral("(?:href|src|background|data)\\s*=\\s*[\"']([^\"']*)[\"']"),
        QRegularExpression::CaseInsensitiveOption);
    QStringList addresses;
    auto found = attribute.globalMatch(html);
    while (found.hasNext()) addresses.append(found.next().captured(1));
    return addresses;
}

class Guide : public testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(help.has_value()); }

    bool LeadsSomewhere(const QUrl& address) const {
        if (!help->Has(address)) return false;
        const QString page = QString::fromUtf8(help->Object(address));
        return !address.hasFragment() || page.contains(QStringLiteral("id=\"%1\"").arg(address.fragment()));
    }

    std::optional<HelpFile> help = HelpFile::Open(GuidePath());
};

TEST_F(Guide, EveryLinkPictureAndStyleSheetIsInTheFile) {
    int pictures = 0;
    for (const QString& path : help->paths()) {
        if (!path.endsWith(QLatin1String(".html"))) continue;
        const QUrl page = HelpFile::Address(path);
        for (const QString& link : AddressesIn(QString::fromUtf8(help->Object(page)))) {
            EXPECT_TRUE(LeadsSomewhere(page.resolved(QUrl(link))))
                << qPrintable(path) << " -> " << qPrintable(link);
            pictures += link.endsWith(QLatin1String(".png"));
        }
    }
    EXPECT_GT(pictures, 20);
    EXPECT_TRUE(AddressesIn(QString::fromUtf8(help->Object(HelpFile::Address(QStringLiteral("estilo.css")))))
                    .isEmpty());
}

TEST_F(Guide, EveryPageIsInTheContentsAndTheIndexLeadsSomewhere) {
    QSet<QString> listed;
    for (const HelpTopic& topic : help->contents()) {
        if (topic.page.isEmpty()) continue;
        EXPECT_TRUE(LeadsSomewhere(topic.page)) << qPrintable(topic.title);
        listed.insert(topic.page.path());
    }
    for (const QString& path : help->paths()) {
        EXPECT_TRUE(!path.endsWith(QLatin1String(".html")) || listed.contains(path)) << qPrintable(path);
    }
    const auto index = ReadContents(help->Object(HelpFile::Address(QStringLiteral("ayuda.hhk"))));
    EXPECT_GT(index.size(), 20U);
    for (const HelpTopic& entry : index) EXPECT_TRUE(LeadsSomewhere(entry.page)) << qPrintable(entry.title);
}

TEST_F(Guide, AccentsSurviveInPagesContentsAndIndex) {
    const auto titled = [](const std::vector<HelpTopic>& topics, const char* title) {
        return std::any_of(topics.begin(), topics.end(),
                           [&](const auto& topic) { return topic.title == title; });
    };
    EXPECT_TRUE(titled(help->contents(), "Cómo se maneja"));
    EXPECT_TRUE(titled(ReadContents(help->Object(HelpFile::Address(QStringLiteral("ayuda.hhk")))), "Ratón"));
    EXPECT_TRUE(
        help->Object(HelpFile::Address(QStringLiteral("mesallena.html"))).contains("La mesa está llena"));
}

// Another program that reads such files finds them as we wrote them, the seal at the end notwithstanding.
TEST_F(Guide, TheLibraryReadsBackEverySource) {
    const std::unique_ptr<chmFile, decltype(&chm_close)> chm(chm_open(HELP_FILE), chm_close);
    ASSERT_TRUE(chm);
    const QDir pages(QStringLiteral(HELP_PAGES));
    const QStringList sources = pages.entryList({"*.html", "*.css", "*.hhc", "*.hhk"});
    EXPECT_GT(sources.size(), 10);
    for (const QString& name : sources) {
        const QByteArray source = BytesOf(pages.filePath(name));
        chmUnitInfo unit{};
        ASSERT_EQ(chm_resolve_object(chm.get(), ("/" + name.toUtf8()).constData(), &unit),
                  CHM_RESOLVE_SUCCESS)
            << qPrintable(name);
        QByteArray bytes(static_cast<qsizetype>(unit.length), '\0');
        chm_retrieve_object(chm.get(), &unit, reinterpret_cast<unsigned char*>(bytes.data()), 0,
                            bytes.size());
        EXPECT_EQ(bytes, source) << qPrintable(name);
    }
}

}  // namespace
}  // namespace zarpel
