#include <QDockWidget>
#include <QFileDialog>
#include <QLineEdit>
#include <QTextEdit>
#include <QTreeWidget>

#include "support/game_window.h"
#include "ui/window_script.h"

namespace qarn {
namespace {

class Docks : public GameWindow {
protected:
    QTreeWidget* Roster() { return Find<QTreeWidget>("lstRoster"); }
    // The texts of a column, from the top.
    std::string Column(int column) {
        std::string text;
        for (int row = 0; row < Roster()->topLevelItemCount(); ++row) {
            text += Roster()->topLevelItem(row)->text(column).toStdString() + " ";
        }
        return text;
    }
    void ClickRow(const char* code) {
        QTreeWidgetItem* item = Roster()->findItems(code, Qt::MatchExactly).constFirst();
        Roster()->scrollToItem(item);
        QTest::mouseClick(Roster()->viewport(), Qt::LeftButton, {},
                          Roster()->visualItemRect(item).topLeft() + QPoint(5, 5));
    }
};

TEST_F(Docks, JournalIsSavedBesideTheGame) {
    Open("Q@9,5 WA@17,2");
    Do("mnuJournal");
    WindowScript script;
    script.On<QFileDialog>([](QFileDialog& dialog) {
        auto* field = dialog.findChild<QLineEdit*>();
        EXPECT_EQ(field->text(), "game.txt");
        QTest::keyClick(field, Qt::Key_Return);
    });
    Do("cmdSaveJournal");
    EXPECT_TRUE(script.Done());
    EXPECT_TRUE(ReadFile(folder / "game.txt").ends_with("\n\nTurn 1: Red\n"));
    Find<QDockWidget>("dckJournal")->close();
    EXPECT_FALSE(MenuItem("mnuJournal")->isChecked());
    EXPECT_TRUE(Find("dckJournal")->isHidden());
}

TEST_F(Docks, JournalTellsTheEventThatEndsTheGame) {
    Open("WS@9,10 TS@9,10 ZA3@10,10");
    Do("mnuJournal");
    for (const int roll : {1, 1}) random.QueueRoll(roll);
    AnswerBoxes({Qt::Key_Return, Qt::Key_Return, Qt::Key_Return, Qt::Key_Return});
    Do("cmdAttack; 9,10; 10,10");
    const std::string journal = Find<QTextEdit>("txtJournal")->toPlainText().toStdString();
    EXPECT_TRUE(Has(journal, "\nRed won the game.\n"));
}

TEST_F(Docks, RosterIsSortedAndLeadsToTheBoard) {
    Open("BT@9,9 LS@12,10 SK@2,10 ZA1@10,10");
    Do("mnuRoster");
    EXPECT_EQ(Column(0).find("Q TS LS S WS J SK V HF WA WA1"), 0u);
    Roster()->sortByColumn(4, Qt::AscendingOrder);
    EXPECT_EQ(Column(4).find("(2, 10) (9, 9) (10, 10) (12, 10) Lost Lost "), 0u);
    EXPECT_EQ(Column(6).find("Red Nobody Blue Red "), 0u);
    Roster()->sortByColumn(2, Qt::DescendingOrder);
    EXPECT_EQ(Column(2).find("8 8 7 7 6 5 "), 0u);
    const int place = Roster()->columnViewportPosition(4) + Roster()->columnWidth(4);
    EXPECT_LE(place, Roster()->viewport()->width());  // seen without scrolling

    ClickRow("LS");
    EXPECT_EQ(board->Cursor(), QPoint(12, 10));
    EXPECT_EQ(Focus(), "board");
    ClickRow("WS");  // lost
    EXPECT_EQ(board->Cursor(), QPoint(12, 10));
    Roster()->setFocus();
    Roster()->setCurrentItem(Roster()->findItems("SK", Qt::MatchExactly).constFirst());
    Do("Return");
    EXPECT_EQ(board->Cursor(), QPoint(2, 10));
    EXPECT_EQ(Focus(), "board");
}

TEST_F(Docks, RosterCanBeReadInADarkPaletteThatLacksAColour) {
    Open("Q@9,5 WA@17,2");
    MenuItem("mnuRoster")->trigger();
    EXPECT_TRUE(Roster()->alternatingRowColors());
    QPalette dark = Roster()->palette();
    dark.setColor(QPalette::Text, Qt::white);
    Roster()->setPalette(dark);
    MenuItem("mnuSides")->trigger();
    EXPECT_FALSE(Roster()->alternatingRowColors());
}

TEST_F(Docks, StandWhereTheyStood) {
    Open("Q@9,5 WA@17,2");
    window->resize(900, 660);
    const QSize boardSize = board->size();
    Do("mnuRoster");
    window->addDockWidget(Qt::LeftDockWidgetArea, Find<QDockWidget>("dckRoster"));
    for (int time = 0; time < 2; ++time) {
        const QSize windowSize = window->size();
        window->close();
        window = std::make_unique<FrmGame>(random, desktop);
        OpenFile(ReadFile(path));
        EXPECT_EQ(window->dockWidgetArea(Find<QDockWidget>("dckRoster")), Qt::LeftDockWidgetArea);
        EXPECT_FALSE(Find("dckRoster")->isHidden());
        EXPECT_EQ(window->size(), windowSize);
        EXPECT_EQ(board->size(), boardSize);
    }
}

TEST_F(Docks, TakeNoRoomFromTheBoardThatTheScreenHas) {
    Open("Q@9,5 WA@17,2");
    window->resize(900, 660);
    const QSize boardSize = board->size();
    const QSize windowSize = window->size();
    Do("mnuJournal; mnuRoster");
    EXPECT_EQ(board->size(), boardSize);
    EXPECT_GT(window->width(), windowSize.width() + 100);
    Do("mnuJournal; mnuRoster");
    EXPECT_EQ(window->size(), windowSize);
    EXPECT_EQ(board->size(), boardSize);
}

TEST_F(Docks, TakeWhatTheBoardLeavesEmptyOfALargeWindow) {
    Open("Q@9,5 WA@17,2");
    Do("mnuRoster");
    const QWidget* area = window->centralWidget();
    const int boardsWidth = area->width();
    const int readable = Find("dckRoster")->sizeHint().width();
    window->setScreen(QGuiApplication::screens().constLast());
    Do("mnuFullScreen");
    QCoreApplication::processEvents();
    const QSize shape = area->sizeHint();
    EXPECT_EQ(area->width(), area->height() * shape.width() / shape.height());
    EXPECT_GT(Find("dckRoster")->width(), readable + 20);
    Do("mnuFullScreen");
    QCoreApplication::processEvents();
    EXPECT_EQ(area->width(), boardsWidth);
}

}  // namespace
}  // namespace qarn
