// Boxes, choosers and modal windows, left by every way out.
#include <QAccessible>
#include <QColorDialog>
#include <QMessageBox>
#include <QTreeView>

#include "qt/fonts.h"
#include "tests/qt/qt_table.h"
#include "ui/preferenciasfrm.h"
#include "ui/resultadosfrm.h"

namespace zarpel {
namespace {

using BoxesTest = QtTable;

constexpr Qt::Key kTitleBar{};  // no key, but the button there

void Leave(QWidget& window, Qt::Key key) {
    if (key == kTitleBar) return void(window.close());
    QTest::keyClick(window.windowHandle(), key);
}

TEST_F(BoxesTest, ABoxSaysWhatItWasGivenAndTakesEveryAnswer) {
    const std::string text = "Gana <b>x</b> & yo\n¿continuar?";
    const Message ok = {.Text = text, .Icon = BoxIcon::Critical};
    const Message yes = {.Text = text, .Icon = BoxIcon::Critical, .Buttons = BoxButtons::YesNo};
    Message no = yes;
    no.Preselected = Answer::No;
    const auto answer = [&](const Message& message, Qt::Key pressed) {
        InBox([&](QWidget& widget) {
            const auto& box = dynamic_cast<QMessageBox&>(widget);
            EXPECT_EQ(box.text().toStdString(), text);
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.icon(), QMessageBox::Critical);
            Leave(widget, pressed);
            if (box.isVisible()) Leave(widget, Qt::Key_Return);
        });
        return Desktop.Show(message);
    };
    EXPECT_EQ(answer(ok, Qt::Key_Escape), Answer::Ok);
    EXPECT_EQ(answer(yes, Qt::Key_Return), Answer::Yes);
    EXPECT_EQ(answer(yes, Qt::Key_Escape), Answer::Yes) << "which leaves the box open";
    EXPECT_EQ(answer(yes, kTitleBar), Answer::Yes);
    for (const Qt::Key key : {Qt::Key_Enter, Qt::Key_Escape, kTitleBar}) {
        EXPECT_EQ(answer(no, key), Answer::No);
    }
    for (const char* const word : {"W", "Ana "}) {
        InBox([&](QWidget& box) {
            EXPECT_TRUE(box.screen()->availableGeometry().contains(box.frameGeometry())) << word;
            box.close();
        });
        Desktop.Show({.Text = QString(word).repeated(20'000).toStdString()});
    }
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        InBox([key](QWidget& box) { Leave(box, key); });
        EXPECT_EQ(Desktop.InputBox("Nombre", "Jugador", "Ana", Game.Label2),
                  key == Qt::Key_Return ? "Ana" : "");
    }
    InBox([](QWidget& box) {
        QTest::keyClicks(box.focusWidget(), QString(60, 'W'));
        Leave(box, Qt::Key_Return);
    });
    const QString name = QString::fromStdString(Desktop.InputBox("Nombre", "Jugador", "", Game.Label2));
    EXPECT_TRUE(FitsWhole(name, Game.Label2) && !FitsWhole(name + 'W', Game.Label2)) << name.size();
}

TEST_F(BoxesTest, AMatchIsSavedUnderTheNameThatTheChooserShowsInASpanishList) {
    ASSERT_TRUE(Desktop.WriteFile(Folder.filePath("vieja.zrp").toStdString(), ""));
    ChooserState dialog{
        .DefaultExt = "zrp", .Filter = "(*.zrp)|*.zrp", .FileName = Folder.path().toStdString() + "\\a"};
    InBox([](QWidget& chooser) {
        const auto& list = *chooser.findChild<QTreeView*>();
        const QString today = QLocale().toString(QDate::currentDate(), QLocale::ShortFormat);
        const auto column = [&](int i) {
            return list.model()->index(0, i, list.rootIndex()).data().toString();
        };
        EXPECT_TRUE(QTest::qWaitFor([&] { return column(3).startsWith(today); }));
        EXPECT_EQ(column(2), "Archivo");
        QTest::keyClicks(chooser.focusWidget(), "dos\\\"tres");
        Leave(chooser, Qt::Key_Return);
    });
    EXPECT_TRUE(Desktop.ShowSave(dialog));
    EXPECT_EQ(dialog.FileName, Folder.filePath("dos\\tres.zrp").toStdString());
}

TEST_F(BoxesTest, TheResultsWindowEndsByEveryWayOut) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space, kTitleBar}) {
        Resultadosfrm results(Desktop);
        InBox([&](QWidget& window) {
            Click(Middle(Game.cartap2img[0]));  // the table below takes no input
            Leave(window, key);
        });
        Desktop.ShowModal(results);
        EXPECT_FALSE(Game.SlotsMano(Jugador::Humano)[0].Elegido());
    }
}

TEST_F(BoxesTest, OpcionesIsUsedFromTheKeyboard) {
    Game.BackColor = Rgb(10, 20, 30);
    Game.Frame1.BackColor = SystemColor(Palette::HighlightText);
    // Chooses a colour, and gives that of the table after this key on this button.
    const auto colorAfter = [&](Button preferenciasfrm::*button, Qt::Key pressed) {
        preferenciasfrm options(Desktop, Game);
        InBox([&](QWidget& window) {
            const auto colorOf = [](Label& swatch) {
                return ViewOf<LabelView>(swatch).grab().toImage().pixelColor(5, 5);
            };
            EXPECT_EQ(colorOf(options.Label6), QColor(Qt::white));
            InBox([](QWidget& chooser) {
                dynamic_cast<QColorDialog&>(chooser).setCurrentColor(Qt::red);
                Leave(chooser, Qt::Key_Return);
            });
            ViewOf<LabelView>(options.Label1).setFocus();
            QTest::keyClick(window.windowHandle(),
                            pressed == Qt::Key_Return ? Qt::Key_Return : Qt::Key_Space);
            EXPECT_EQ(colorOf(options.Label1), QColor(Qt::red));
            QStringList order;
            for (int i = 0; i < 9; ++i) {
                QWidget* const at = window.focusWidget();
                const QString name = QAccessible::queryAccessibleInterface(at)->text(QAccessible::Name);
                order << name.section(':', 0, 0);
                QTest::keyClick(at, Qt::Key_Tab);
            }
            EXPECT_EQ(order.join(", "),
                      "Fondo, Fondo Rect., Reverso, Aplicacion de fondo, Default, Aceptar, Cancelar, "
                      "Escritorio, Fondo");
            ViewOf<ButtonView>(options.*button).setFocus();
            Leave(window, pressed);
        });
        Desktop.ShowModal(options);
        return Game.BackColor.get();
    };
    EXPECT_EQ(colorAfter(&preferenciasfrm::cmdOK, Qt::Key_Escape), Rgb(10, 20, 30));
    EXPECT_EQ(colorAfter(&preferenciasfrm::cmdCancel, Qt::Key_Return), Rgb(10, 20, 30));
    EXPECT_EQ(colorAfter(&preferenciasfrm::cmdOK, Qt::Key_Return), Rgb(255, 0, 0));
}

}  // namespace
}  // namespace zarpel
