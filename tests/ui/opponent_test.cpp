#include <QMenu>

#include "support/game_window.h"

namespace qarn {
namespace {

/// A window on a game in which the computer plays side 1, Red.
class OpponentWindow : public GameWindow {
protected:
    const Game& ShownGame() { return window->ShownGame(); }
    QTimer* Timer() { return Find<QTimer>("tmrAI"); }

    // The time of the timer is up, and so is that of the choice.
    void Tick() {
        QMetaObject::invokeMethod(Timer(), "timeout");
        ASSERT_TRUE(QTest::qWaitFor([&] { return Timer()->isActive() == IsOn(); }));
    }
    bool IsOn() { return ShownGame().controls.tmrAI.Enabled; }
};

// Classic, which finds no good move, leaves play to the person until another takes it up.
TEST_F(OpponentWindow, TakesUpPlayWhereClassicFoundNoMove) {
    Open("computer1 Q@10,10 Z@1,1");
    AnswerBoxes({Qt::Key_Return});
    Tick();
    EXPECT_EQ(boxes, std::vector<std::string>{"No good move!"});
    EXPECT_FALSE(Timer()->isActive());
    MenuItem("mnuWarlord1")->trigger();
    EXPECT_TRUE(Timer()->isActive());
    while (ShownGame().record.bytTurn == 1) Tick();
    EXPECT_EQ(boxes.size(), 1u);
    EXPECT_FALSE(Timer()->isActive());
}

}  // namespace
}  // namespace qarn
