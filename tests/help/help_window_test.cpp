// The help window as a reader uses it, with keys, clicks and wheel.
#include "qt/help/help_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>
#include <QWheelEvent>

#include "qt/help/help_browser.h"

namespace zarpel {
namespace {

// Shows a copy of the guide, which a test may damage.
class Window : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(QFile::copy(HELP_FILE, path));
        window.Present();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    std::string Shown() const { return page.source().toString().toStdString(); }
    std::string Entry() const { return contents.currentItem()->text(0).toStdString(); }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(window.windowHandle(), key, modifiers);
    }
    void Choose(const char* title) {
        contents.setCurrentItem(contents.findItems(title, Qt::MatchExactly | Qt::MatchRecursive).value(0));
    }

    QTemporaryDir folder;
    QString path = folder.filePath("ayuda.chm");
    HelpWindow window{path};
    HelpBrowser& page = *window.findChild<HelpBrowser*>();
    QTreeWidget& contents = *window.findChild<QTreeWidget*>();
    QLineEdit& searchText = *window.findChild<QLineEdit*>();
};

TEST_F(Window, ContentsLinksAndHistoryLeadFromPageToPage) {
    EXPECT_EQ(Shown() + " " + Entry(), "chm:/index.html Bienvenida a Zarpel");
    Press(Qt::Key_Tab);
    Press(Qt::Key_Return);
    const std::string linked = Shown();
    EXPECT_NE(linked, "chm:/index.html");
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Shown() + " " + Entry(), "chm:/index.html Bienvenida a Zarpel");
    Press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Shown(), linked);
    Press(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(Shown(), "chm:/index.html");

    EXPECT_EQ(contents.topLevelItemCount(), 5);
    Choose("Preguntas");
    EXPECT_EQ(Shown(), "chm:/mensajes.html#preguntas");
    EXPECT_GT(page.verticalScrollBar()->value(), 0) << "at the place in the page that the entry names";
    Choose("Cómo se maneja");  // a heading without a page
    EXPECT_EQ(Shown() + " " + Entry(), "chm:/mensajes.html#preguntas Cómo se maneja");
    page.setSource(QUrl("zarpel.html"));
    EXPECT_EQ(Shown() + " " + Entry(), "chm:/zarpel.html El zarpel");
    for (const QWidget* const widget : std::initializer_list<QWidget*>{&contents, &page, &searchText}) {
        EXPECT_FALSE(widget->accessibleName().isEmpty());
    }
}

TEST_F(Window, NothingOutsideTheFileIsFollowedOrLoaded) {
    const char* const onDisk = "file://" HELP_PAGES "/zarpel.html";
    for (const char* const address :
         {onDisk, "http://localhost/zarpel.html", "mailto:nadie@localhost", "no-existe.html",
          "chm:/../../etc/passwd", "qrc:/qt-project.org/qmessagebox/images/qtlogo-64.png"}) {
        page.setSource(QUrl(address));
        EXPECT_EQ(Shown(), "chm:/index.html") << address;
        const QVariant image = page.loadResource(QTextDocument::ImageResource, QUrl(address));
        const QVariant style = page.loadResource(QTextDocument::StyleSheetResource, QUrl(address));
        EXPECT_TRUE(image.value<QImage>().isNull() && style.toByteArray().isEmpty()) << address;
    }
}

TEST_F(Window, CtrlAndWheelZoomLettersAndPictures) {
    page.setSource(QUrl("baraja.html"));
    const auto wheel = [&](int notches) {
        QWheelEvent event({50, 50}, page.mapToGlobal(QPointF(50, 50)), {}, {0, 120 * notches}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(page.viewport(), &event);
    };
    const qreal letters = page.font().pointSizeF();
    wheel(5);
    EXPECT_DOUBLE_EQ(page.font().pointSizeF(), letters * 1.5);
    const QVariant card = page.document()->resource(QTextDocument::ImageResource, QUrl("naipes/oro01.png"));
    EXPECT_EQ(card.value<QImage>().width(), 120);
    wheel(-100);
    EXPECT_EQ(page.Zoom(), 50);
    Press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(page.Zoom(), 100);
}

TEST_F(Window, FindGoesRoundThePageAndEscapeLeavesStepByStep) {
    page.setSource(QUrl("puntos.html"));
    Press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("VÉLO"));
    QList<int> places;
    do {
        Press(places.isEmpty() ? Qt::Key_Return : Qt::Key_F3);
        EXPECT_EQ(page.textCursor().selectedText().toLower(), "velo");
        places << page.textCursor().position();
    } while (places.size() < 50 && places.lastIndexOf(places.first()) == 0);
    EXPECT_GT(places.size(), 2);
    EXPECT_EQ(places.last(), places.first()) << "round and round";
    Press(Qt::Key_F3, Qt::ShiftModifier);
    searchText.setText("quimera");
    Press(Qt::Key_F3);
    EXPECT_EQ(page.textCursor().position(), places.at(places.size() - 2)) << "not found: nothing moves";

    Press(Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible() && !searchText.isVisible());
    Press(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(Window, AMissingOrDamagedFileIsToldAndMendedByOpeningAgain) {
    const auto expectTold = [&](const QString& text) {
        window.Present();
        EXPECT_TRUE(page.toPlainText().contains(text) && page.toPlainText().contains(path));
        EXPECT_FALSE(contents.isVisible());
        for (QAction* const action : window.actions()) action->trigger();  // none may stumble over it
    };
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    uchar* const middle = file.map(file.size() / 2, 1);
    *middle ^= 1;
    expectTold("está dañado");  // for one wrong bit
    *middle ^= 1;
    window.Present();
    EXPECT_TRUE(contents.isVisible());
    page.setSource(QUrl("zarpel.html"));
    window.Present();
    EXPECT_EQ(Shown(), "chm:/index.html") << "opened again, the help begins at its first page";
    ASSERT_TRUE(file.remove());
    expectTold("No se encuentra el archivo de la ayuda");
}

}  // namespace
}  // namespace zarpel
