// What a screen reader finds in the table's window, and is told.
#include <QAccessible>

#include "tests/qt/qt_table.h"

namespace zarpel {
namespace {

using Tree = std::map<std::string, std::string>;  // name by description
using AccessibilityTest = QtTable;

// The pictures at and below `node`.
Tree CardsOf(QAccessibleInterface* node) {
    if (node->role() == QAccessible::Graphic) {
        return {{node->text(QAccessible::Description).toStdString(),
                 node->text(QAccessible::Name).toStdString()}};
    }
    Tree tree;
    for (int i = 0; i < node->childCount(); ++i) {
        EXPECT_EQ(node->indexOfChild(node->child(i)), i);
        tree.merge(CardsOf(node->child(i)));
    }
    return tree;
}

TEST_F(AccessibilityTest, TheTreeHoldsTheShownCardsAndNoHiddenOne) {
    LayCards(Game, {Card(7, 'o'), 0, Card(1, 'c')}, {0, Card(10, 'e')}, {Card(3, 'b'), 0, Card(4, 'b')});
    // Between its move and the next one the computer's card is gone and its back is still there.
    Game.cartap1img[0].Visible = false;
    const auto accessible = [](Image& image) {
        return QAccessible::queryAccessibleInterface(&ViewOf<ImageView>(image));
    };
    accessible(Game.mesaimg[0])->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(CardsOf(QAccessible::queryAccessibleInterface(&Window())),
              (Tree{{"mesa 1, elegida", "7 de oro"},
                    {"mesa 3", "1 de copa"},
                    {"mano 2", "10 de espada"},
                    {"cpu 1", "carta tapada"},
                    {"cpu 3", "carta tapada"}}));
    // A name is told when it is set, so a card gets it when the computer turns it up.
    EXPECT_NE(ViewOf<ImageView>(Game.cartap1img[2]).accessibleName(), "4 de basto");
    Game.fondop1img[2].Visible = false;
    EXPECT_EQ(CardsOf(QAccessible::queryAccessibleInterface(&Window())).at("cpu 3"), "4 de basto");
    EXPECT_TRUE(accessible(Game.fondop1img[0])->actionInterface()->actionNames().isEmpty());
}

// A screen reader is told what stands when the event is over, not what was tried meanwhile.
TEST_F(AccessibilityTest, AnAnnouncedCaptionIsToldOnceTheEventIsOver) {
    const auto& view = ViewOf<LabelView>(Game.SumandoLbl);
    const QString before = view.text();
    Game.SumandoLbl.Caption = "15";
    EXPECT_EQ(view.text(), before);
    QTRY_COMPARE(view.text(), "15");
}

}  // namespace
}  // namespace zarpel
