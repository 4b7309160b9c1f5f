#include <QAccessible>

#include "tests/qt/qt_table.h"

namespace zarpel {
namespace {

using Tree = std::map<std::string, std::string>;  // name by description

void Collect(QAccessibleInterface* node, Tree& tree, std::string& names) {
    const std::string name = node->text(QAccessible::Name).toStdString();
    names += name + "\n";
    if (node->role() == QAccessible::Graphic) {
        tree[node->text(QAccessible::Description).toStdString()] = name;
    }
    for (int i = 0; i < node->childCount(); ++i) {
        EXPECT_EQ(node->indexOfChild(node->child(i)), i);
        Collect(node->child(i), tree, names);
    }
}

class AccessibilityTest : public QtTable {
  protected:
    AccessibilityTest() {
        LayCards(Game, {Card(7, 'o'), 0, Card(1, 'c')}, {0, Card(10, 'e')}, {Card(3, 'b'), 0, Card(4, 'b')});
        Game.namelbl.Caption = "Ana";
    }
    Tree Cards() {
        Tree tree;
        names_.clear();
        Collect(QAccessible::queryAccessibleInterface(&Window()), tree, names_);
        return tree;
    }
    std::string names_;
};

TEST_F(AccessibilityTest, TheTreeHoldsTheShownCardsAndNoHiddenOne) {
    Tree expected = {{"mesa 1", "7 de oro"},
                     {"mesa 3", "1 de copa"},
                     {"mano 2", "10 de espada"},
                     {"cpu 1", "carta tapada"},
                     {"cpu 3", "carta tapada"}};
    EXPECT_EQ(Cards(), expected);
    for (const char* const text : {"Tomar Cartas", "Nuevo", "Archivo", "Ayuda", "Ana", "Score CPU"}) {
        EXPECT_NE(names_.find(text), std::string::npos) << text;
    }
    Click(Middle(Game.mesaimg[0]));
    InBox([](QWidget& box) { box.close(); });
    Click(Middle(Game.cartap2img[1]));  // 17: refused by a box
    expected.erase("mesa 1");
    expected["mesa 1, elegida"] = "7 de oro";
    EXPECT_EQ(Cards(), expected);
    // Between its move and the next one the computer's card is gone and its back is still there.
    Game.cartap1img[0].Visible = false;
    EXPECT_EQ(Cards(), expected);
}

TEST_F(AccessibilityTest, ACardCanBePressedByAnAssistiveTool) {
    auto* const card = QAccessible::queryAccessibleInterface(&ViewOf<ImageView>(Game.mesaimg[2]));
    card->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(Game.SlotMesa(2).Elegido());
    auto* const back = QAccessible::queryAccessibleInterface(&ViewOf<ImageView>(Game.fondop1img[0]));
    EXPECT_TRUE(back->actionInterface()->actionNames().isEmpty());
}

}  // namespace
}  // namespace zarpel
