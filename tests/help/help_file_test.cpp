// Opening help files that are missing, damaged or not what they seem.
#include "platform/qt/help/help_file.h"

#include <gtest/gtest.h>

#include <random>

#include "platform/qt/help/help_seal.h"
#include "tests/help/sample_help.h"

namespace zarpel {
namespace {

TEST(HelpFile, NoCutAndNoWrongBitGetsThrough) {
    const QByteArray whole = BytesOf(GuidePath());
    const Copy copy;
    copy.Write(whole);
    ASSERT_TRUE(HelpFile::Open(copy.Path()).has_value());

    std::mt19937 random(15);
    const auto draw = [&](qsizetype limit) {
        return static_cast<qsizetype>(random() % static_cast<unsigned>(limit));
    };
    for (int round = 0; round < 300; ++round) {
        const qsizetype length = round < 100 ? round : draw(whole.size());
        copy.Write(whole.left(length));
        EXPECT_FALSE(HelpFile::Open(copy.Path()).has_value()) << "cut at " << length;

        const qsizetype at = round < 100 ? round : draw(whole.size());
        QByteArray flipped = whole;
        flipped[at] = static_cast<char>(flipped[at] ^ (1 << (round % 8)));
        copy.Write(flipped);
        EXPECT_FALSE(HelpFile::Open(copy.Path()).has_value()) << "bit " << round % 8 << " of byte " << at;
    }
}

TEST(HelpFile, WhatIsNoHelpFileIsNotOpened) {
    const Copy copy;
    EXPECT_FALSE(HelpFile::Open(copy.Path()).has_value()) << "missing";
    EXPECT_FALSE(HelpFile::Open(QFileInfo(copy.Path()).path()).has_value()) << "a folder";
    for (const QByteArray& content :
         {QByteArray(), QByteArray("texto"), QByteArray("ITSF"), QByteArray(5000, '\0')}) {
        copy.Write(Sealed(content));
        EXPECT_FALSE(HelpFile::Open(copy.Path()).has_value()) << "sealed, of " << content.size() << " bytes";
    }
}

TEST(HelpContents, OddTreesAreReadAsFarAsTheyGo) {
    const struct {
        const char* source;
        std::vector<std::pair<QString, int>> expected;  // title and depth
    } cases[] = {
        {"", {}},
        {"<ul><li><object type=\"text/sitemap\"><param name=\"Name\" value=\"a\"></object>"
         "<ul><li><OBJECT type=\"text/sitemap\"><PARAM value=\"&ntilde; &#243; &amp;\" "
         "name=\"Name\"></OBJECT></ul></ul>",
         {{"a", 0}, {"ñ ó &", 1}}},
        {"<object type=\"text/sitemap\"><param name=\"Name\" value=\"without a list\"></object>",
         {{"without a list", 0}}},
        {"</ul></ul></ul><ul><object type=\"text/sitemap\"><param name=\"Name\" value=\"a\"></object>",
         {{"a", 0}}},
        {"<ul><object type=\"text/sitemap\"><param name=\"Local\" value=\"a.html\"></object>", {}},
        {"<ul><object type=\"text/sitemap\"><param name=\"Name\" value=\"never closed\">", {}},
        {"<ul><object type=\"text/sitemap\"><param name=\"Name\" value=\"\xE1\"></object>", {{"á", 0}}},
    };
    for (const auto& sample : cases) {
        std::vector<std::pair<QString, int>> found;
        for (const HelpTopic& topic : ReadContents(sample.source))
            found.emplace_back(topic.title, topic.depth);
        EXPECT_EQ(found, sample.expected) << sample.source;
    }
}

}  // namespace
}  // namespace zarpel
