// Clicks, drags and keys, and what comes while the game is busy.
#include <QMenuBar>

#include "qt/keyboard.h"
#include "tests/qt/qt_table.h"

namespace zarpel {
namespace {

// No two selections have the same sum, and the computer has no capture, so that it lays its card.
class InputTest : public QtTable {
  protected:
    InputTest() {
        LayCards(Game, {Card(1, 'e'), Card(2, 'e')}, {Card(8, 'o'), 0, Card(4, 'c')}, {Card(3, 'b')});
    }
};

TEST_F(InputTest, AClickSelectsACardAndADropOnTheBareTableLaysOne) {
    auto& button = ViewOf<ButtonView>(Game.LevantarBtn);
    button.setFocus();
    const QPoint own = Middle(Game.cartap2img[0]), table = Middle(Game.mesaimg[1]);
    const QPoint back = Middle(Game.fondop1img[0]), outside(own.x(), Window().height() + 40);
    const struct {
        const char* What;
        QPoint From, To;
        int Sum;
        Qt::MouseButton Button = Qt::LeftButton;
    } cases[] = {{"click on an own card", own, own, 8},
                 {"click on a table card", table, table, 2},
                 {"click on a card back", back, back, 0},
                 {"click with the right button", own, own, 0, Qt::RightButton},
                 {"own card around its own place", own, own + QPoint(20, 0), 0},
                 {"own card to a table card", own, table, 0},
                 {"own card to outside", own, outside, 0},
                 {"table card to the bare table", table, BareTable(), 0},
                 {"card back to the bare table", back, BareTable(), 0},
                 {"own card to the bare table", own, BareTable(), 0}};
    for (const auto& c : cases) {
        EXPECT_TRUE(Game.SlotsMano(Jugador::Humano)[0].Ocupado() && !Game.SlotsMesa()[2].Ocupado())
            << "before " << c.What;
        QTest::mousePress(Window().windowHandle(), c.Button, {}, c.From);
        QTest::mouseMove(Window().windowHandle(), (c.From + c.To) / 2);
        QTest::mouseMove(Window().windowHandle(), c.To);
        QTest::mouseRelease(Window().windowHandle(), c.Button, {}, c.To);
        EXPECT_EQ(Game.Suma(), c.Sum) << c.What;
        Game.EmprolijaDesktop();
    }
    EXPECT_FALSE(Game.SlotsMano(Jugador::Humano)[0].Ocupado());
    EXPECT_EQ(Game.SlotsMesa()[2].Carta(), Card(8, 'o'));
    EXPECT_EQ(Game.SlotsMesa()[3].Carta(), Card(3, 'b'));  // the computer has moved
    EXPECT_TRUE(button.hasFocus());  // so that the space bar takes what the pointer has chosen
}

TEST_F(InputTest, ADragThatABoxOrEscapeEndsLeavesTheCardInTheHand) {
    InBox([](QWidget& box) { box.close(); });
    for (const Qt::Key key : {Qt::Key_L, Qt::Key_Escape}) {  // there are no 15
        QTest::mousePress(Window().windowHandle(), Qt::LeftButton, {}, Middle(Game.cartap2img[0]));
        QTest::mouseMove(Window().windowHandle(), BareTable());
        EXPECT_TRUE(SomethingMoves());
        Key(key, 46);
        EXPECT_FALSE(SomethingMoves());
        QTest::mouseRelease(Window().windowHandle(), Qt::LeftButton, {}, BareTable());
        EXPECT_TRUE(Game.SlotsMano(Jugador::Humano)[0].Ocupado());
    }
}

TEST_F(InputTest, ACardGlidesToWhereAClickFindsItAlready) {
    LetMove(true);
    const QPoint target = Middle(Game.mesaimg[2]);
    Desktop.OnPause = [&] {
        QCoreApplication::processEvents();
        EXPECT_TRUE(QTest::qWaitFor([this] { return !SomethingMoves(); }));
        const QImage table = Window().grab().toImage();
        EXPECT_EQ(table.pixelColor(target), ColorOfCard(Card(8, 'o')));
        EXPECT_EQ(table.pixelColor(BareTable()), QColor(0, 96, 0));
    };
    Key(Qt::Key_Exclam, 10, Qt::ShiftModifier);
    QCoreApplication::processEvents();
    EXPECT_TRUE(SomethingMoves());  // the computer's card
    Click(Middle(Game.mesaimg[3]));
    EXPECT_EQ(Game.Suma(), 3);
}

TEST_F(InputTest, TheSecondClickOfADoubleClickIsForNothing) {
    auto& button = ViewOf<ButtonView>(Game.LevantarBtn);
    Game.LevantarBtn.Enabled = true;
    const QPoint at = button.mapToGlobal(button.rect().center());
    const auto click = [at](const QWidget& window) {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, window.mapFromGlobal(at));
    };
    InBox([&](QWidget& box) {  // there are no 15
        auto& ok = *box.findChild<QPushButton*>();
        box.move(box.pos() + at - ok.mapToGlobal(ok.rect().center()));
        click(box);
        EXPECT_TRUE(box.isVisible());
        click(box);
        EXPECT_FALSE(box.isVisible());
    });
    click(Window());
    int clicks = 0;
    Game.LevantarBtn.Click = [&clicks] { ++clicks; };
    QTest::mouseDClick(Window().windowHandle(), Qt::LeftButton, {}, Window().mapFromGlobal(at));
    EXPECT_EQ(clicks, 1);
}

TEST(KeyCodes, NameTheKeyNotTheCharacter) {
    const auto codeOf = [](int key, quint32 place, Qt::KeyboardModifiers modifiers) {
        return KeyCodeOf(QKeyEvent(QEvent::KeyPress, key, modifiers, place, 0, 0));
    };
    EXPECT_EQ(codeOf(Qt::Key_At, 11, Qt::ShiftModifier), '2');        // US
    EXPECT_EQ(codeOf(Qt::Key_QuoteDbl, 11, Qt::ShiftModifier), '2');  // Spanish
    EXPECT_EQ(codeOf(Qt::Key_2, 0, {}), '2');                         // an on-screen keyboard
    EXPECT_EQ(codeOf(Qt::Key_2, 99, {}), '2');                        // a remote desktop
    EXPECT_EQ(codeOf(Qt::Key_1, 0, Qt::KeypadModifier), kKeyNone);
    EXPECT_EQ(codeOf(0x0424, 38, {}), 'A');              // Russian
    EXPECT_EQ(codeOf(Qt::Key_Comma, 58, {}), kKeyNone);  // French
    EXPECT_EQ(ShiftMaskOf(Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier), 7);
}

TEST_F(InputTest, KeysReachTheGameWhateverHasTheFocus) {
    auto& button = ViewOf<ButtonView>(Game.LevantarBtn);
    button.setFocus();
    Key(Qt::Key_1, 10);
    Key(Qt::Key_S, 39, {}, true);  // held down
    EXPECT_EQ(Game.Suma(), 8);
    auto* const menu = Window().findChild<QMenuBar*>()->actions().constFirst()->menu();
    menu->popup({});
    Key(Qt::Key_S, 39);
    menu->close();
    Window().findChild<QMenuBar*>()->setFocus();
    Key(Qt::Key_S, 39);
    EXPECT_EQ(Game.Suma(), 8);
    ViewOf<ImageView>(Game.cartap2img[0]).setFocus();
    QTest::keyClick(Window().windowHandle(), Qt::Key_Space);
    EXPECT_EQ(Game.Suma(), 0);  // the card was selected
    // A button that is disabled, be it below a box, keeps the focus.
    button.setFocus();
    InBox([&](QWidget& box) {
        Game.LevantarBtn.Enabled = false;
        EXPECT_EQ(Window().focusWidget(), &button);
        box.close();
    });
    Key(Qt::Key_L, 46);
}

// The accessibility bus and the session do not wait for the game, so the window makes them.
TEST_F(InputTest, WhatComesWhileAHandlerRunsIsHandedOverAfterwardsInOrder) {
    std::vector<int> sums;
    Desktop.OnPause = [&] {
        Click(Middle(Game.mesaimg[0]));
        ViewOf<ImageView>(Game.cartap2img[2]).Press();
        ViewOf<ImageView>(Game.mesaimg[1]).Press();
        Window().close();
        const QDeadlineTimer over(60, Qt::PreciseTimer);
        Desktop.QtDesktop::Pause(60);
        EXPECT_TRUE(over.hasExpired());
        sums.push_back(Game.Suma());
    };
    InBox([&](QWidget& box) {  // the farewell of the window that was closed last
        EXPECT_FALSE(Window().isVisible());
        sums.push_back(Game.Suma());
        ViewOf<ImageView>(Game.mesaimg[1]).Press();
        box.close();
    });
    Key(Qt::Key_Exclam, 10, Qt::ShiftModifier);
    EXPECT_EQ(sums, (std::vector{0, 4 + 1 + 2}));  // in the pause and in the box
    EXPECT_EQ(Game.Suma(), 4 + 1 + 2);             // nothing is handed to a window that is gone
}

TEST_F(InputTest, TheTableIsWholeAndInTheMiddleOfEveryWindow) {
    auto& bar = ViewOf<StatusBarView>(Game.StatusBar1);
    const QWidget& table = *ViewOf<AreaView>(Game.Frame1).parentWidget();
    const QWidget& client = *table.parentWidget();
    const struct {
        QSize Window, Table;
    } cases[] = {{{800, 0}, {800, 560}}, {{1600, 600}, {857, 600}}, {{700, 1200}, {700, 490}}};
    for (const auto& c : cases) {
        Window().resize(c.Window.expandedTo({0, 560}) + Window().size() - client.size());
        QCoreApplication::processEvents();
        EXPECT_EQ(table.size(), c.Table);
        EXPECT_LE((table.geometry().center() - client.rect().center()).manhattanLength(), 2);
        const auto pointAt = [&](double twips) {
            const int y = table.y() + int(std::lround(twips * table.height() / 8400));
            QTest::mouseMove(Window().windowHandle(), client.mapTo(&Window(), QPoint(table.x() + 1, y)));
        };
        pointAt(8070);
        EXPECT_TRUE(bar.isVisible());
        EXPECT_EQ(bar.geometry().bottomRight(), client.rect().bottomRight());
        pointAt(8040);
        EXPECT_FALSE(bar.isVisible());
    }
}

}  // namespace
}  // namespace zarpel
