#include "ui/board_widget.h"

#include <QHelpEvent>
#include <QToolTip>

#include "support/game_window.h"

namespace qarn {
namespace {

// The navy frame of the square under the pointer, and the black and white one of the keyboard.
TEST_F(GameWindow, ShowsThePointerAndTheCursorOnTheBoard) {
    Open("9,5=0 10,5=0 11,5=0 Q@17,5 WA@17,2");
    const auto edge = [&](int X) {
        return Picture().pixel(PlaceOfSquare(X, 5).topLeft() + QPoint(1, 20)) & RGB_MASK;
    };
    EXPECT_EQ(edge(9), 0x000000u);
    EXPECT_EQ(edge(10), 0xFFFFFFu);
    Do("Right");
    EXPECT_EQ(edge(9), 0xFFFFFFu);
    EXPECT_EQ(edge(10), 0x000000u);
    Button("cmdMove")->setFocus();
    EXPECT_EQ(edge(10), 0xFFFFFFu);
    QTest::mouseMove(window->windowHandle(), PlaceOfSquare(11, 5).center());
    EXPECT_EQ(edge(11), 0x000080u);
    QTest::mouseMove(window->windowHandle(), PlaceOfSquare(9, 5).center());
    EXPECT_EQ(edge(11), 0xFFFFFFu);
    EXPECT_EQ(edge(9), 0x000080u);
    QTest::mouseMove(window->windowHandle(), QPoint(2, 2));
    EXPECT_EQ(edge(9), 0xFFFFFFu);

    QHelpEvent rests(QEvent::ToolTip, board->PlaceOfSquare({17, 5}).center(), QPoint());
    QApplication::sendEvent(board, &rests);
    EXPECT_EQ(QToolTip::text(), "(17, 5) Stream\nHero: mobility 3, attack 5, defense 5");
    board->BringUpToDate();
    EXPECT_NE(QToolTip::text(), "");
    MenuItem("mnuSides")->trigger();  // it would tell more now
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}

TEST_F(GameWindow, WalksWithTheArrowKeysUpToTheEdges) {
    Open("Q@9,5 WA@17,2");
    Button("cmdMove")->setFocus();
    std::string walk;
    for (const char* key : {"Up", "Left", "Down", "Down", "Right"}) {
        Do(key);
        walk +=
            std::to_string(board->Cursor().x()) + "," + std::to_string(board->Cursor().y()) + " ";
        ExpectBoardPainted();
    }
    EXPECT_EQ(walk, "9,4 8,4 8,5 8,6 9,6 ");
    board->MoveCursor({1, 10});
    Do("Left; Down");
    EXPECT_EQ(board->Cursor(), QPoint(1, 10));
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

}  // namespace
}  // namespace qarn
