#include <QAccessible>
#include <QColorDialog>
#include <QLineEdit>
#include <QMessageBox>

#include "tests/qt/qt_table.h"
#include "ui/preferenciasfrm.h"
#include "ui/resultadosfrm.h"

namespace zarpel {
namespace {

using BoxesTest = QtTable;

TEST_F(BoxesTest, ABoxSaysWhatItWasGivenAndTakesEveryAnswer) {
    const std::string text = "Gana <b>x</b> & yo\n¿continuar?";
    const Message ok = {.Text = text, .Icon = Icon::Critical, .Title = "Error grave"};
    const Message yes = {.Text = text, .Icon = Icon::Question, .Buttons = Buttons::YesNo};
    const Message no = {.Text = text, .Buttons = Buttons::YesNo, .Preselected = Answer::No};
    const struct {
        const Message& Shown;
        Qt::Key Pressed;  // 0: the box is closed from its title bar
        Answer Gives;
        const char* Title;
        QMessageBox::Icon Icon;
        QStringList Buttons;
    } cases[] = {{ok, Qt::Key_Return, Answer::Ok, "Error grave", QMessageBox::Critical, {"Aceptar"}},
                 {ok, Qt::Key_Escape, Answer::Ok, "Error grave", QMessageBox::Critical, {"Aceptar"}},
                 {yes, Qt::Key_Return, Answer::Yes, "Zarpel", QMessageBox::Question, {"Sí", "No"}},
                 {yes, Qt::Key_Escape, Answer::No, "Zarpel", QMessageBox::Question, {"Sí", "No"}},
                 {no, Qt::Key_Enter, Answer::No, "Zarpel", QMessageBox::NoIcon, {"Sí", "No"}},
                 {no, Qt::Key(0), Answer::No, "Zarpel", QMessageBox::NoIcon, {"Sí", "No"}}};
    for (const auto& c : cases) {
        InBox([&](QWidget& widget) {
            auto& box = dynamic_cast<QMessageBox&>(widget);
            EXPECT_EQ(box.text().toStdString(), text);
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.windowTitle(), c.Title);
            EXPECT_EQ(box.icon(), c.Icon);
            QStringList buttons;
            for (const auto* const button : box.buttons()) buttons.push_back(button->text());
            EXPECT_EQ(buttons, c.Buttons);
            if (c.Pressed == 0) return void(box.close());
            QTest::keyClick(&box, c.Pressed);
        });
        EXPECT_EQ(Desktop.Show(c.Shown), c.Gives) << c.Pressed;
    }
    for (const bool accepted : {true, false}) {
        InBox([&](QWidget& box) {
            auto* const line = box.findChild<QLineEdit*>();
            EXPECT_EQ(line->text(), "Ana");
            QTest::keyClicks(line, "Beto");  // over the proposed text, which is marked
            QTest::keyClick(line, accepted ? Qt::Key_Return : Qt::Key_Escape);
        });
        EXPECT_EQ(Desktop.InputBox("Nombre", "Jugador", "Ana"), accepted ? "Beto" : "");
    }
}

TEST_F(BoxesTest, TheResultsWindowEndsByEveryWayOut) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space, Qt::Key(0)}) {
        Resultadosfrm results(Desktop);
        results.Resultados({{{23, 17}, {7, 3}, {2, 2}, {1, 0}, {0, 1}}});
        InBox([&](QWidget& window) {
            EXPECT_EQ(window.windowTitle(), "Resultados");
            EXPECT_EQ(ViewOf<LabelView>(results.cartasp2lbl).text(), "17");
            Click(Middle(Game.cartap2img[0]));  // the table below takes no input
            if (key == 0) return void(window.close());
            QTest::keyClick(window.windowHandle(), key);
        });
        Desktop.ShowModal(results);
        EXPECT_FALSE(Game.SlotHumano(0).Elegido());
    }
    EXPECT_TRUE(Window().isVisible());
}

TEST_F(BoxesTest, OpcionesIsUsedFromTheKeyboard) {
    Game.Frame1.BackColor = SystemColor(kHighlightText);
    const struct {
        std::string At;  // the name of what has the focus
        Qt::Key Pressed;
        bool Accepts;
    } cases[] = {{"Aceptar", Qt::Key_Return, true},
                 {"Cancelar", Qt::Key_Return, false},
                 {"Aceptar", Qt::Key_Escape, false}};
    for (const auto& c : cases) {
        Game.BackColor = Rgb(10, 20, 30);
        preferenciasfrm options(Desktop, Game);
        InBox([&](QWidget& window) {
            const auto colorOf = [](Label& swatch) {
                auto& view = ViewOf<LabelView>(swatch);
                return view.grab().toImage().pixelColor(view.rect().center());
            };
            EXPECT_EQ(colorOf(options.Label1), QColor(10, 20, 30));
            EXPECT_EQ(colorOf(options.Label6), QColor(Qt::white));
            InBox([](QWidget& chooser) {
                dynamic_cast<QColorDialog&>(chooser).setCurrentColor(Qt::red);
                QTest::keyClick(&chooser, Qt::Key_Return);
            });
            ViewOf<LabelView>(options.Label1).setFocus();
            QTest::keyClick(window.windowHandle(), Qt::Key_Space);
            EXPECT_EQ(colorOf(options.Label1), QColor(Qt::red));
            QStringList order;
            do {
                QWidget* const at = window.focusWidget();
                order << QAccessible::queryAccessibleInterface(at)->text(QAccessible::Name);
                QTest::keyClick(at, Qt::Key_Tab);
            } while (window.focusWidget() != &ViewOf<LabelView>(options.Label1) && order.size() < 12);
            EXPECT_EQ(
                order.join(", "),
                "Fondo, Fondo Rect., Reverso, Aplicacion de fondo, Default, Aceptar, Cancelar, Escritorio");
            ViewOf<ButtonView>(c.At == "Aceptar" ? options.cmdOK : options.cmdCancel).setFocus();
            QTest::keyClick(window.windowHandle(), c.Pressed);
        });
        Desktop.ShowModal(options);
        EXPECT_EQ(Game.BackColor.get(), c.Accepts ? Rgb(255, 0, 0) : Rgb(10, 20, 30)) << c.At << c.Pressed;
    }
}

}  // namespace
}  // namespace zarpel
