#include "ui/window_place.h"

#include "support/game_window.h"

namespace qarn {
namespace {

TEST(PlaceWithin, KeepsAWindowWithItsFrameOnTheScreen) {
    const QRect room(100, 0, 1280, 720);
    const QMargins frame(1, 20, 1, 5);
    const auto within = [&](const QRect& place) { return PlaceWithin(room, place, frame); };
    EXPECT_EQ(within({200, 30, 900, 600}), QRect(200, 30, 900, 600));
    EXPECT_EQ(within({101, 20, 1278, 695}), QRect(101, 20, 1278, 695));
    EXPECT_EQ(within({100, 0, 1016, 718}), QRect(101, 20, 1016, 695));
    EXPECT_EQ(within({2500, 900, 900, 600}), QRect(479, 115, 900, 600));
    EXPECT_EQ(within({-50, -50, 5000, 5000}), QRect(101, 20, 1278, 695));
}

TEST(PlaceClearOf, IsTheNearestPlaceThatHidesNothing) {
    const QRect room(0, 0, 1000, 700);
    const QRect status(0, 660, 600, 40), square(480, 300, 50, 60), beside(530, 300, 50, 60);
    const QRect middle(300, 250, 400, 150);
    const auto clear = [&](const QRect& place, const std::vector<QRect>& keptClear) {
        const QRect found = PlaceClearOf(room, place, keptClear);
        EXPECT_EQ(found.size(), place.size());
        return found.topLeft();
    };
    EXPECT_EQ(clear(middle, {}), QPoint(300, 250));
    EXPECT_EQ(clear(middle, {status}), QPoint(300, 250));
    EXPECT_EQ(clear(middle, {status, square, beside}), QPoint(300, 150));
    EXPECT_EQ(clear({300, 400, 400, 280}, {status, square}), QPoint(300, 380));
    EXPECT_EQ(clear({0, 200, 1000, 150}, {status, square}), QPoint(0, 150));
    EXPECT_EQ(clear({0, 200, 1000, 700}, {square}), QPoint(0, 200));
}

TEST_F(GameWindow, ItsBoxesHideNeitherTheFightNorTheStatusLine) {
    Open("9,5=0 9,6=0 Q@9,5 TS@9,5 WA@9,6 Z@17,2");
    Do("Alt+M; 9,5; Alt+S");
    random.QueueRoll(5);
    AnswerBoxes({Qt::Key_Return, Qt::Key_Return, Qt::Key_Return});
    Do("9,6");
    ASSERT_EQ(places.size(), 3u);
    const QPoint corner = window->mapToGlobal(QPoint());
    for (const QRect& place : places) {
        for (const QRect& kept :
             {PlaceOfSquare(9, 5), PlaceOfSquare(9, 6),
              QRect(Find("lblStatus")->mapTo(window.get(), QPoint()), Find("lblStatus")->size())}) {
            EXPECT_FALSE(place.intersects(kept.translated(corner)));
        }
    }
}

TEST_F(GameWindow, HasAStatusLineThatGrowsAndIsNeverCovered) {
    Open("Q@9,9 WA@17,2");
    auto* line = Find<QLabel>("lblStatus");
    const auto growth = [&] {
        return double(line->font().pixelSize()) / board->font().pixelSize();
    };
    EXPECT_EQ(growth(), 1);
    Do("Alt+I; 9,9");
    const int covered = (Find("fraQuickDetails")->geometry() & line->geometry()).height();
    EXPECT_GT(covered, 0);
    EXPECT_EQ(line->contentsRect().top(), covered);
    Do("9,8");
    window->resize(window->size() * 2);
    EXPECT_GT(growth(), 1.4);
    EXPECT_EQ(line->contentsRect(), line->rect());
}

TEST_F(GameWindow, OpensWithItsFrameOnTheScreenWhateverWasStored) {
    const QRect room = window->screen()->availableGeometry();
    const auto expectOnScreen = [&] {
        EXPECT_TRUE(room.contains(window->frameGeometry()));
        EXPECT_EQ(Find("lblStatus")->visibleRegion().boundingRect().size(),
                  Find("lblStatus")->size());
    };
    EXPECT_LE(window->width(), room.width());
    EXPECT_LT(window->height(), room.height());
    Open("Q@9,5 WA@17,2");
    expectOnScreen();
    for (const QRect& place : {QRect(1000, 50, 770, 780), QRect(0, 0, 5000, 5000)}) {
        window->setGeometry(place);  // on a larger screen
        window->close();
        OpenAnew("Q@9,5 WA@17,2");
        expectOnScreen();
    }
}

TEST_F(GameWindow, RemembersItsPlace) {
    Open("Q@9,5 WA@17,2");
    const QRect place(20, 50, 770, 650);
    window->setGeometry(place);
    window->close();
    OpenAnew("Q@9,5 WA@17,2");
    EXPECT_EQ(window->geometry(), place);
}

}  // namespace
}  // namespace qarn
