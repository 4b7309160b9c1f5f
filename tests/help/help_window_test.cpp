// The help window as a reader uses it, with keys, clicks and wheel.
#include "platform/qt/help/help_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>
#include <QWheelEvent>

#include "platform/qt/help/help_browser.h"
#include "tests/help/sample_help.h"

namespace zarpel {
namespace {

// Shows a copy of the guide, which a test may damage.
class Window : public testing::Test {
  protected:
    void SetUp() override {
        WriteBytes(path, BytesOf(GuidePath()));
        window.Present();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    std::string Shown() const { return page.source().toString().toStdString(); }
    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &window, Qt::Key(key),
                        modifiers);
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

TEST_F(Window, EveryPageShowsItsPictures) {
    int pictures = 0;
    for (const QString& name : page.file()->paths()) {
        if (!name.endsWith(".html")) continue;
        page.setSource(HelpFile::Address(name));
        EXPECT_EQ(Shown(), "chm:" + name.toStdString());
        for (const QTextFormat& format : page.document()->allFormats()) {
            if (!format.isImageFormat()) continue;
            const QString picture = format.toImageFormat().name();
            const QVariant shown = page.document()->resource(QTextDocument::ImageResource, picture);
            EXPECT_EQ(shown.value<QImage>().size(), QSize(80, 118)) << qPrintable(name + ' ' + picture);
            ++pictures;
        }
        EXPECT_FALSE(page.toPlainText().contains(QChar::ReplacementCharacter));
    }
    EXPECT_GT(pictures, 20);
}

TEST_F(Window, ContentsLinksAndHistoryLeadFromPageToPage) {
    const auto expectAt = [&](const char* address, const char* entry) {
        EXPECT_EQ(Shown(), address);
        EXPECT_EQ(contents.currentItem()->text(0), entry);
    };
    expectAt("chm:/index.html", "Bienvenida a Zarpel");
    EXPECT_EQ(window.windowTitle(), "Ayuda de Zarpel");
    EXPECT_FALSE(window.isModal());
    EXPECT_EQ(contents.topLevelItemCount(), 5);
    for (const QWidget* const widget : {static_cast<QWidget*>(&contents), static_cast<QWidget*>(&page),
                                        static_cast<QWidget*>(&searchText)}) {
        EXPECT_FALSE(widget->accessibleName().isEmpty());
    }
    page.setFocus();
    Press(Qt::Key_Tab);
    Press(Qt::Key_Return);
    const std::string linked = Shown();
    EXPECT_NE(linked, "chm:/index.html");
    Press(Qt::Key_Left, Qt::AltModifier);
    expectAt("chm:/index.html", "Bienvenida a Zarpel");
    Press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Shown(), linked);
    Press(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(Shown(), "chm:/index.html");

    Choose("Los puntos");
    EXPECT_EQ(Shown(), "chm:/puntos.html");
    Choose("Preguntas");
    EXPECT_EQ(Shown(), "chm:/mensajes.html#preguntas");
    EXPECT_GT(page.verticalScrollBar()->value(), 0) << "at the place in the page that the entry names";
    Choose("Cómo se maneja");
    expectAt("chm:/mensajes.html#preguntas", "Cómo se maneja");  // a heading without a page
    page.setSource(QUrl("zarpel.html"));
    expectAt("chm:/zarpel.html", "El zarpel");
}

TEST_F(Window, NothingOutsideTheFileIsFollowedOrLoaded) {
    const char* const onDisk = "file://" HELP_PAGES "/zarpel.html";
    for (const char* const address :
         {onDisk, "http://localhost/zarpel.html", "mailto:nadie@localhost", "no-existe.html",
          "chm:/../../etc/passwd", "qrc:/qt-project.org/qmessagebox/images/qtlogo-64.png"}) {
        page.setSource(QUrl(address));
        EXPECT_EQ(Shown(), "chm:/index.html") << address;
        for (const int type : {QTextDocument::ImageResource, QTextDocument::StyleSheetResource}) {
            const QVariant resource = page.loadResource(type, QUrl(address));
            EXPECT_TRUE(resource.value<QImage>().isNull() && resource.toByteArray().isEmpty()) << address;
        }
    }
}

TEST_F(Window, CtrlAndWheelZoomLettersAndPicturesAndKeepTheHistory) {
    page.setSource(QUrl("baraja.html"));
    const auto wheel = [&](int delta) {
        QWheelEvent event({50, 50}, page.mapToGlobal(QPointF(50, 50)), {}, {0, delta}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(page.viewport(), &event);
    };
    const qreal letters = page.font().pointSizeF();
    for (int i = 0; i < 5; ++i) wheel(120);
    EXPECT_EQ(page.zoom(), 150);
    EXPECT_DOUBLE_EQ(page.font().pointSizeF(), letters * 1.5);
    const QVariant card = page.document()->resource(QTextDocument::ImageResource, QUrl("naipes/oro01.png"));
    EXPECT_EQ(card.value<QImage>().width(), 120);
    for (int i = 0; i < 100; ++i) wheel(-120);
    EXPECT_EQ(page.zoom(), 50);
    Press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(page.zoom(), 100);
    EXPECT_EQ(Shown(), "chm:/baraja.html");
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Shown(), "chm:/index.html");
}

TEST_F(Window, FindGoesRoundThePageAndEscapeLeavesStepByStep) {
    page.setSource(QUrl("puntos.html"));
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
    searchText.setText("quimera");
    Press(Qt::Key_F3);
    EXPECT_EQ(page.textCursor().position(), places.at(18)) << "not found: the page stays where it is";

    Press(Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible() && !searchText.isVisible());
    Press(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(Window, AMissingOrDamagedFileIsToldAndMendedByOpeningAgain) {
    const auto expectTold = [&](const QString& text) {
        window.Present();
        EXPECT_TRUE(page.toPlainText().contains(text)) << qPrintable(page.toPlainText());
        EXPECT_FALSE(contents.isVisible());
    };
    ASSERT_TRUE(QFile::remove(path));
    expectTold("No se encuentra el archivo de la ayuda");
    expectTold(path);
    for (QAction* const action : window.actions()) action->trigger();  // none may stumble over it
    WriteBytes(path, BytesOf(GuidePath()).left(4000));
    expectTold("está dañado");

    WriteBytes(path, BytesOf(GuidePath()));
    window.Present();
    EXPECT_TRUE(contents.isVisible());
    page.setSource(QUrl("zarpel.html"));
    window.Present();
    EXPECT_EQ(Shown(), "chm:/index.html") << "opened again, the help begins at its first page";
}

}  // namespace
}  // namespace zarpel
