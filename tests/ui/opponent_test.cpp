#include <QMenu>

#include "ai/locked_position.h"
#include "support/game_window.h"
#include "ui/opponent_strip.h"

namespace qarn {
namespace {

/// A window on a game in which opponents play, who are chosen in the menu.
class OpponentWindow : public GameWindow {
protected:
    const Game& ShownGame() { return window->ShownGame(); }
    QTimer* Timer() { return Find<QTimer>("tmrAI"); }
    bool Acts() { return ShownGame().record.Action.blnAIBusy; }

    // The time of the timer is up, and so is that of the choice.
    void Tick() {
        Timer()->stop();
        QMetaObject::invokeMethod(Timer(), "timeout");
        ASSERT_TRUE(QTest::qWaitFor([&] {
            auto* told = Find<QTimer>("told");
            return Timer()->isActive() == ShownGame().controls.tmrAI.Enabled ||
                   (told != nullptr && told->isActive());
        }));
    }
    // Until `done`, or a while has gone by.
    template <typename Done>
    bool TickUntil(Done done) {
        for (int tick = 0; tick < 99 && !done(); ++tick) Tick();
        return done();
    }
    void PassByKeyboard() {
        if (ShownGame().blnEnded || !Button("cmdMove")->isEnabled()) return;
        Do("Alt+M");
        for (const PeopleRecord& one : ShownGame().record.People) {
            if (one.Side == 2 && OnBoard(one)) board->MoveCursor({one.LocationX, one.LocationY});
        }
        board->setFocus();
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_S, Qt::Key_M}) {
            Key(key, key == Qt::Key_Space ? Qt::NoModifier : Qt::AltModifier);
        }
    }
    // At once. A person on side 2 passes by keyboard as soon as the buttons let them, and sees the
    // victory alone.
    void PlayWholeGame(const std::string& player2) {
        settings.values["QARN/Speed/04505230"] = "AtOnce";
        for (int roll = 0; roll < 999; ++roll) random.QueueRoll(1 + roll * 3 % 5);
        Open("computer1 " + player2 + " WS@10,10 TS@10,10 LS@9,9 Z@13,10 ZA1@14,10");
        EXPECT_TRUE(MenuItem("mnuSpeedAtOnce")->isChecked());
        for (const char* item : {"mnuScout1", "mnuScout2"}) {
            if (MenuItem(item)->isVisible()) MenuItem(item)->trigger();
        }
        EXPECT_EQ(Timer()->interval(), 0);
        AnswerBoxes({Qt::Key_Return});
        const auto ends = [&] {
            if (ShownGame().record.bytTurn == 2 && player2.empty()) PassByKeyboard();
            return ShownGame().blnEnded;
        };
        EXPECT_TRUE(QTest::qWaitFor(ends, 20000));
        EXPECT_EQ(boxes.size(), 1u);
        EXPECT_FALSE(std::filesystem::exists(path));
    }
    // What is told beside the status line, box by box.
    std::vector<std::string> ToldBoxes() {
        std::vector<std::string> told;
        auto* strip = Find<QLabel>("opponentStrip");
        while (strip != nullptr && strip->isVisible() && told.size() < 9) {
            EXPECT_FALSE(Timer()->isActive() && told.size() < 2) << "the next step waits";
            told.push_back(strip->text().toStdString());
            Find<QTimer>("told")->stop();
            QMetaObject::invokeMethod(Find<QTimer>("told"), "timeout");
        }
        return told;
    }
};

