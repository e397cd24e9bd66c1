#include <QHelpEvent>
#include <QToolTip>

#include "support/game_window.h"
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

// The marks after each of the commands, (in parentheses) under each box.
std::string MarksDuring(const std::string& position, const std::string& commands) {
    PlayedGame played(position);
    std::string text;
    played.dialogs.whileShown = [&] { text += " (" + MarksOf(played.game) + ")"; };
    for (const std::string& command : Parts(commands)) {
        EXPECT_TRUE(played.Do(command)) << command;
        text += MarksOf(played.game) + ";";
    }
    return text;
}

TEST(SquareMarks, TellWhereTheMoveBeganAndWhereTheGroupStands) {
    EXPECT_EQ(MarksDuring("Q@9,5 WS@9,5 WA@17,2",
                          "press cmdMove; click 3 3; click 9 5; press cmdDoneSel; click 9 9; "
                          "click 9 6; press cmdSquareDetails; click 1 1; press cmdSquareDetails; "
                          "press cmdMove"),
              ";; at 9,5; at 9,5; at 9,5; at 9,6 from 9,5; at 9,6 from 9,5; at 9,6 from 9,5; "
              "at 9,6 from 9,5;;");
}

TEST(SquareMarks, TellTheAttackersAndTheirTarget) {
    const char* position = "Q@9,5 WS@1,1 WA@9,6 Z@17,2";
    EXPECT_EQ(
        MarksDuring(position,
                    "roll 5; answer yes; press cmdAttack; click 9 5; click 12 5; click 9 6; "
                    "tick 1; press cmdDoneSel; press cmdAttack"),
        ";;; at 9,5; at 9,5; ( at 9,5 to 9,6) ( at 9,5 to 9,6) at 9,5 to 9,6; at 9,5 to 9,6;;;");
    // Into a fight: the group stands where it was, or on the square that it has won.
    const std::string fight = "answer yes yes; press cmdMove; click 9 5; press cmdDoneSel; ";
    EXPECT_EQ(
        MarksDuring(position, fight + "roll 5; click 9 6; tick 1; press cmdDoneSel"),
        ";; at 9,5; at 9,5; at 9,5; ( at 9,5) ( at 9,5 to 9,6) ( at 9,5 to 9,6) at 9,5 to 9,6; "
        "at 9,5 to 9,6;;");
    EXPECT_EQ(MarksDuring("9,6=0 Q@9,5 WS@9,5 ZA1@9,6 Z@17,2", fight + "roll 1 3; click 9 6"),
              ";; at 9,5; at 9,5; at 9,5; ( at 9,5) ( at 9,5 to 9,6) ( at 9,5 to 9,6) "
              "( at 9,5 to 9,6) at 9,6 from 9,5;");
}

TEST_F(GameWindow, MarksTheStartByAnotherShape) {
    Open("9,5=0 8,5=0 8,6=0 9,6=0 Q@9,5 WS@9,5 WA@9,6 Z@17,2");
    window->resize(1016, 718);
    Do("Alt+M; 9,5; Alt+S; 8,5; 8,6");
    const QImage picture = Picture();
    const auto isGoldInCorner = [&](int X, int Y) {
        const QPoint corner = PlaceOfSquare(X, Y).topLeft() + QPoint(5, 5);
        return (picture.pixel(corner) & RGB_MASK) == 0xFFA000;
    };
    EXPECT_TRUE(isGoldInCorner(8, 6));
    EXPECT_FALSE(isGoldInCorner(9, 5));
}

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
