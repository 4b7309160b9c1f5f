// The help window as a reader uses it, with keys, clicks and wheel.
#include "platform/qt/help/help_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QToolBar>
#include <QTreeWidget>
#include <QWheelEvent>

#include "platform/qt/help/help_browser.h"
#include "tests/help/sample_help.h"

namespace zarpel {
namespace {

class Window : public testing::Test {
  protected:
    void SetUp() override {
        window.Present();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QString Shown() const { return page.source().toString(); }
    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &window, Qt::Key(key),
                        modifiers);
    }
    QTreeWidgetItem* Entry(const char* title) {
        return contents.findItems(QString::fromUtf8(title), Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }
    QString Current() const { return contents.currentItem() ? contents.currentItem()->text(0) : QString(); }

    HelpWindow window{GuidePath()};
    HelpBrowser& page = *window.findChild<HelpBrowser*>();
    QTreeWidget& contents = *window.findChild<QTreeWidget*>();
    QLineEdit& searchText = *window.findChild<QLineEdit*>();
};

TEST_F(Window, OpensAtTheFirstPageWithTheContentsBesideIt) {
    EXPECT_EQ(Shown(), "chm:/index.html");
    EXPECT_EQ(window.windowTitle(), "Ayuda de Zarpel");
    EXPECT_FALSE(window.isModal());
    EXPECT_EQ(Current(), "Bienvenida a Zarpel");
    EXPECT_EQ(contents.topLevelItemCount(), 5);
    EXPECT_FALSE(contents.accessibleName().isEmpty());
    EXPECT_FALSE(page.accessibleName().isEmpty());
    EXPECT_FALSE(searchText.accessibleName().isEmpty());
}

TEST_F(Window, EveryPageShowsItsPicturesAndStyle) {
    int pictures = 0;
    for (const QString& path : page.file()->paths()) {
        if (!path.endsWith(QLatin1String(".html"))) continue;
        page.setSource(HelpFile::Address(path));
        EXPECT_EQ(Shown(), "chm:" + path);
        for (QTextBlock block = page.document()->begin(); block.isValid(); block = block.next()) {
            for (auto at = block.begin(); !at.atEnd(); ++at) {
                const QTextImageFormat format = at.fragment().charFormat().toImageFormat();
                if (!format.isValid()) continue;
                const auto image =
                    page.document()->resource(QTextDocument::ImageResource, format.name()).value<QImage>();
                EXPECT_EQ(image.size(), QSize(80, 118)) << qPrintable(path + ' ' + format.name());
                ++pictures;
            }
        }
        EXPECT_FALSE(page.document()->toPlainText().contains(QChar::ReplacementCharacter));
    }
    EXPECT_GT(pictures, 20);
}

TEST_F(Window, ContentsAndPageFollowEachOther) {
    contents.setCurrentItem(Entry("Los puntos"));
    EXPECT_EQ(Shown(), "chm:/puntos.html");
    contents.setCurrentItem(Entry("Preguntas"));
    EXPECT_EQ(Shown(), "chm:/mensajes.html#preguntas");
    EXPECT_GT(page.verticalScrollBar()->value(), 0) << "at the place in the page that the entry names";
    contents.setCurrentItem(Entry("El juego"));
    EXPECT_EQ(Shown(), "chm:/mensajes.html#preguntas") << "a heading without a page leaves the page";
    page.setSource(QUrl(QStringLiteral("zarpel.html")));
    EXPECT_EQ(Current(), "El zarpel");
}

TEST_F(Window, LinksAreFollowedByKeyboardAndHistoryGoesBothWays) {
    page.setFocus();
    Press(Qt::Key_Tab);
    Press(Qt::Key_Return);
    const QString linked = Shown();
    EXPECT_NE(linked, "chm:/index.html");
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Shown(), "chm:/index.html");
    EXPECT_EQ(Current(), "Bienvenida a Zarpel");
    Press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Shown(), linked);
    Press(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(Shown(), "chm:/index.html");
}

TEST_F(Window, NothingOutsideTheFileIsFollowedOrLoaded) {
    const QString disk = QUrl::fromLocalFile(QStringLiteral(HELP_PAGES "/zarpel.html")).toString();
    const QStringList outside{disk,
                              "http://localhost/zarpel.html",
                              "mailto:nadie@localhost",
                              "no-existe.html",
                              "chm:/../../etc/passwd",
                              "qrc:/qt-project.org/qmessagebox/images/qtlogo-64.png"};
    for (const QString& address : outside) {
        page.setSource(QUrl(address));
        EXPECT_EQ(Shown(), "chm:/index.html") << qPrintable(address);
        for (const int type : {QTextDocument::ImageResource, QTextDocument::StyleSheetResource}) {
            const QVariant resource = page.loadResource(type, QUrl(address));
            EXPECT_TRUE(resource.value<QImage>().isNull() && resource.toByteArray().isEmpty())
                << qPrintable(address);
        }
    }
}

TEST_F(Window, CtrlAndWheelZoomLettersAndPicturesAndKeepTheHistory) {
    page.setSource(QUrl(QStringLiteral("baraja.html")));
    const auto wheel = [&](int delta) {
        QWheelEvent event({50, 50}, page.mapToGlobal(QPointF(50, 50)), {}, {0, delta}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(page.viewport(), &event);
    };
    const QUrl card(QStringLiteral("naipes/oro01.png"));
    const auto cardWidth = [&] {
        return page.document()->resource(QTextDocument::ImageResource, card).value<QImage>().width();
    };
    const qreal letters = page.font().pointSizeF();
    for (int i = 0; i < 5; ++i) wheel(120);
    EXPECT_EQ(page.zoom(), 150);
    EXPECT_DOUBLE_EQ(page.font().pointSizeF(), letters * 1.5);
    EXPECT_EQ(cardWidth(), 120);
    for (int i = 0; i < 100; ++i) wheel(-120);
    EXPECT_EQ(page.zoom(), 50);
    Press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(page.zoom(), 100);
    EXPECT_EQ(Shown(), "chm:/baraja.html");
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Shown(), "chm:/index.html");
}

TEST_F(Window, FindGoesRoundThePageAndEscapeLeavesStepByStep) {
    page.setSource(QUrl(QStringLiteral("puntos.html")));
    Press(Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(searchText.hasFocus());
    QTest::keyClicks(&searchText, "velo");
    QList<int> places;
    for (int i = 0; i < 20; ++i) {
        Press(i == 0 ? Qt::Key_Return : Qt::Key_F3);
        EXPECT_EQ(page.textCursor().selectedText().toLower(), "velo");
        places.append(page.textCursor().position());
    }
    EXPECT_EQ(places.count(places.first()), 20 / (places.indexOf(places.first(), 1))) << "round and round";
    Press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(page.textCursor().position(), places.at(18));

    searchText.setText(QStringLiteral("quimera"));
    Press(Qt::Key_F3);
    const QTextCursor unmoved = page.textCursor();
    EXPECT_EQ(unmoved.position(), places.at(18)) << "not found: the page stays where it is";

    Press(Qt::Key_Escape);
    EXPECT_FALSE(searchText.isVisible());
    EXPECT_TRUE(window.isVisible());
    Press(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST(Damage, AMissingOrDamagedFileIsToldInTheWindowAndMendedByOpeningAgain) {
    const Copy copy;
    HelpWindow window(copy.Path());
    window.Present();
    auto& page = *window.findChild<HelpBrowser*>();
    EXPECT_TRUE(page.toPlainText().contains(QStringLiteral("No se encuentra el archivo de la ayuda")));
    EXPECT_TRUE(page.toPlainText().contains(copy.Path()));
    EXPECT_FALSE(window.findChild<QTreeWidget*>()->isVisible());
    for (QAction* const action : window.actions())
        action->trigger();  // none of them may stumble over the missing file

    copy.Write(BytesOf(GuidePath()).left(4000));
    window.Present();
    EXPECT_TRUE(page.toPlainText().contains(QStringLiteral("está dañado")));

    copy.Write(BytesOf(GuidePath()));
    window.Present();
    EXPECT_EQ(page.source().toString(), "chm:/index.html");
    EXPECT_TRUE(window.findChild<QTreeWidget*>()->isVisible());

    page.setSource(QUrl(QStringLiteral("zarpel.html")));
    window.Present();
    EXPECT_EQ(page.source().toString(), "chm:/index.html")
        << "opened again, the help begins at its first page";
}

}  // namespace
}  // namespace zarpel