// Classic, which finds no good move, leaves play to the person until another takes it up.
TEST_F(OpponentWindow, TakesUpPlayWhereClassicFoundNoMove) {
    Open("computer1 Q@10,10 Z@1,1");
    AnswerBoxes({Qt::Key_Return});
    Tick();
    EXPECT_FALSE(Timer()->isActive());
    EXPECT_FALSE(Find("noMoveStrip")->geometry().intersects(Find("lblStatus")->geometry()));
    const Journal& journal = window->ShownJournal().Told();
    EXPECT_EQ(journal.entries.back(), JournalEntry(Said{"Classic found no move."}));
    Do("Alt+M; 10,10; mnuWarlord1");
    for (int tick = 0; tick < 3; ++tick) Tick();
    EXPECT_FALSE(Acts()) << "the person's move comes first";

    OpenAnew("computer1 Q@10,10 Z@1,1");
    ASSERT_TRUE(MenuItem("mnuWarlord1")->isChecked()) << "it is kept";
    EXPECT_TRUE(TickUntil([&] { return ShownGame().record.bytTurn == 2; }));
    EXPECT_EQ(boxes.size(), 1u);
    EXPECT_FALSE(Timer()->isActive());
    EXPECT_TRUE(Button("cmdMove")->isEnabled());
}

TEST_F(OpponentWindow, IsWaitedForByBoardAndButtons) {
    Open("computer1 HF@10,10 Q@10,10 J@13,10 Z@1,1");
    EXPECT_TRUE(Button("cmdMove")->isEnabled()) << "Classic locks nothing";
    Do("mnuScout1");
    EXPECT_FALSE(Button("cmdMove")->isEnabled() || Button("cmdAttack")->isEnabled());
    const QAction* file = MenuItem("mnuSave");
    ASSERT_TRUE(TickUntil([&] { return ShownGame().record.blnChoosing; }));
    EXPECT_TRUE(Button("chkItems(1)")->isVisible() && !Button("chkItems(1)")->isEnabled());
    EXPECT_FALSE(Button("cmdDoneSel")->isEnabled() || ShownGame().controls.File.Enabled);
    const std::uint8_t at = ShownGame().record.bytCurrentX;
    Do("1,1");
    EXPECT_EQ(ShownGame().record.bytCurrentX, at);

    Do("Alt+I");  // looking goes on
    Do("1,1");
    EXPECT_EQ(Text("lblDetailMore"), "Current Items: Corsair");
    EXPECT_TRUE(file->isEnabled());
    std::filesystem::remove(path);
    Do("Ctrl+S");
    EXPECT_TRUE(std::filesystem::exists(path));
    EXPECT_TRUE(TickUntil([&] { return ShownGame().record.bytTurn == 2; }));
    EXPECT_EQ(Text("lblDetailMore"), "Current Items: Corsair");
    Do("Alt+I");
    EXPECT_EQ(Text("lblStatus"), "It is Blue's turn.");
    EXPECT_TRUE(Button("cmdMove")->isEnabled() && Button("cmdAttack")->isEnabled());
}

TEST_F(OpponentWindow, TellsItsBoxesBesideTheStatusLine) {
    Open("computer1 WS@10,10 TS@10,10 Z@11,10 ZA1@1,1 Q@1,9");
    const QRect whole = Find("lblStatus")->geometry();
    Do("mnuCaptain1");
    for (const int roll : {2, 1}) random.QueueRoll(roll);
    ASSERT_TRUE(TickUntil([&] { return random.queued.empty(); }));
    const QRect strip = Find("opponentStrip")->geometry();
    EXPECT_FALSE(strip.intersects(Find("lblStatus")->geometry()));
    EXPECT_FALSE(strip.intersects(board->geometry()));
    EXPECT_EQ(ToldBoxes().back(), "Captain rolled a 1 and will not lose a character.");
    EXPECT_EQ(Find("lblStatus")->geometry(), whole);
    EXPECT_TRUE(boxes.empty());

    Do("mnuSpeedAtOnce");
    for (const int roll : {2, 1}) random.QueueRoll(roll);
    Open("computer1 WS@10,10 TS@10,10 Z@11,10 ZA1@1,1 Q@1,9");
    ASSERT_TRUE(TickUntil([&] { return random.queued.empty(); }));
    EXPECT_EQ(Text("opponentStrip"),
              "Captain rolled a 2 and won the attack! Captain rolled a 1 and will not lose a "
              "character.");
}

