#include <QAccessible>

#include "support/game_window.h"

namespace qarn {
namespace {

TEST_F(GameWindow, TellsScreenReadersEverySquare) {
    Open("Q@9,5 BT@9,5 WA@17,2");
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(board);
    ASSERT_EQ(accessible->childCount(), columnCount * rowCount);
    QAccessibleInterface* square = accessible->child(4 * columnCount + 8);
    EXPECT_EQ(square->text(QAccessible::Name), "(9, 5) Mountain: Hero, Boat");
    EXPECT_EQ(accessible->child(0)->text(QAccessible::Name), "(1, 1) Forest");
    EXPECT_EQ(accessible->indexOfChild(square), 4 * columnCount + 8);
    EXPECT_EQ(accessible->childAt(square->rect().center().x(), square->rect().center().y()),
              square);
    EXPECT_EQ(accessible->focusChild(), square);
    EXPECT_EQ(square->parent(), accessible);
    EXPECT_EQ(square->role(), QAccessible::PushButton);
    EXPECT_TRUE(square->state().focused && !accessible->child(0)->state().focused);
    Do("Right");
    EXPECT_EQ(accessible->focusChild()->text(QAccessible::Name), "(10, 5) Mountain");
    EXPECT_TRUE(square->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::setFocusAction()));
    square->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(accessible->focusChild(), square);

    Do("Alt+M");
    square->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QApplication::processEvents();
    EXPECT_EQ(Text("lblStatus"), "Choose the item(s) you would like to move.");
    EXPECT_EQ(Button("chkItems(1)")->accessibleName(), "Hero");
    EXPECT_EQ(Button("chkItems(1)")->toolTip(), "Hero");
    EXPECT_EQ(Button("cmdSeeTerDet(1)")->accessibleName(), "About Mountain");

    QAccessibleInterface* line = QAccessible::queryAccessibleInterface(Find("lblStatus"));
    EXPECT_EQ(line->role(), QAccessible::Notification);
    EXPECT_EQ(line->text(QAccessible::Name).toStdString(), Text("lblStatus"));
}

}  // namespace
}  // namespace qarn
