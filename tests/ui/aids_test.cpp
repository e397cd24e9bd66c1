#include <QAccessible>
#include <QPainter>

#include "support/game_window.h"
#include "ui/code_layout.h"
#include "window/view_choices.h"

namespace qarn {
namespace {

// The board of a game between moves as it is without any aid, by the window's design: its lines,
// the colours of the terrain, and the codes. Nothing is hovered and the focus is elsewhere.
QImage PlainBoard(const BoardWidget& board, const QImage& like) {
    const Game& game = board.ShownGame();
    QImage picture(like.size(), like.format());
    picture.fill(QColor(0x40, 0x40, 0x40));
    QPainter painter(&picture);
    for (int X = 1; X <= columnCount; ++X) {
        for (int Y = 1; Y <= rowCount; ++Y) {
            const SquareLabel& label =
                game.controls.lbl[static_cast<std::size_t>(X)][static_cast<std::size_t>(Y)];
            const QRectF inner = QRectF(board.PlaceOfSquare({X, Y})).adjusted(1, 1, -1, -1);
            painter.fillRect(inner, QColor::fromRgb(label.BackColor.rgb));
            painter.setPen(QColor::fromRgb(label.ForeColor.rgb));
            QStringList codes;
            for (const std::uint8_t i : label.Shown) {
                codes << QString::fromUtf8(game.record.People[i].Code).trimmed();
            }
            const CodeLayout layout = LayOutCodes(codes, inner, board.font());
            painter.setFont(layout.font);
            for (qsizetype i = 0; i < codes.size(); ++i) {
                painter.drawText(layout.cells[static_cast<std::size_t>(i)],
                                 Qt::AlignCenter | Qt::TextDontClip, codes[i]);
            }
        }
    }
    return picture;
}

// Crowded squares, all terrains.
const char* const manyGroups =
    "Q@9,5 WS@9,5 BT@9,5 BT@9,5 BT@9,5 BT@9,5 BT@9,5 WA@17,2 ZA1@17,2 Z@1,1 LS@18,10";

TEST_F(GameWindow, IsThePlainBoardWithoutAids) {
    Open(manyGroups);
    Button("cmdMove")->setFocus();
    const auto isPlain = [&] {
        const QImage shown = board->grab().toImage();
        return shown == PlainBoard(*board, shown);
    };
    EXPECT_TRUE(isPlain());
    window->resize(1600, 1100);
    EXPECT_TRUE(isPlain());
    for (const ViewChoice& choice : AllViewChoices()) {
        QAction* item = MenuItem(std::string(choice.Item).c_str());
        item->trigger();
        ExpectBoardPainted();
        item->trigger();
        EXPECT_TRUE(isPlain()) << choice.Item;
    }
}

TEST_F(GameWindow, PutsPlatesBehindTheCodesOfTheSides) {
    constexpr QRgb bright = 0xFFFFFF, dark = 0x281010, brown = 0xD8C098;
    Open("9,5=0 Q@9,5 WS@9,4 BT@9,4 WA@17,2 ZA1@17,2");
    window->resize(1600, 1100);
    EXPECT_EQ(SquaresWith(dark) + SquaresWith(brown), "");
    MenuItem("mnuSides")->trigger();
    EXPECT_EQ(SquaresWith(dark), "17,2 ");
    EXPECT_EQ(SquaresWith(brown), "9,4 ");
    EXPECT_NE(SquaresWith(bright).find("9,4 "), std::string::npos);
}

TEST_F(GameWindow, ShowsWhereGroupsCanGo) {
    constexpr QRgb light = 0xFFFFFF;
    Open("9,5=6 9,4=6 9,6=6 8,5=6 10,5=6 Q@9,5 Z@17,2");
    window->resize(1600, 1100);
    const auto lightForests = [&] {
        std::string squares;
        for (const QPoint square : {QPoint(9, 4), QPoint(9, 6), QPoint(8, 5), QPoint(10, 5)}) {
            const QRgb edge =
                Picture().pixel(PlaceOfSquare(square.x(), square.y()).topLeft() + QPoint(4, 30));
            squares += (edge & RGB_MASK) == light ? 'x' : '-';
        }
        return squares;
    };
    EXPECT_EQ(lightForests(), "----");
    MenuItem("mnuReach")->trigger();
    board->setFocus();
    board->MoveCursor({9, 5});
    EXPECT_EQ(lightForests(), "xxxx");
    board->MoveCursor({1, 1});
    EXPECT_EQ(lightForests(), "----");
    ExpectBoardPainted();
    QTest::keyPress(window.get(), Qt::Key_Shift);
    EXPECT_NE(SquaresWith(0x9C0010), "");
    QTest::keyRelease(window.get(), Qt::Key_Shift);
    EXPECT_EQ(SquaresWith(0x9C0010), "");
    Key(Qt::Key_M, Qt::AltModifier);
    ClickSquare(9, 5);
    EXPECT_EQ(lightForests(), "----");
    Key(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(lightForests(), "xxxx");
    ClickSquare(9, 4);
    EXPECT_EQ(lightForests(), "----") << "One mobility unit is left.";
    ExpectBoardPainted();
}

TEST_F(GameWindow, TellsTheOddsOfTheEnemyPointedAt) {
    Open("9,5=0 10,5=0 Q@9,5 WS@9,5 ZA1@10,5 Z@17,2");
    Key(Qt::Key_A, Qt::AltModifier);
    ClickSquare(9, 5);
    EXPECT_EQ(Find("oddsNote"), nullptr);
    MenuItem("mnuOdds")->trigger();
    QTest::mouseMove(window->windowHandle(), PlaceOfSquare(10, 5).center());
    EXPECT_EQ(Text("oddsNote"),
              "13 against 4: wins 60\u00A0%, ties 20\u00A0%, loses 20\u00A0%; after a win one in "
              "five costs a character.");
    EXPECT_TRUE(Find("oddsNote")->isVisible());
    EXPECT_EQ(QAccessible::queryAccessibleInterface(Find("oddsNote"))->role(),
              QAccessible::Notification);
    QTest::mouseMove(window->windowHandle(), PlaceOfSquare(17, 2).center());
    EXPECT_FALSE(Find("oddsNote")->isVisible());
}

}  // namespace
}  // namespace qarn