// A position in which it thinks for a while.
TEST_F(OpponentWindow, IsDroppedOrHastenedWhileItThinks) {
    Open("SB computer1");
    const auto hastened = [&] {
        for (const char* item : {"mnuScout1", "mnuClassic1", "mnuWarlord1"}) {
            MenuItem(item)->trigger();
            EXPECT_TRUE(Timer()->isActive());
        }
        QTest::keyClick(board, Qt::Key_Escape);
        return !Timer()->isActive();
    };
    EXPECT_TRUE(hastened() || hastened() || hastened());  // unless it has decided already
    EXPECT_TRUE(QTest::qWaitFor([&] { return Acts(); })) << "before its time is up";
    EXPECT_TRUE(TickUntil([&] { return ShownGame().record.bytTurn == 2; }));

    OpenFile(ReadFile(path));
    EXPECT_FALSE(Acts());
    window->close();
    EXPECT_TRUE(ShownGame().blnEnded);
}

// What it has chosen waits until its time is up, or for Esc.
TEST_F(OpponentWindow, IsSaidToThinkOnlyWhileItDoes) {
    Open("AM computer1");
    OpponentStrip* strip = nullptr;
    const auto isGone = [&] { return strip->isHidden(); };
    const auto begins = [&] {
        Do("mnuClassic1; mnuWarlord1");
        strip = window->findChild<OpponentStrip*>();
        Find<QTimer>("patience")->setInterval(0);
        ASSERT_TRUE(QTest::qWaitFor([&] { return strip->isVisible(); }));
        EXPECT_EQ(strip->text(), "Warlord is thinking. Esc: decide now.");
    };
    constexpr int longerThanItThinks = 60000;
    begins();
    Timer()->setInterval(longerThanItThinks);
    EXPECT_TRUE(QTest::qWaitFor(isGone, longerThanItThinks / 3));
    EXPECT_FALSE(Acts());
    QTest::keyClick(board, Qt::Key_Escape);
    EXPECT_TRUE(Acts());

    OpenAnew("AM computer1");
    begins();
    QTest::keyClick(board, Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor(isGone));
    EXPECT_TRUE(Acts());
}

TEST_F(OpponentWindow, IsNotSaidToThinkBehindItsOwnBox) {
    Open("AM computer1");
    Do("mnuSpeedAtOnce; mnuWarlord1");
    const_cast<Game&>(ShownGame()).record.Standstill.turns = turnsOfALock + 1;
    const auto* strip = Find("opponentStrip");
    Find<QTimer>("patience")->setInterval(0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return strip->isVisible(); }));
    bool isSaid = false;
    QTimer look;
    look.callOnTimeout([&] {
        if (QApplication::activeModalWidget() == nullptr) return;
        isSaid = strip->isVisible();
        look.stop();
        AnswerBoxes({Qt::Key_Escape});
    });
    look.start(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !boxes.empty(); }));
    EXPECT_EQ(titles, std::vector<std::string>{"Draw"});
    EXPECT_FALSE(isSaid);
}

// As after a longer thought, its text stands beside the status line when the hint is found.
TEST_F(OpponentWindow, FindsAHintThatTakesItsTime) {
    Open("Q@14,7 TS@9,5 LS@10,2 S@3,7 WS@14,7 SK@8,5 V@8,2 WA@15,4 WA1@15,4 Z@17,2 ZA1@5,1");
    AnswerBoxes({Qt::Key_Return});
    Do("Ctrl+H");
    auto* strip = window->findChild<OpponentStrip*>();
    ASSERT_TRUE(strip != nullptr && ShownGame().blnHintWanted);
    strip->Tell("Finding a hint.", 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ShownGame().controls.Hint.Visible; }));
    EXPECT_TRUE(boxes.empty());
}

TEST_F(OpponentWindow, PlaysAWholeGameAgainstAnother) { PlayWholeGame("computer2"); }

TEST_F(OpponentWindow, PlaysAWholeGameAgainstAPerson) { PlayWholeGame(""); }

}  // namespace
}  // namespace qarn
