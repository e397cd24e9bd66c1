#include <QAccessible>

#include "support/game_window.h"

namespace qarn {
namespace {

std::vector<std::string> updates;  // that screen readers have got, but for those of the focus

void Note(QAccessibleEvent* event) {
    const bool told = event->type() == QAccessible::NameChanged ||
                      event->type() == QAccessible::ObjectShow ||
                      event->type() == QAccessible::DescriptionChanged;
    if (!told || event->object() == nullptr) return;
    const std::string kind = event->type() == QAccessible::NameChanged  ? "name of "
                             : event->type() == QAccessible::ObjectShow ? "shown "
                                                                        : "description of ";
    updates.push_back(kind + event->object()->objectName().toStdString());
}

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
    Key(Qt::Key_Right);
    EXPECT_EQ(accessible->focusChild()->text(QAccessible::Name), "(10, 5) Mountain");

    Key(Qt::Key_M, Qt::AltModifier);
    square->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QApplication::processEvents();
    EXPECT_EQ(Text("lblStatus"), "Choose the item(s) you would like to move.");
    EXPECT_EQ(Button("chkItems(1)")->accessibleName(), "Hero");
    EXPECT_EQ(Button("chkItems(1)")->toolTip(), "Hero");
}

TEST_F(GameWindow, TellsScreenReadersWhatChangesAndNothingElse) {
    Open("Q@9,5 WS@9,5 WA@17,2");
    const auto previous = QAccessible::installUpdateHandler(Note);
    const auto after = [&](auto happens) {
        updates.clear();
        happens();
        return updates;
    };
    using Updates = std::vector<std::string>;
    const Updates status{"name of lblStatus", "shown lblStatus"};
    EXPECT_EQ(after([&] { ClickSquare(3, 3); }), Updates());
    after([&] { Key(Qt::Key_M, Qt::AltModifier); });
    EXPECT_EQ(after([&] { ClickSquare(3, 3); }), status) << "There is no one here.";
    EXPECT_EQ(after([&] { ClickSquare(4, 4); }), Updates()) << "The same again.";
    after([&] { ClickSquare(9, 5); });
    EXPECT_EQ(after([&] { Key(Qt::Key_Space); }), Updates());
    Key(Qt::Key_Tab);
    EXPECT_EQ(after([&] { Key(Qt::Key_Space); }), Updates());
    EXPECT_EQ(after([&] { Key(Qt::Key_S, Qt::AltModifier); }), status)
        << "You did not select anyone.";
    QAccessible::installUpdateHandler(previous);

    QAccessibleInterface* line = QAccessible::queryAccessibleInterface(Find("lblStatus"));
    EXPECT_EQ(line->role(), QAccessible::Notification);
    EXPECT_EQ(line->text(QAccessible::Name), "You did not select anyone.");
}

}  // namespace
}  // namespace qarn
