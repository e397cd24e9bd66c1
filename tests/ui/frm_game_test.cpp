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
    EXPECT_EQ(FocusAfter("Alt+M"), "board");
    EXPECT_EQ(FocusAfter("Space"), "chkItems(1)");
    EXPECT_TRUE(window->testAttribute(Qt::WA_KeyboardFocusChange)) << "the focus can be seen";
    EXPECT_EQ(StatusAfter("Tab; Space; Alt+S"),
              "You have 3 mobility units.\nSelect your destination.");
    EXPECT_EQ(Focus(), "cmdMove");
    EXPECT_EQ(FocusAfter("Down"), "board");
    EXPECT_EQ(StatusAfter("Return"), "You have 1 mobility units left.");
    EXPECT_EQ(CaptionOfSquare(window->ShownGame(), 9, 6), "Q    ");
    EXPECT_EQ(StatusAfter("Left; Return"), "You have 0 mobility units left.\nClick Done Moving");
    EXPECT_EQ(StatusAfter("Alt+M"), "It is Blue's turn.");
    Button("cmdMove")->setFocus();
    EXPECT_EQ(FocusAfter("Return"), "board");
    EXPECT_FALSE(Button("cmdMove")->isEnabled());
}

TEST_F(GameWindow, IsPlayedWithTheMouse) {
    Open("Q@9,5 WS@9,5 WA@17,2");
    EXPECT_EQ(window->windowTitle(), "Hollowmere Tactical Game - game.tgf (Red vs. Blue)");
    QTest::mouseClick(Button("cmdMove"), Qt::LeftButton);
    Do("9,5");
    EXPECT_TRUE(Button("chkItems(2)")->isVisible());
    EXPECT_EQ(Button("chkItems(2)")->text(), "WS");
    EXPECT_FALSE(Button("chkItems(3)")->isVisible());
    QTest::mouseClick(Button("chkItems(1)"), Qt::LeftButton, {}, {8, 8});
    QTest::mouseClick(Button("cmdDoneSel"), Qt::LeftButton);
    EXPECT_TRUE(Button("chkItems(2)")->isVisible() && !Button("chkItems(2)")->isEnabled());
    EXPECT_EQ(StatusAfter("9,6"), "You have 2 mobility units left.");
    EXPECT_EQ(Focus(), "cmdMove") << "a click on the board leaves the focus where it is";

    QTest::mouseClick(Button("cmdSquareDetails"), Qt::LeftButton);
    Do("9,5");
    EXPECT_EQ(Text("lblDetailMore"), "Current Items: Hero");
    EXPECT_EQ(Find("fraQuickDetails")->findChild<QLabel*>()->text(), "Quick Info");
    EXPECT_EQ(Text("lblSummary"), "Location: (9, 5)\nMobility: 3\nAttack: 5\nDefense: 5");
}

TEST_F(GameWindow, ShowsWhatABoxCommentsOnAndTakesEscapeForNo) {
    Open("Q@9,5 WA@9,6 Z@17,2");
    Do("Alt+M; 9,5; Alt+S");
    AnswerBoxes({Qt::Key_Escape});
    EXPECT_EQ(StatusAfter("9,6"), "The attack was canceled.\nPick another destination.");
    EXPECT_EQ(boxes.at(0),
              "You will have to initiate a direct attack to proceed.  Do you want to attack?");

    random.QueueRoll(5);
    AnswerBoxes({Qt::Key_Return, Qt::Key_Return, Qt::Key_Return});
    EXPECT_EQ(StatusAfter("9,6"), "Select the character which died in the attack.");
    EXPECT_EQ(boxes.at(3), "You rolled a 5 and lost the attack.");
    EXPECT_EQ(statuses.at(3), "Your attack units can not penetrate your enemy's defense.");
}

TEST_F(GameWindow, StaysOpenWhenItCanNotSaveAndThePersonWantsIt) {
    Open("Q@9,5 WA@17,2");
    std::filesystem::remove_all(folder.Path());
    AnswerBoxes({Qt::Key_Return});
    window->close();
    EXPECT_EQ(boxes.size(), 1u);
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(window->ShownGame().blnEnded);
    EXPECT_EQ(StatusAfter("9,5"), "It is Red's turn.");
}

TEST_F(GameWindow, ShowsOneAboutWindow) {
    Open("Q@9,5 WA@17,2");
    Do("mnuAbout");
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
    Do("Alt+X");
    EXPECT_FALSE(Find("lblTerrainDescription")->isVisible());
    EXPECT_TRUE(Button("cmdSeeTerDet(0)")->isEnabled());
    EXPECT_FALSE(Button("cmdSeeTerDet(8)")->isVisible());
    EXPECT_FALSE(Find("lblTerrKey(8)")->isVisible());
}

