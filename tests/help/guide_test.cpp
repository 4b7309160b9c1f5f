// The player's guide as the build made it: nothing is lost on the way from its sources, and nothing leads
// nowhere.
#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>
#include <QSet>

#include "qt/help/help_file.h"

namespace zarpel {
namespace {

TEST(Guide, HoldsEverySourceAndLeadsToEveryPageAndNowhereElse) {
    const auto help = HelpFile::Open(HELP_FILE);
    ASSERT_TRUE(help.has_value());
    const auto textOf = [&](const QUrl& address) { return QString::fromUtf8(help->Object(address)); };
    QList<QUrl> addresses;
    QSet<QString> listed;
    for (const HelpTopic& topic : help->Contents()) {
        if (topic.Page.isEmpty()) continue;
        addresses << topic.Page;
        listed << topic.Page.path();
    }
    for (const HelpTopic& entry : ReadContents(help->Object(HelpFile::Address("ayuda.hhk")))) {
        addresses << entry.Page;
    }
    const QRegularExpression attribute("(?:href|src|background|data)\\s*=\\s*[\"']([^\"']*)[\"']",
                                       QRegularExpression::CaseInsensitiveOption);
    for (const QFileInfo& source : QDir(HELP_PAGES).entryInfoList({"*.html", "*.css", "*.hhc", "*.hhk"})) {
        SCOPED_TRACE(qPrintable(source.fileName()));
        QFile file(source.filePath());
        const QUrl page = HelpFile::Address(source.fileName());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly) && file.readAll() == help->Object(page));
        EXPECT_TRUE(source.suffix() != "html" || listed.contains(page.path()));
        for (auto found = attribute.globalMatch(textOf(page)); found.hasNext();) {
            addresses << page.resolved(QUrl(found.next().captured(1)));
        }
    }
    EXPECT_GT(addresses.size(), 110) << "entries, links and pictures";
    for (const QUrl& address : addresses) {
        const QString place = QStringLiteral("id=\"%1\"").arg(address.fragment());
        EXPECT_TRUE(help->Has(address) && (!address.hasFragment() || textOf(address).contains(place)))
            << qPrintable(address.toString());
    }
}

}  // namespace
}  // namespace zarpel
