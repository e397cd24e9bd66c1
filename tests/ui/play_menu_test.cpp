#include "support/game_window.h"

namespace qarn {
namespace {

// Ctrl+Z from wherever the focus is, Esc likewise, and what was taken back is on the screen.
TEST_F(GameWindow, TakesBackByKeys) {
    Open("Q@9,5 TS@9,5 WA@17,2");
    EXPECT_FALSE(MenuItem("mnuTakeBack")->isEnabled() || MenuItem("mnuCancelMove")->isEnabled());
    Key(Qt::Key_M, Qt::AltModifier);
    ClickSquare(9, 5);
    const std::string choosing = Text("lblStatus");
    Key(Qt::Key_S, Qt::AltModifier);
    ClickSquare(9, 6);
    EXPECT_EQ(Text("lblStatus"), "You have 6 mobility units left.");
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Text("lblStatus"), "You have 8 mobility units.\nSelect your destination.");
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Text("lblStatus"), choosing);
    EXPECT_TRUE(Button("cmdDoneSel")->isVisible() && Button("chkItems(2)")->isEnabled());
    Button("chkItems(2)")->setFocus();
    Key(Qt::Key_Space);
    EXPECT_FALSE(Find<QCheckBox>("chkItems(2)")->isChecked());
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(Find<QCheckBox>("chkItems(2)")->isChecked());
    Key(Qt::Key_S, Qt::AltModifier);
    ClickSquare(10, 5);
    ExpectBoardPainted();
    Key(Qt::Key_Escape);
    EXPECT_EQ(Text("lblStatus"), "It is Red's turn.");
    EXPECT_TRUE(Button("cmdMove")->isEnabled() && Button("cmdAttack")->isEnabled());
    EXPECT_FALSE(MenuItem("mnuCancelMove")->isEnabled() || Button("chkItems(1)")->isVisible());
    ExpectBoardPainted();
}

}  // namespace
}  // namespace qarn
