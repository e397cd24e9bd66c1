#include <QAccessible>

#include "support/game_window.h"

namespace qarn {
namespace {

// What screen readers have been told: names and what has come up, and the squares of the board,
// counted from 0, that have changed or got the focus.
std::vector<std::string> updates;

void Note(QAccessibleEvent* event) {
    static const std::map<QAccessible::Event, std::string> kinds{
        {QAccessible::NameChanged, "name of "},
        {QAccessible::DescriptionChanged, "description of "},
        {QAccessible::ObjectShow, "shown "},
        {QAccessible::Focus, "focus on "}};
    const auto kind = kinds.find(event->type());
    if (kind == kinds.end() || event->object() == nullptr) return;
    if (event->child() >= 0) {
        updates.push_back(kind->second + "square " + std::to_string(event->child()));
    } else if (event->type() != QAccessible::Focus) {
        updates.push_back(kind->second + event->object()->objectName().toStdString());
    }
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
    EXPECT_EQ(after([&] { ClickSquare(3, 3); }), Updates{"focus on square 38"});
    after([&] { Key(Qt::Key_M, Qt::AltModifier); });
    EXPECT_EQ(after([&] { ClickSquare(3, 3); }), status) << "There is no one here.";
    EXPECT_EQ(after([&] { ClickSquare(3, 3); }), Updates()) << "The same again.";
    after([&] { ClickSquare(9, 5); });
    EXPECT_EQ(after([&] { Key(Qt::Key_Space); }), Updates());
    Do("Tab");
    EXPECT_EQ(after([&] { Key(Qt::Key_Space); }), Updates());
    EXPECT_EQ(after([&] { Key(Qt::Key_S, Qt::AltModifier); }), status)
        << "You did not select anyone.";
    after([&] { Key(Qt::Key_Space); });
    after([&] { Key(Qt::Key_S, Qt::AltModifier); });
    EXPECT_EQ(after([&] { ClickSquare(9, 6); }), (Updates{"name of square 80", "name of square 98",
                                                          "name of lblStatus", "shown lblStatus"}));
    after([&] { Key(Qt::Key_Right); });
    EXPECT_EQ(after([&] { Key(Qt::Key_Right); }), Updates{"focus on square 100"});
    QAccessible::installUpdateHandler(previous);

    QAccessibleInterface* line = QAccessible::queryAccessibleInterface(Find("lblStatus"));
    EXPECT_EQ(line->role(), QAccessible::Notification);
    EXPECT_EQ(line->text(QAccessible::Name).toStdString(), Text("lblStatus"));
}

}  // namespace
}  // namespace qarn
