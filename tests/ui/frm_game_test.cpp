#include "ui/frm_game.h"

#include "core/board_display.h"
#include "support/game_window.h"

namespace qarn {
namespace {

// Its widgets tell it that they lose the focus.
TEST_F(GameWindow, IsStillWholeWhenTheFocusLeavesIt) {
    Open("Q@9,5 WA@17,2");
    QWidget* const shown = window.get();
    bool whole = false;
    QObject::connect(qApp, &QApplication::focusChanged, shown,
                     [&] { whole = dynamic_cast<FrmGame*>(shown) != nullptr; });
    window.reset();
    EXPECT_TRUE(whole);
}

TEST_F(GameWindow, IsPlayedWithTheKeyboardAlone) {
    Open("Q@9,5 WS@9,5 WA@17,2");
    EXPECT_EQ(Focus(), "board");
    Key(Qt::Key_M, Qt::AltModifier);
    EXPECT_EQ(Focus(), "board");
    Key(Qt::Key_Space);
    EXPECT_EQ(Focus(), "chkItems(1)");
    EXPECT_TRUE(window->testAttribute(Qt::WA_KeyboardFocusChange)) << "the focus can be seen";
    Key(Qt::Key_Tab);
    Key(Qt::Key_Space);
    Key(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Text("lblStatus"), "You have 3 mobility units.\nSelect your destination.");
    EXPECT_EQ(Focus(), "cmdMove");
    Key(Qt::Key_Down);
    EXPECT_EQ(Focus(), "board");
    Key(Qt::Key_Return);
    EXPECT_EQ(Text("lblStatus"), "You have 1 mobility units left.");
    EXPECT_EQ(CaptionOfSquare(window->ShownGame(), 9, 6), "Q    ");
    Key(Qt::Key_Left);
    Key(Qt::Key_Return);
    EXPECT_EQ(Text("lblStatus"), "You have 0 mobility units left.\nClick Done Moving");
    Key(Qt::Key_M, Qt::AltModifier);
    EXPECT_EQ(Text("lblStatus"), "It is Blue's turn.");
    Button("cmdMove")->setFocus();
    Key(Qt::Key_Return);
    EXPECT_FALSE(Button("cmdMove")->isEnabled());
    EXPECT_EQ(Focus(), "board");
}

TEST_F(GameWindow, IsPlayedWithTheMouse) {
    Open("Q@9,5 WS@9,5 WA@17,2");
    EXPECT_EQ(window->windowTitle(), "Hollowmere Tactical Game - game.tgf (Red vs. Blue)");
    QTest::mouseClick(Button("cmdMove"), Qt::LeftButton);
    ClickSquare(9, 5);
    EXPECT_TRUE(Button("chkItems(2)")->isVisible());
    EXPECT_EQ(Button("chkItems(2)")->text(), "WS");
    EXPECT_FALSE(Button("chkItems(3)")->isVisible());
    QTest::mouseClick(Button("chkItems(1)"), Qt::LeftButton, {}, {8, 8});
    QTest::mouseClick(Button("cmdDoneSel"), Qt::LeftButton);
    EXPECT_TRUE(Button("chkItems(2)")->isVisible() && !Button("chkItems(2)")->isEnabled());
    ClickSquare(9, 6);
    EXPECT_EQ(Text("lblStatus"), "You have 2 mobility units left.");
    EXPECT_EQ(Focus(), "cmdMove") << "a click on the board leaves the focus where it is";

    QTest::mouseClick(Button("cmdSquareDetails"), Qt::LeftButton);
    ClickSquare(9, 5);
    EXPECT_EQ(Text("lblDetailMore"), "Current Items: Hero");
    EXPECT_EQ(Find("fraQuickDetails")->findChild<QLabel*>()->text(), "Quick Info");
    EXPECT_EQ(Text("lblSummary"), "Location: (9, 5)\nMobility: 3\nAttack: 5\nDefense: 5");
}

TEST_F(GameWindow, ShowsWhatABoxCommentsOnAndTakesEscapeForNo) {
    Open("Q@9,5 WA@9,6 Z@17,2");
    BeginMove(9, 5);
    AnswerBoxes({Qt::Key_Escape});
    ClickSquare(9, 6);
    EXPECT_EQ(boxes, (std::vector<std::string>{
                         "You will have to initiate a direct attack to proceed.  Do you want to "
                         "attack?"}));
    EXPECT_EQ(Text("lblStatus"), "The attack was canceled.\nPick another destination.");

    random.QueueRoll(5);
    AnswerBoxes({Qt::Key_Return, Qt::Key_Return, Qt::Key_Return});
    ClickSquare(9, 6);
    EXPECT_EQ(boxes.at(3), "You rolled a 5 and lost the attack.");
    EXPECT_EQ(statuses.at(3), "Your attack units can not penetrate your enemy's defense.");
    EXPECT_EQ(Text("lblStatus"), "Select the character which died in the attack.");
}

TEST_F(GameWindow, StaysOpenWhenItCanNotSaveAndThePersonWantsIt) {
    Open("Q@9,5 WA@17,2");
    std::filesystem::remove_all(folder.Path());
    AnswerBoxes({Qt::Key_Return});
    window->close();
    EXPECT_EQ(boxes.size(), 1u);
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(window->ShownGame().blnEnded);
    ClickSquare(9, 5);
    EXPECT_EQ(Text("lblStatus"), "It is Red's turn.");
}

TEST_F(GameWindow, ShowsOneAboutWindow) {
    Open("Q@9,5 WA@17,2");
    MenuItem("mnuAbout")->trigger();
    auto* about = window->findChild<QDialog*>();
    ASSERT_NE(about, nullptr);
    EXPECT_FALSE(MenuItem("mnuAbout")->isEnabled());
    about->findChild<QAbstractButton*>()->click();
    EXPECT_TRUE(MenuItem("mnuAbout")->isEnabled());
}

TEST_F(GameWindow, OpensTheDetailsOfOneTerrainAtATime) {
    Open("Q@9,5 WA@17,2");
    QTest::mouseClick(Button("cmdSeeTerDet(1)"), Qt::LeftButton);
    EXPECT_EQ(Text("lblTerrainDescription").substr(0, 21), "Mountain\nMobility: 5\n");
    EXPECT_FALSE(Button("cmdSeeTerDet(0)")->isEnabled());
    Key(Qt::Key_X, Qt::AltModifier);
    EXPECT_FALSE(Find("lblTerrainDescription")->isVisible());
    EXPECT_TRUE(Button("cmdSeeTerDet(0)")->isEnabled());
    EXPECT_FALSE(Button("cmdSeeTerDet(8)")->isVisible());
    EXPECT_FALSE(Find("lblTerrKey(8)")->isVisible());
}

TEST_F(GameWindow, LetsTheMouseThroughItsNotesOverTheBoard) {
    Open("Q@9,5 WS@16,3 WA@17,2");
    QTest::mouseClick(Button("cmdSeeTerDet(3)"), Qt::LeftButton);
    Key(Qt::Key_D, Qt::ControlModifier);
    struct Row {
        const char* note;
        int X, Y;
    };
    for (const Row& row : {Row{"lblTerrainDescription", 16, 3}, Row{"fraQuickDetails", 17, 4},
                           Row{"fraQuickDetails", 16, 5}}) {
        const QRect note(Find(row.note)->mapTo(window.get(), QPoint()), Find(row.note)->size());
        const QPoint place = PlaceOfSquare(row.X, row.Y).center();
        ASSERT_TRUE(note.contains(place)) << row.X << "," << row.Y;
        EXPECT_EQ(Picture().pixelColor(note.topLeft() + QPoint(2, 2)),
                  window->palette().color(QPalette::ToolTipBase));
        EXPECT_EQ(window->childAt(place), board) << "for its tool tip and its frame";
        ClickSquare(row.X, row.Y);
        EXPECT_EQ(Text("lblSummary").substr(0, 18),
                  "Location: (" + std::to_string(row.X) + ", " + std::to_string(row.Y) + ")\n");
    }
}

TEST_F(GameWindow, IsWalkedThroughWithTheTabKey) {
    Open("Q@9,5 WS@9,5 WA@17,2");
    const auto walk = [&] {
        std::string names;
        do {
            names += Focus() + " ";
            Key(Qt::Key_Tab);
        } while (Focus() != "board" && names.size() < 999);
        return names;
    };
    const std::string key =
        "cmdSquareDetails cmdSeeTerDet(0) cmdSeeTerDet(1) cmdSeeTerDet(2) cmdSeeTerDet(3) "
        "cmdSeeTerDet(4) cmdSeeTerDet(5) cmdSeeTerDet(6) cmdSeeTerDet(7) ";
    EXPECT_EQ(walk(), "board cmdAttack cmdMove " + key);
    Key(Qt::Key_M, Qt::AltModifier);
    ClickSquare(9, 5);
    board->setFocus();
    EXPECT_EQ(walk(), "board chkItems(1) chkItems(2) cmdDoneSel " + key);
}

// Escape does nothing but cancel a move or an attack.
TEST_F(GameWindow, ObeysItsAccessKeysAndNotEscape) {
    Open("Q@9,5 WA@17,2");
    struct Row {
        Qt::Key key;
        const char* status;
    };
    for (const Row& row :
         {Row{Qt::Key_A, "You are currently in attack mode\nSelect the attacker(s)'s square."},
          Row{Qt::Key_R, "It is Red's turn."},
          Row{Qt::Key_I, "Click on the Square Information button to resume playing."},
          Row{Qt::Key_I, "It is Red's turn."},
          Row{Qt::Key_M,
              "You are currently in move mode.\nSelect the square you will be starting "
              "your move from."}}) {
        Key(row.key, Qt::AltModifier);
        EXPECT_EQ(Text("lblStatus"), row.status);
        for (QWidget* focused : {static_cast<QWidget*>(board), Find("cmdSquareDetails")}) {
            if (MenuItem("mnuCancelMove")->isEnabled()) continue;
            QTest::keyClick(focused, Qt::Key_Escape);
            EXPECT_EQ(Text("lblStatus"), row.status);
            EXPECT_TRUE(window->isVisible());
        }
    }
}

TEST_F(GameWindow, LetsTheComputerPlayButNotUnderABox) {
    Open("computer1");
    auto* timer = Find<QTimer>("tmrAI");
    EXPECT_EQ(timer->interval(), 1000);
    EXPECT_TRUE(timer->isActive());
    const auto tick = [&] { QMetaObject::invokeMethod(timer, "timeout"); };
    QTimer::singleShot(0, qApp, [&] {
        tick();
        boxes.push_back(Text("lblStatus"));
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    });
    Key(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(boxes, std::vector<std::string>{"It is Red's turn."});

    // Each of its clicks is marked on the screen, until its action is over.
    constexpr QRgb highlight = 0xFF00C8;
    const Marker& marker = window->ShownGame().controls.shpHighlight;
    std::string marked;
    for (; timer->isActive(); tick()) {
        if (!marker.Visible) continue;
        marked = std::to_string((marker.Left - 115) / 720 + 1) + "," +
                 std::to_string((marker.Top - 115) / 960 + 1) + " ";
        EXPECT_EQ(SquaresWith(highlight), marked);
        ExpectBoardPainted();
    }
    EXPECT_NE(marked, "");
    EXPECT_EQ(window->ShownGame().record.bytTurn, 2);
    EXPECT_EQ(SquaresWith(highlight), "");
}

}  // namespace
}  // namespace qarn