TEST_F(GameWindow, LetsTheMouseThroughItsNotesOverTheBoard) {
    Open("Q@9,5 WS@16,3 WA@17,2");
    QTest::mouseClick(Button("cmdSeeTerDet(3)"), Qt::LeftButton);
    Do("Ctrl+D");
    for (const auto& [name, X, Y] : {std::tuple{"lblTerrainDescription", 16, 3},
                                     {"fraQuickDetails", 17, 4},
                                     {"fraQuickDetails", 16, 5}}) {
        const QRect note(Find(name)->mapTo(window.get(), QPoint()), Find(name)->size());
        const QPoint place = PlaceOfSquare(X, Y).center();
        ASSERT_TRUE(note.contains(place)) << X << "," << Y;
        EXPECT_EQ(Picture().pixelColor(note.topLeft() + QPoint(2, 2)),
                  window->palette().color(QPalette::ToolTipBase));
        EXPECT_EQ(window->childAt(place), board) << "for its tool tip and its frame";
        ClickSquare(X, Y);
        EXPECT_TRUE(
            Text("lblSummary")
                .starts_with("Location: (" + std::to_string(X) + ", " + std::to_string(Y) + ")\n"));
    }
}

TEST_F(GameWindow, IsWalkedThroughWithTheTabKey) {
    Open("Q@9,5 WS@9,5 WA@17,2");
    const auto walk = [&] {
        std::string names;
        do {
            names += Focus() + " ";
            Do("Tab");
        } while (Focus() != "board" && names.size() < 999);
        return names;
    };
    const std::string key =
        "cmdSquareDetails cmdSeeTerDet(0) cmdSeeTerDet(1) cmdSeeTerDet(2) cmdSeeTerDet(3) "
        "cmdSeeTerDet(4) cmdSeeTerDet(5) cmdSeeTerDet(6) cmdSeeTerDet(7) ";
    EXPECT_EQ(walk(), "board cmdAttack cmdMove " + key);
    Do("Alt+M; 9,5");
    board->setFocus();
    EXPECT_EQ(walk(), "board chkItems(1) chkItems(2) cmdDoneSel " + key);
}

// Escape does nothing but cancel a move or an attack.
TEST_F(GameWindow, ObeysItsAccessKeysAndNotEscape) {
    Open("Q@9,5 WA@17,2");
    for (const auto& [key, status] :
         {std::pair{"Alt+A", "You are currently in attack mode\nSelect the attacker(s)'s square."},
          {"Alt+R", "It is Red's turn."},
          {"Alt+I", "Click on the Square Information button to resume playing."},
          {"Alt+I", "It is Red's turn."},
          {"Alt+M",
           "You are currently in move mode.\nSelect the square you will be starting your move "
           "from."}}) {
        EXPECT_EQ(StatusAfter(key), status);
        for (QWidget* focused : {static_cast<QWidget*>(board), Find("cmdSquareDetails")}) {
            if (MenuItem("mnuCancelMove")->isEnabled()) continue;
            focused->setFocus();
            EXPECT_EQ(StatusAfter("Esc"), status);
            EXPECT_TRUE(window->isVisible());
        }
    }
}

// Ctrl+Z from wherever the focus is, Esc likewise, and what was taken back is on the screen.
TEST_F(GameWindow, TakesBackByKeys) {
    Open("Q@9,5 TS@9,5 WA@17,2");
    EXPECT_FALSE(MenuItem("mnuTakeBack")->isEnabled() || MenuItem("mnuCancelMove")->isEnabled());
    const std::string choosing = StatusAfter("Alt+M; 9,5");
    EXPECT_EQ(StatusAfter("Alt+S; 9,6"), "You have 6 mobility units left.");
    EXPECT_EQ(StatusAfter("Ctrl+Z"), "You have 8 mobility units.\nSelect your destination.");
    EXPECT_EQ(StatusAfter("Ctrl+Z"), choosing);
    EXPECT_TRUE(Button("cmdDoneSel")->isVisible() && Button("chkItems(2)")->isEnabled());
    Button("chkItems(2)")->setFocus();
    for (const char* key : {"Space", "Ctrl+Z"}) {
        Do(key);
        EXPECT_EQ(Button("chkItems(2)")->isChecked(), key == std::string("Ctrl+Z"));
    }
    Do("Alt+S; 10,5");
    ExpectBoardPainted();
    EXPECT_EQ(StatusAfter("Esc"), "It is Red's turn.");
    EXPECT_TRUE(Button("cmdMove")->isEnabled() && Button("cmdAttack")->isEnabled());
    EXPECT_FALSE(MenuItem("mnuCancelMove")->isEnabled() || Button("chkItems(1)")->isVisible());
    ExpectBoardPainted();
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
    Do("Ctrl+N");
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
