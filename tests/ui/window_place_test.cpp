#include "ui/window_place.h"

#include "support/game_window.h"

namespace qarn {
namespace {

TEST(PlaceWithin, KeepsAWindowWithItsFrameOnTheScreen) {
    const QRect room(100, 0, 1280, 720);
    const QMargins frame(1, 20, 1, 5);
    struct Row {
        QRect place, within;
    };
    for (const Row& row : {
             Row{{200, 30, 900, 600}, {200, 30, 900, 600}},
             Row{{101, 20, 1278, 695}, {101, 20, 1278, 695}},
             Row{{100, 0, 1016, 718}, {101, 20, 1016, 695}},
             Row{{2500, 900, 900, 600}, {479, 115, 900, 600}},
             Row{{-50, -50, 5000, 5000}, {101, 20, 1278, 695}},
         }) {
        EXPECT_EQ(PlaceWithin(room, row.place, frame), row.within);
    }
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
        window = std::make_unique<FrmGame>(random, desktop);
        Open("Q@9,5 WA@17,2");
        expectOnScreen();
    }
}

TEST_F(GameWindow, RemembersItsPlace) {
    Open("Q@9,5 WA@17,2");
    const QRect place(20, 50, 770, 650);
    window->setGeometry(place);
    window->close();
    window = std::make_unique<FrmGame>(random, desktop);
    Open("Q@9,5 WA@17,2");
    EXPECT_EQ(window->geometry(), place);
}

}  // namespace
}  // namespace qarn
