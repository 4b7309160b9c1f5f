#include <QAccessible>

#include "tests/qt/qt_table.h"

namespace zarpel {
namespace {

using Tree = std::map<std::string, std::string>;  // name by description
using AccessibilityTest = QtTable;

// The pictures below `node`, and the names of everything there.
Tree CardsOf(QAccessibleInterface* node, std::string& names) {
    const std::string name = node->text(QAccessible::Name).toStdString();
    names += name + "\n";
    if (node->role() == QAccessible::Graphic) {
        return {{node->text(QAccessible::Description).toStdString(), name}};
    }
    Tree tree;
    for (int i = 0; i < node->childCount(); ++i) {
        EXPECT_EQ(node->indexOfChild(node->child(i)), i);
        tree.merge(CardsOf(node->child(i), names));
    }
    return tree;
}

TEST_F(AccessibilityTest, TheTreeHoldsTheShownCardsAndNoHiddenOne) {
    LayCards(Game, {Card(7, 'o'), 0, Card(1, 'c')}, {0, Card(10, 'e')}, {Card(3, 'b'), 0, Card(4, 'b')});
    Game.namelbl.Caption = "Ana";
    std::string names;
    const auto cards = [&] { return CardsOf(QAccessible::queryAccessibleInterface(&Window()), names); };
    Tree expected = {{"mesa 1", "7 de oro"},
                     {"mesa 3", "1 de copa"},
                     {"mano 2", "10 de espada"},
                     {"cpu 1", "carta tapada"},
                     {"cpu 3", "carta tapada"}};
    EXPECT_EQ(cards(), expected);
    for (const char* const text : {"Tomar Cartas", "Nuevo", "Archivo", "Ayuda", "Ana", "Score CPU"}) {
        EXPECT_NE(names.find(text), std::string::npos) << text;
    }
    auto* const card = QAccessible::queryAccessibleInterface(&ViewOf<ImageView>(Game.mesaimg[0]));
    card->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    InBox([](QWidget& box) { box.close(); });
    Click(Middle(Game.cartap2img[1]));  // 17: refused by a box
    expected.erase("mesa 1");
    expected["mesa 1, elegida"] = "7 de oro";
    EXPECT_EQ(cards(), expected);
    // Between its move and the next one the computer's card is gone and its back is still there.
    Game.cartap1img[0].Visible = false;
    EXPECT_EQ(cards(), expected);
    auto* const back = QAccessible::queryAccessibleInterface(&ViewOf<ImageView>(Game.fondop1img[0]));
    EXPECT_TRUE(back->actionInterface()->actionNames().isEmpty());
}

// A screen reader is told what stands when the event is over, not what was tried meanwhile.
TEST_F(AccessibilityTest, AnAnnouncedCaptionIsToldOnceTheEventIsOver) {
    const auto& view = ViewOf<LabelView>(Game.SumandoLbl);
    const QString before = view.text();
    for (const char* const caption : {"7", "15"}) {
        Game.SumandoLbl.Caption = caption;
        EXPECT_EQ(view.text(), before);
    }
    QTRY_COMPARE(view.text(), "15");
}

}  // namespace
}  // namespace zarpel
