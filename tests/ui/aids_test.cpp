#include <QAccessible>
#include <QPainter>

#include "support/colors.h"
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
        if (choice.Chosen == &ViewChoices::fullScreen) continue;
        SCOPED_TRACE(choice.Item);
        QAction* item = MenuItem(std::string(choice.Item).c_str());
        item->trigger();
        ExpectBoardPainted();
        item->trigger();
        EXPECT_TRUE(isPlain()) << choice.Item;
    }
}

TEST_F(GameWindow, FramesTheOddsTellsThemToScreenReadersAndHidesThem) {
    Open("9,5=0 10,5=0 Q@9,5 WS@9,5 ZA1@10,5 Z@17,2");
    Do("Alt+A; 9,5; mnuOdds");
    QTest::mouseMove(window->windowHandle(), PlaceOfSquare(10, 5).center());
    EXPECT_NE(Find("oddsNote")->contentsRect(), Find("oddsNote")->rect());
    EXPECT_EQ(QAccessible::queryAccessibleInterface(Find("oddsNote"))->role(),
              QAccessible::Notification);
    QTest::mouseMove(window->windowHandle(), PlaceOfSquare(17, 2).center());
    EXPECT_FALSE(Find("oddsNote")->isVisible());
}

// In a halo: each pixel of the letters has only letters and halo around it.
TEST_F(GameWindow, PutsAHaloAroundLargeCodesThatAreHardToRead) {
    Open("9,5=6 Q@9,5 10,5=1 WS@10,5 11,5=5 HF@11,5 12,5=0 LS@12,5 Z@17,2");
    window->resize(1600, 1100);
    board->clearFocus();
    Do("mnuLargeCodes");
    const QImage picture = Picture();
    for (const int X : {9, 10, 11, 12}) {
        const SquareLabel& label = window->ShownGame().controls.lbl[static_cast<std::size_t>(X)][5];
        const QRgb ink = 0xFF000000 | label.ForeColor.rgb,
                   ground = 0xFF000000 | label.BackColor.rgb;
        const QRect place = PlaceOfSquare(X, 5).adjusted(4, 4, -4, -4);
        int letters = 0, bare = 0;
        double least = 21;
        for (int x = place.left(); x <= place.right(); ++x) {
            for (int y = place.top(); y <= place.bottom(); ++y) {
                if (picture.pixel(x, y) != ink) continue;
                ++letters;
                for (const QPoint beside :
                     {QPoint(2, 0), QPoint(-2, 0), QPoint(0, 2), QPoint(0, -2)}) {
                    const QRgb there = picture.pixel(QPoint(x, y) + beside);
                    if (there == ground) ++bare;
                    if (there == 0xFFFFFFFF || there == 0xFF000000) {
                        least = std::min(least, Contrast(there, ink));
                    }
                }
            }
        }
        EXPECT_GT(letters, 40) << X;
        EXPECT_EQ(bare == 0, Contrast(ink, ground) < 4.5) << X;
        EXPECT_GE(least, 4.5) << X;
    }
}

TEST_F(GameWindow, WritesCoordinatesAtTheEdgesOnly) {
    Open("9,5=0 Q@9,5 Z@17,2");
    board->clearFocus();
    const QImage before = Picture();
    Do("mnuCoordinates");
    const QImage after = Picture();
    for (int X = 1; X <= columnCount; ++X) {
        for (int Y = 1; Y <= rowCount; ++Y) {
            const bool edge = X == 1 || X == columnCount || Y == 1 || Y == rowCount;
            const QRect place = PlaceOfSquare(X, Y);
            EXPECT_EQ(before.copy(place) != after.copy(place), edge) << X << "," << Y;
        }
    }
}

TEST_F(GameWindow, OffersAidsInTheFirstGameOnly) {
    settings.values.clear();
    Open("Q@9,5 WS@9,5 Z@17,2");
    ASSERT_TRUE(Find("offerStrip")->isVisible());
    EXPECT_LT(Find("lblStatus")->geometry().right(), Find("offerStrip")->geometry().left());
    EXPECT_EQ(Focus(), "board");
    Do("Alt+M");
    EXPECT_FALSE(Button("takeOffer")->isEnabled());
    Do("9,5; Alt+S; Alt+M");
    Button("takeOffer")->click();
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Find("offerStrip"), nullptr);
    ViewChoices offered;
    offered.sides = offered.reach = offered.odds = true;
    EXPECT_EQ(window->ShownGame().view, offered);
    const int width = board->width();
    window->resize(window->size() * 4 / 5);  // the strip has left its place
    EXPECT_LT(board->width(), width);
    EXPECT_TRUE(window->ShownGame().record.house.ownGroupsOnly);

    OpenAnew("Q@9,5 Z@17,2");
    EXPECT_EQ(Find("offerStrip"), nullptr);
    EXPECT_TRUE(window->ShownGame().view == offered);
}

}  // namespace
}  // namespace qarn
