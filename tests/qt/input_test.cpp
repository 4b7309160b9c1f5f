#include <QMenuBar>

#include "platform/qt/keyboard.h"
#include "tests/qt/qt_table.h"

namespace zarpel {
namespace {

class InputTest : public QtTable {
  protected:
    // The computer has no capture, so that it lays its card.
    InputTest() {
        LayCards(Game, {Card(2, 'e'), Card(3, 'e')}, {Card(9, 'o'), 0, Card(4, 'c')}, {Card(5, 'b')});
    }

    // The letters of the raised cards, "1" to "3" and "A" to "K", as on the keyboard.
    std::string Selected() {
        std::string keys;
        for (int i = 0; i < kLugaresMano; ++i) {
            if (Game.SlotHumano(i).Elegido()) keys += "123"[i];
        }
        for (int i = 0; i < kLugaresMesa; ++i) {
            if (Game.SlotMesa(i).Elegido()) keys += "ASDFGHJK"[i];
        }
        return keys;
    }
    void Drag(const QPoint& from, const QPoint& to) {
        QTest::mousePress(Window().windowHandle(), Qt::LeftButton, {}, from);
        QTest::mouseMove(Window().windowHandle(), (from + to) / 2);
        QTest::mouseMove(Window().windowHandle(), to);
        QTest::mouseRelease(Window().windowHandle(), Qt::LeftButton, {}, to);
    }
};

TEST_F(InputTest, AClickSelectsWhatLiesThere) {
    const struct {
        const char* What;
        QPoint At;
        Qt::MouseButton Button;
        const char* Selects;
    } cases[] = {{"own card", Middle(Game.cartap2img[0]), Qt::LeftButton, "1"},
                 {"table card", Middle(Game.mesaimg[1]), Qt::LeftButton, "S"},
                 {"own card, right button", Middle(Game.cartap2img[0]), Qt::RightButton, ""},
                 {"card back", Middle(Game.fondop1img[0]), Qt::LeftButton, ""},
                 {"empty place of the table", Middle(Game.mesaimg[5]), Qt::LeftButton, ""},
                 {"bare table", BareTable(), Qt::LeftButton, ""}};
    for (const auto& c : cases) {
        Click(c.At, c.Button);
        EXPECT_EQ(Selected(), c.Selects) << c.What;
        Game.EmprolijaDesktop();
    }
    Click(Middle(Game.cartap2img[2]));
    EXPECT_EQ(ViewOf<ImageView>(Game.cartap2img[2]).y(), Scale().Pixels(6000));
    Click(Middle(Game.cartap2img[2]));
    EXPECT_EQ(Selected(), "");
}

TEST_F(InputTest, OnlyADropOnTheBareTableLaysACard) {
    const QPoint own = Middle(Game.cartap2img[0]);
    const QPoint table = Middle(Game.mesaimg[0]);
    const struct {
        const char* What;
        QPoint From, To;
    } refused[] = {{"onto a table card", own, table},
                   {"onto the background", own, {5, 400}},
                   {"outside the window", own, {own.x(), Window().height() + 40}},
                   {"onto another own card", own, Middle(Game.cartap2img[2])},
                   {"around its own place", own, own + QPoint(20, 0)},
                   {"a table card", table, BareTable()},
                   {"a card back", Middle(Game.fondop1img[0]), BareTable()}};
    for (const auto& c : refused) {
        Drag(c.From, c.To);
        EXPECT_TRUE(Game.SlotHumano(0).Ocupado() && !Game.SlotMesa(2).Ocupado()) << c.What;
        EXPECT_EQ(Selected(), "") << c.What;
    }
    Drag(own, BareTable());
    EXPECT_FALSE(Game.SlotHumano(0).Ocupado());
    EXPECT_EQ(Game.SlotMesa(2).Carta(), Card(9, 'o'));
    EXPECT_EQ(Desktop.Pauses, std::vector{1500});  // the computer has moved
}

TEST(KeyCodes, NameTheKeyNotTheCharacter) {
    const struct {
        int Key;
        quint32 Place;
        Qt::KeyboardModifiers Modifiers;
        int Code;
    } cases[] = {{Qt::Key_1, 10, {}, '1'},
                 {Qt::Key_At, 11, Qt::ShiftModifier, '2'},              // US
                 {Qt::Key_QuoteDbl, 11, Qt::ShiftModifier, '2'},        // Spanish
                 {Qt::Key_NumberSign, 12, Qt::ShiftModifier, '3'},      // US
                 {Qt::Key_periodcentered, 12, Qt::ShiftModifier, '3'},  // Spanish
                 {Qt::Key_Ampersand, 10, {}, '1'},                      // French, where Shift makes the digit
                 {Qt::Key_2, 0, {}, '2'},                               // an on-screen keyboard
                 {Qt::Key_1, 87, Qt::KeypadModifier, kKeyNone},
                 {Qt::Key_A, 24, {}, 'A'},  // French
                 {Qt::Key_Backtab, 23, Qt::ShiftModifier, kKeyTab},
                 {Qt::Key_F1, 67, {}, kKeyF1},
                 {Qt::Key_Shift, 50, Qt::ShiftModifier, kKeyNone}};
    for (const auto& c : cases) {
        const QKeyEvent event(QEvent::KeyPress, c.Key, c.Modifiers, c.Place, 0, 0);
        EXPECT_EQ(KeyCodeOf(event), c.Code) << std::hex << c.Key << " at " << std::dec << c.Place;
    }
    EXPECT_EQ(ShiftMaskOf(Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier), 7);
}

TEST_F(InputTest, KeysReachTheGameWhateverHasTheFocus) {
    Key(Qt::Key_1, 10);
    Key(Qt::Key_A, 38);
    Key(Qt::Key_S, 39, {}, true);  // held down
    EXPECT_EQ(Selected(), "1A");
    auto& button = ViewOf<ButtonView>(Game.LevantarBtn);
    button.setFocus();
    Key(Qt::Key_A, 38);
    EXPECT_EQ(Selected(), "1");
    // A button that is disabled gets its focus back later.
    Game.LevantarBtn.Enabled = false;
    EXPECT_TRUE(button.parentWidget()->hasFocus());
    Game.LevantarBtn.Enabled = true;
    EXPECT_TRUE(button.hasFocus());

    auto* const menu = Window().findChild<QMenuBar*>()->actions().constFirst()->menu();
    menu->popup({});
    Key(Qt::Key_S, 39);
    menu->close();
    EXPECT_EQ(Selected(), "1");

    Key(Qt::Key_QuoteDbl, 11, Qt::ShiftModifier);  // an empty place
    EXPECT_FALSE(Game.SlotMesa(2).Ocupado());
    Key(Qt::Key_Exclam, 10, Qt::ShiftModifier);
    EXPECT_FALSE(Game.SlotHumano(0).Ocupado());
}

// The accessibility bus and the session do not wait for the game, so the window makes them.
TEST_F(InputTest, WhatComesWhileAHandlerRunsIsHandedOverAfterwardsInOrder) {
    std::vector<std::string> seen;
    int asked = 0;
    Desktop.OnPause = [&] {
        if (asked++ > 0) return;
        Click(Middle(Game.mesaimg[0]));
        ViewOf<ImageView>(Game.cartap2img[2]).Press();
        ViewOf<ImageView>(Game.mesaimg[1]).Press();
        Window().close();
        Desktop.QtDesktop::Pause(1);
        seen.push_back("pause " + Selected());
    };
    InBox([&](QWidget& box) {  // the farewell of the window that was closed last
        seen.push_back("box " + Selected() + (Window().isVisible() ? ", open" : ", closed"));
        ViewOf<ImageView>(Game.mesaimg[1]).Press();
        box.close();
    });
    Key(Qt::Key_Exclam, 10, Qt::ShiftModifier);
    EXPECT_EQ(seen, (std::vector<std::string>{"pause ", "box 3AS, closed"}));
    EXPECT_EQ(Selected(), "3AS");  // nothing is handed to a window that is gone
}

TEST_F(InputTest, PausesLastAndTheClockBarShowsNearTheBottomEdge) {
    QElapsedTimer timer;
    timer.start();
    Desktop.QtDesktop::Pause(60);
    EXPECT_GE(timer.elapsed(), 59);
    EXPECT_LT(timer.elapsed(), 1000);

    auto& bar = ViewOf<StatusBarView>(Game.StatusBar1);
    QWidget* const client = bar.parentWidget();
    const auto pointAt = [&](int y) {
        QTest::mouseMove(Window().windowHandle(), client->mapTo(&Window(), QPoint(3, y)));
    };
    pointAt(538);
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.geometry().bottom(), client->height() - 1);
    QTest::qWait(1100);  // the window has settled
    Window().resize(Window().width() + 100, Window().height() + 50);
    QCoreApplication::processEvents();
    EXPECT_EQ(bar.geometry().bottom(), client->height() - 1);
    EXPECT_EQ(ViewOf<ImageView>(Game.cartap2img[0]).pos(), QPoint(232, 424));
    pointAt(536);
    EXPECT_FALSE(bar.isVisible());
}

}  // namespace
}  // namespace zarpel
