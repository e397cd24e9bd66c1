#include "ui/frm_game.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QTest>

#include "support/fake_ports.h"
#include "support/played_game.h"
#include "support/temp_folder.h"

namespace qarn {
namespace {

// A window on a game in which Red, side 1, is to move.
class GameWindow : public testing::Test {
protected:
    void Open(const std::string& position) { OpenFile(SavedGame(position)); }
    void OpenFile(const std::string& contents) {
        WriteFile(path, contents);
        window->Open(path);
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        board = window->findChild<BoardWidget*>();
    }

    // A window that has ended has ended the application; the next test needs it again.
    void TearDown() override {
        window.reset();
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QApplication::exec();
    }

    QAbstractButton* Button(const char* name) { return window->findChild<QAbstractButton*>(name); }
    QAction* MenuItem(const char* name) { return window->findChild<QAction*>(name); }
    std::string Text(const char* label) {
        return window->findChild<QLabel*>(label)->text().toStdString();
    }
    std::string Focus() {
        const QWidget* widget = QApplication::focusWidget();
        return widget == board ? "board" : widget->objectName().toStdString();
    }
    void Key(int key, Qt::KeyboardModifiers modifiers = {}) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    }
    void ClickSquare(int X, int Y) {
        QTest::mouseClick(board, Qt::LeftButton, {}, board->PlaceOfSquare({X, Y}).center());
    }

    // Answers the boxes and dialogs that come up next, each with a key.
    void AnswerBoxes(std::deque<Qt::Key> keys) {
        if (keys.empty()) return;
        QTimer::singleShot(0, qApp, [this, keys]() mutable {
            QWidget* dialog = QApplication::activeModalWidget();
            if (dialog == nullptr) return AnswerBoxes(keys);
            if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
                boxes.push_back(box->text().toStdString());
                statuses.push_back(Text("lblStatus"));
            }
            const Qt::Key key = keys.front();
            keys.pop_front();
            AnswerBoxes(keys);
            QTest::keyClick(dialog, key);
        });
    }

    TempFolder folder;
    std::string path = folder / "game.tgf";
    FakeRandomNumbers random;
    FakeSettings settings;
    FakeFileTypes fileTypes;
    DesktopPorts desktop{settings, fileTypes, {folder / "program", folder / "data"}};
    std::unique_ptr<FrmGame> window = std::make_unique<FrmGame>(random, desktop);
    BoardWidget* board = nullptr;
    std::vector<std::string> boxes;     // that were answered
    std::vector<std::string> statuses;  // under each of them
};

TEST_F(GameWindow, IsPlayedWithTheKeyboardAlone) {
    Open("Q@9,5 WS@9,5 WA@17,2");
    EXPECT_EQ(Focus(), "board");
    Key(Qt::Key_M, Qt::AltModifier);
    EXPECT_EQ(Focus(), "board");
    Key(Qt::Key_Space);
    EXPECT_EQ(Focus(), "chkItems(1)");
    Key(Qt::Key_Tab);
    Key(Qt::Key_Space);
    Key(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Text("lblStatus"), "You have 3 mobility units.\nSelect your destination.");
    EXPECT_EQ(Focus(), "cmdMove");
    Key(Qt::Key_Down);
    EXPECT_EQ(Focus(), "board");
    Key(Qt::Key_Return);
    EXPECT_EQ(Text("lblStatus"), "You have 1 mobility units left.");
    EXPECT_EQ(window->ShownGame().controls.lbl[9][6].Caption, "Q    ");
    Key(Qt::Key_M, Qt::AltModifier);
    EXPECT_EQ(Text("lblStatus"), "It is Blue's turn.");
}

