// What a screen reader finds in the table's window, and is told.
#include <QAccessible>
#include <algorithm>
#include <iterator>

#include "tests/qt/qt_table.h"

namespace zarpel {
namespace {

using Names = std::vector<std::string>;
using AccessibilityTest = QtTable;

// The names of the cards at and below `node`; "*" marks a selected one.
Names CardsOf(QAccessibleInterface* node) {
    const std::string name = node->text(QAccessible::Name).toStdString();
    if (node->role() == QAccessible::CheckBox) return {(node->state().checked ? "* " : "") + name};
    if (node->role() == QAccessible::Graphic) return {name};
    Names names;
    for (int i = 0; i < node->childCount(); ++i) {
        EXPECT_EQ(node->indexOfChild(node->child(i)), i);
        std::ranges::copy(CardsOf(node->child(i)), std::back_inserter(names));
    }
    return names;
}

TEST_F(AccessibilityTest, TheTreeHoldsTheShownCardsAndNoHiddenOne) {
    LayCards(Game, {Card(7, 'o'), 0, Card(1, 'c')}, {0, Card(10, 'e')}, {Card(3, 'b'), 0, Card(4, 'b')});
    // Between its move and the next one the computer's card is gone and its back is still there.
    Game.cartap1img[0].Visible = false;
    const auto accessible = [](Image& image) {
        return QAccessible::queryAccessibleInterface(&ViewOf<ImageView>(image));
    };
    accessible(Game.mesaimg[0])->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    const auto shown = [this] {
        QCoreApplication::processEvents();
        return CardsOf(QAccessible::queryAccessibleInterface(&Window()));
    };
    EXPECT_EQ(shown(), (Names{"* 7 de oro, mesa 1", "1 de copa, mesa 3", "carta tapada, cpu 1",
                              "10 de espada, mano 2", "carta tapada, cpu 3"}));
    // A name is told when it is set, so a card gets it when the computer turns it up.
    EXPECT_EQ(ViewOf<ImageView>(Game.cartap1img[2]).accessibleName().indexOf("4 de basto"), -1);
    Game.fondop1img[2].Visible = false;
    EXPECT_EQ(shown().back(), "4 de basto, cpu 3");
    EXPECT_TRUE(accessible(Game.fondop1img[0])->actionInterface()->actionNames().isEmpty());
}

// A screen reader is told what stands when the event is over, not what was tried meanwhile.
TEST_F(AccessibilityTest, ACaptionIsToldOnceTheEventIsOver) {
    const auto& view = ViewOf<LabelView>(Game.SumandoLbl);
    const QString before = view.text();
    Game.SumandoLbl.Caption = "15";
    EXPECT_EQ(view.text(), before);
    QTRY_COMPARE(view.text(), "15");
}

}  // namespace
}  // namespace zarpel
