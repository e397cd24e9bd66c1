#include <QAccessible>
#include <QHelpEvent>
#include <QToolTip>

#include "support/game_window.h"
#include "support/sequence.h"
#include "ui/board_widget.h"
#include "ui/hint_caption.h"
#include "ui/square_marks.h"

namespace qarn {
namespace {

std::string MarksOf(const Game& game) {
    const char* names[] = {" from ", " at ", " to "};
    std::string text;
    for (const MarkedSquare& mark : MarkedSquares(game.record)) {
        text += names[static_cast<int>(mark.Role)] + std::to_string(mark.X) + "," +
                std::to_string(mark.Y);
    }
    return text;
}

class Marks : public testing::TestWithParam<Sequence> {};

TEST_P(Marks, AreOnTheBoardAndUnderBoxes) {
    PlayedGame played(GetParam().position);
    std::string boxes;
    played.dialogs.whileShown = [&] { boxes += "under a box:" + MarksOf(played.game) + "\n"; };
    const auto play = [&](const std::string& commands) {
        played.DoAll(commands);
        return std::exchange(boxes, "") + "marked:" + MarksOf(played.game) + "\n";
    };
    EXPECT_EQ(PlayLines(GetParam().transcript, play), GetParam().transcript);
}

INSTANTIATE_TEST_SUITE_P(Moves, Marks, testing::ValuesIn(ReadSequences("ui/marks.txt")), NameOf);

// The Corsair is beaten for certain. The caption stands above him, as far from the edge of the
// board.
TEST_F(GameWindow, DrawsAHintUntilTheGameGoesOn) {
    constexpr QRgb gold = 0xFFA000;
    Open("WS@12,10 TS@12,10 Q@9,10 Z@15,10");
    window->resize(1016, 718);
    const QImage without = Picture();
    const auto askForHint = [&] {
        Do("Ctrl+H");
        ASSERT_TRUE(QTest::qWaitFor([&] { return window->ShownGame().controls.Hint.Visible; }));
    };
    askForHint();
    EXPECT_EQ(Text("lblStatus").substr(0, 6), "Hint: ");
    EXPECT_NE(SquaresWith(gold), "");
    EXPECT_NE(Picture().copy(PlaceOfSquare(15, 9)), without.copy(PlaceOfSquare(15, 9)));
    ExpectBoardPainted();
    Do("Esc");
    EXPECT_EQ(Picture(), without);
    EXPECT_EQ(Text("lblStatus"), "It is Red's turn.");

    askForHint();
    Do("Alt+M; 9,10; Alt+S");
    EXPECT_TRUE(MenuItem("mnuHint")->isEnabled());
    EXPECT_FALSE(window->ShownGame().controls.Hint.Way.empty());
    Do("10,10");
    EXPECT_TRUE(window->ShownGame().controls.Hint.Way.empty());
    EXPECT_FALSE(MenuItem("mnuHint")->isEnabled());
    ExpectBoardPainted();

    Do("Alt+M; Ctrl+H; Esc");
    EXPECT_FALSE(window->ShownGame().blnHintWanted || window->ShownGame().controls.Hint.Visible);
}

TEST(HintCaption, StandsOnAnEmptySquareBesideTheLastOne) {
    const auto placeIn = [](const std::string& position, const Path& way) {
        const PlayedGame played(position);
        const CaptionPlace place = PlaceOfCaption(played.game.controls, way);
        return std::pair(place.square.x(), place.square.y());
    };
    EXPECT_EQ(placeIn("Z@15,10", {{14, 10}, {15, 10}}), std::pair(15, 9));
    EXPECT_EQ(placeIn("Z@15,9", {{15, 8}, {15, 9}}), std::pair(15, 10));
    EXPECT_EQ(placeIn("Z@15,10", {{15, 9}, {15, 10}}), std::pair(16, 10));
    EXPECT_EQ(placeIn("Z@18,10", {{18, 9}, {18, 10}}), std::pair(17, 10));
    EXPECT_EQ(placeIn("Z@18,10 WA@17,10", {{18, 9}, {18, 10}}), std::pair(18, 10));
}

// ---- The pointer and the cursor ----

TEST_F(GameWindow, TellsOfTheSquareUnderThePointerInAToolTip) {
    Open("Q@17,5 WA@17,2");
    QHelpEvent rests(QEvent::ToolTip, board->PlaceOfSquare({17, 5}).center(), QPoint());
    QApplication::sendEvent(board, &rests);
    EXPECT_EQ(QToolTip::text(), "(17, 5) Stream\nHero: mobility 3, attack 5, defense 5");
    board->BringUpToDate();
    EXPECT_NE(QToolTip::text(), "");
    MenuItem("mnuSides")->trigger();  // it would tell more now
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}

TEST_F(GameWindow, TakesOnlyWholeClicksWithTheLeftButton) {
    Open("Q@9,5 WA@17,2");
    Do("Alt+M");
    const std::string before = Text("lblStatus");
    const QPoint here = PlaceOfSquare(9, 5).center(), there = PlaceOfSquare(9, 6).center();
    QTest::mouseClick(window->windowHandle(), Qt::RightButton, {}, here);
    QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, here);
    QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, there);
    QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, there);
    QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, here);
    EXPECT_EQ(Text("lblStatus"), before);
}

// ---- Screen readers ----

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