TEST_F(GameWindow, IsPlayedWithTheMouse) {
    Open("Q@9,5 WS@9,5 WA@17,2");
    QTest::mouseClick(Button("cmdMove"), Qt::LeftButton);
    ClickSquare(9, 5);
    EXPECT_TRUE(Button("chkItems(2)")->isVisible());
    EXPECT_FALSE(Button("chkItems(3)")->isVisible());
    QTest::mouseClick(Button("chkItems(1)"), Qt::LeftButton, {}, {8, 8});
    QTest::mouseClick(Button("cmdDoneSel"), Qt::LeftButton);
    ClickSquare(9, 6);
    EXPECT_EQ(Text("lblStatus"), "You have 2 mobility units left.");
    EXPECT_EQ(Focus(), "cmdMove") << "a click on the board leaves the focus where it is";

    QTest::mouseClick(Button("cmdSquareDetails"), Qt::LeftButton);
    ClickSquare(9, 5);
    EXPECT_EQ(Text("lblDetailMore"), "Current Items: Hero");
    EXPECT_EQ(Text("lblSummary"), "Location: (9, 5)\nMobility: 3\nAttack: 5\nDefense: 5");
}

TEST_F(GameWindow, ShowsWhatABoxCommentsOnAndTakesEscapeForNo) {
    Open("Q@9,5 WA@9,6 Z@17,2");
    Key(Qt::Key_M, Qt::AltModifier);
    ClickSquare(9, 5);
    Key(Qt::Key_S, Qt::AltModifier);
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

TEST_F(GameWindow, DisablesTheFileMenuAndItsKeysDuringAMove) {
    Open("Q@9,5 WA@17,2");
    const QAction* file = window->menuBar()->actions().first();
    const std::string saved = ReadFile(path);
    Key(Qt::Key_M, Qt::AltModifier);
    EXPECT_FALSE(file->isEnabled());
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(ReadFile(path), saved);

    ClickSquare(9, 5);
    Key(Qt::Key_S, Qt::AltModifier);
    ClickSquare(9, 6);
    Key(Qt::Key_M, Qt::AltModifier);
    EXPECT_TRUE(file->isEnabled());
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_NE(ReadFile(path), saved);
    EXPECT_FALSE(MenuItem("mnuConvertFile")->isVisible());
    EXPECT_TRUE(MenuItem("mnuSummary")->isChecked());
}

TEST_F(GameWindow, OpensTheDetailsOfOneTerrainAtATime) {
    Open("Q@9,5 WA@17,2");
    QTest::mouseClick(Button("cmdSeeTerDet(1)"), Qt::LeftButton);
    EXPECT_EQ(Text("lblTerrainDescription").substr(0, 21), "Mountain\nMobility: 5\n");
    EXPECT_FALSE(Button("cmdSeeTerDet(0)")->isEnabled());
    Key(Qt::Key_X, Qt::AltModifier);
    EXPECT_FALSE(window->findChild<QLabel*>("lblTerrainDescription")->isVisible());
    EXPECT_TRUE(Button("cmdSeeTerDet(0)")->isEnabled());
    EXPECT_FALSE(Button("cmdSeeTerDet(8)")->isVisible());
}

TEST_F(GameWindow, TellsScreenReadersEverySquare) {
    Open("Q@9,5 BT@9,5 WA@17,2");
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(board);
    ASSERT_EQ(accessible->childCount(), columnCount * rowCount);
    QAccessibleInterface* square = accessible->child(4 * columnCount + 8);
    EXPECT_EQ(square->text(QAccessible::Name), "(9, 5) Mountain: Hero, Boat");
    EXPECT_EQ(accessible->child(0)->text(QAccessible::Name), "(1, 1) Forest");
    EXPECT_EQ(accessible->indexOfChild(square), 4 * columnCount + 8);
    EXPECT_EQ(accessible->childAt(square->rect().center().x(), square->rect().center().y()),
              square);
    EXPECT_EQ(accessible->focusChild(), square);
    Key(Qt::Key_Right);
    EXPECT_EQ(accessible->focusChild()->text(QAccessible::Name), "(10, 5) Mountain");

    Key(Qt::Key_M, Qt::AltModifier);
    square->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QApplication::processEvents();
    EXPECT_EQ(Text("lblStatus"), "Choose the item(s) you would like to move.");
    EXPECT_EQ(Button("chkItems(1)")->accessibleName(), "Hero");
}

TEST_F(GameWindow, KeepsItsDesignAtEverySize) {
    Open("Q@9,5 WA@17,2");
    const int menu = window->menuBar()->height();
    for (const QSize size : {QSize(1016, 696), QSize(2032, 1392), QSize(1500, 696)}) {
        window->resize(size + QSize(0, menu));
        QApplication::processEvents();
        const double scale = size.height() / 696.0;
        const int left = qRound((size.width() - 1016 * scale) / 2);
        EXPECT_EQ(board->geometry(), QRect(left + qRound(8 * scale), qRound(8 * scale),
                                           qRound(865 * scale), qRound(641 * scale)));
        EXPECT_EQ(Button("cmdMove")->geometry(),
                  QRect(left + qRound(888 * scale), qRound(624 * scale), qRound(113 * scale),
                        qRound(25 * scale)));
        for (int X = 1; X <= columnCount; ++X) {
            for (int Y = 1; Y <= rowCount; ++Y) {
                const QRect place = board->PlaceOfSquare({X, Y});
                EXPECT_EQ(board->SquareAt(place.center()), QPoint(X, Y));
                EXPECT_NEAR(place.left(), 48 * (X - 1) * scale, 1);
                EXPECT_NEAR(place.top(), 64 * (Y - 1) * scale, 1);
            }
        }
    }
}

TEST_F(GameWindow, SavesWhenItCloses) {
    Open("Q@9,5 WA@17,2");
    std::filesystem::remove(path);
    window->close();
    EXPECT_TRUE(std::filesystem::exists(path));
    EXPECT_TRUE(window->ShownGame().blnEnded);
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

TEST_F(GameWindow, RemembersItsPlace) {
    Open("Q@9,5 WA@17,2");
    window->setGeometry(40, 50, 900, 650);
    window->close();
    FrmGame next(random, desktop);
    EXPECT_EQ(next.geometry(), QRect(40, 50, 900, 650));
}

TEST_F(GameWindow, IsLeftForTheStartWindowWhenConfirmed) {
    Open("Q@9,5 WA@17,2");
    AnswerBoxes({Qt::Key_Escape});
    Key(Qt::Key_N, Qt::ControlModifier);
    EXPECT_TRUE(window->ShownGame().blnOpen);

    AnswerBoxes({Qt::Key_Return});
    Key(Qt::Key_O, Qt::ControlModifier);
    EXPECT_FALSE(window->ShownGame().blnOpen);
    EXPECT_FALSE(window->ShownGame().blnEnded);
    EXPECT_TRUE(window->ShownGame().blnLeftByOpen);
    EXPECT_TRUE(window->isHidden());
}

TEST_F(GameWindow, ShowsOneAboutWindow) {
    Open("Q@9,5 WA@17,2");
    MenuItem("mnuAbout")->trigger();
    auto* about = window->findChild<QDialog*>();
    ASSERT_NE(about, nullptr);
    EXPECT_FALSE(MenuItem("mnuAbout")->isEnabled());
    about->close();
    EXPECT_TRUE(MenuItem("mnuAbout")->isEnabled());
}

TEST_F(GameWindow, LetsTheComputerPlayButNotUnderABox) {
    OpenFile("HM\r\nRed" + std::string(51, ' ') + "True\r\nBlue" + std::string(50, ' ') +
             "False\r\n1\r\n");
    QTimer::singleShot(1500, qApp, [this] {
        boxes.push_back(Text("lblStatus"));
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    });
    Key(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(boxes, std::vector<std::string>{"It is Red's turn."});
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->ShownGame().record.Action.blnAIBusy; }, 3000));
}

}  // namespace
}  // namespace qarn
