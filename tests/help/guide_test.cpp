// The player's guide as the build made it: nothing is lost on the way from its sources, nothing leads
// nowhere, and no damaged copy of it is opened.
#include <chm_lib.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <memory>
#include <random>

#include "platform/qt/help/help_file.h"
#include "tests/help/sample_help.h"

namespace zarpel {
namespace {

// Every address that the page `html` leads to or shows.
QStringList AddressesIn(const QString& html) {
    static const QRegularExpression attribute("(?:href|src|background|data)\\s*=\\s*[\"']([^\"']*)[\"']",
                                              QRegularExpression::CaseInsensitiveOption);
    QStringList addresses;
    for (auto found = attribute.globalMatch(html); found.hasNext();) addresses << found.next().captured(1);
    return addresses;
}

TEST(Guide, EveryLinkPictureAndEntryLeadsSomewhereAndEveryPageIsInTheContents) {
    const auto help = HelpFile::Open(GuidePath());
    ASSERT_TRUE(help.has_value());
    const auto textOf = [&](const QUrl& address) { return QString::fromUtf8(help->Object(address)); };
    const auto expectThere = [&](const QUrl& address) {
        EXPECT_TRUE(help->Has(address) &&
                    (!address.hasFragment() ||
                     textOf(address).contains(QStringLiteral("id=\"%1\"").arg(address.fragment()))))
            << qPrintable(address.toString());
    };
    QSet<QString> listed;
    for (const HelpTopic& topic : help->contents()) {
        if (topic.page.isEmpty()) continue;
        expectThere(topic.page);
        listed.insert(topic.page.path());
    }
    int pictures = 0;
    for (const QString& path : help->paths()) {
        if (!path.endsWith(".html")) continue;
        EXPECT_TRUE(listed.contains(path)) << qPrintable(path);
        const QUrl page = HelpFile::Address(path);
        for (const QString& link : AddressesIn(textOf(page))) {
            expectThere(page.resolved(QUrl(link)));
            pictures += link.endsWith(".png");
        }
    }
    EXPECT_GT(pictures, 20);
    EXPECT_TRUE(AddressesIn(textOf(HelpFile::Address("estilo.css"))).isEmpty());
    const auto index = ReadContents(help->Object(HelpFile::Address("ayuda.hhk")));
    EXPECT_GT(index.size(), 20U);
    for (const HelpTopic& entry : index) expectThere(entry.page);
}

// Another program that reads such files finds them as we wrote them, the seal at the end notwithstanding.
TEST(Guide, TheLibraryReadsBackEverySource) {
    const std::unique_ptr<chmFile, decltype(&chm_close)> chm(chm_open(HELP_FILE), chm_close);
    ASSERT_TRUE(chm);
    const QDir pages(HELP_PAGES);
    const QStringList sources = pages.entryList({"*.html", "*.css", "*.hhc", "*.hhk"});
    EXPECT_GT(sources.size(), 10);
    for (const QString& name : sources) {
        chmUnitInfo unit{};
        EXPECT_EQ(chm_resolve_object(chm.get(), qPrintable("/" + name), &unit), CHM_RESOLVE_SUCCESS);
        std::string bytes(unit.length, '\0');
        chm_retrieve_object(chm.get(), &unit, reinterpret_cast<unsigned char*>(bytes.data()), 0,
                            static_cast<LONGINT64>(bytes.size()));
        EXPECT_EQ(bytes, BytesOf(pages.filePath(name)).toStdString()) << qPrintable(name);
    }
}

TEST(Guide, NoCutAndNoWrongBitGetsThrough) {
    const QByteArray whole = BytesOf(GuidePath());
    const QTemporaryDir folder;
    const QString copy = folder.filePath("ayuda.chm");
    std::mt19937 random(15);
    for (int round = 0; round < 300; ++round) {
        const auto at = round < 100 ? round : static_cast<qsizetype>(random() % whole.size());
        WriteBytes(copy, whole.left(at));
        EXPECT_FALSE(HelpFile::Open(copy).has_value()) << "cut at " << at;
        QByteArray flipped = whole;
        flipped[at] = static_cast<char>(flipped[at] ^ (1 << (round % 8)));
        WriteBytes(copy, flipped);
        EXPECT_FALSE(HelpFile::Open(copy).has_value()) << "bit " << round % 8 << " of byte " << at;
    }
    WriteBytes(copy, whole);
    EXPECT_TRUE(HelpFile::Open(copy).has_value());
}

}  // namespace
}  // namespace zarpel
