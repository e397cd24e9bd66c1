#include "ui/program.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <csignal>
#include <filesystem>
#include <functional>

#include "support/saved_game.h"
#include "support/temp_folder.h"
#include "support/text.h"
#include "ui/frm_end.h"
#include "ui/frm_game.h"
#include "ui/frm_splash.h"
#include "ui/window_script.h"

namespace qarn {
namespace {

const std::string newGame = SavedGame("turn0");

void Type(QWidget& window, const std::string& text, Qt::Key last = Qt::Key_Return) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClicks(window.focusWidget(), QString::fromStdString(text));
    QTest::keyClick(window.focusWidget(), last);
}

// Leaves a game of this title with a menu command, which is asked about.
void LeaveGame(WindowScript& script, const std::string& title, const char* command) {
    script.On<FrmGame>([=](FrmGame& window) {
        EXPECT_EQ(window.windowTitle().toStdString(), title);
        window.findChild<QAction*>(command)->trigger();
    });
    script.On<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "Leave Game");
        Type(box, "");
    });
}

class WholeProgram : public testing::Test {
protected:
    WholeProgram() { QApplication::setQuitOnLastWindowClosed(false); }

    TempFolder folder;
    WindowScript script;
};

TEST_F(WholeProgram, GoesFromGamesToTheStartWindowAndBack) {
    WriteFile(folder / "first.tgf", newGame);
    script.On<FrmGame>(
        [](FrmGame& window) { window.findChild<QAction*>("mnuDefaultFilepath")->trigger(); });
    script.On<QInputDialog>([&](QInputDialog& prompt) { Type(prompt, folder.Path()); });

    LeaveGame(script, "Hollowmere Tactical Game - first.tgf (Red vs. Blue)", "New");
    script.On<FrmSplash>([&](FrmSplash& window) {
        EXPECT_EQ(window.findChild<QLineEdit*>("txtLocation")->text().toStdString(),
                  folder.Path().string());
        EXPECT_EQ(window.focusWidget()->objectName(), "txtNewFilePath");
        Type(window, "second");
        Type(window, "", Qt::Key_Down);
        Type(window, "");
        Type(window, "Ann");
        Type(window, "Ben");
    });

    LeaveGame(script, "The Saltbrook Tactical Game - second.tgf (Ann vs. Ben)", "Open");
    script.On<FrmSplash>([&](FrmSplash& window) {
        auto* files = qobject_cast<QListWidget*>(window.focusWidget());
        ASSERT_NE(files, nullptr);
        EXPECT_EQ(files->objectName(), "fileLoad");
        EXPECT_EQ(files->count(), 2);
        Type(window, "", Qt::Key_End);  // the one saved first
        Type(window, "");
    });

    LeaveGame(script, "Hollowmere Tactical Game - first.tgf (Red vs. Blue)", "New");
    script.On<FrmSplash>([](FrmSplash& window) { Type(window, "", Qt::Key_Escape); });

    EXPECT_EQ(RunProgram(folder / "first.tgf"), 0);
    EXPECT_TRUE(script.Done());
    EXPECT_GT(ReadFile(folder / "second.tgf").size(), newGame.size()) << "it was saved";
    EXPECT_EQ(QGuiApplication::desktopFileName(), "qarn");
}

void SaveJournal(FrmEnd& window) {
    WindowScript script;
    script.On<QFileDialog>([](QFileDialog& dialog) {
        QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
    });
    window.findChild<QAbstractButton*>("cmdSaveJournal")->click();
    EXPECT_TRUE(script.Done());
}

// Whoever is to move resigns, and chooses what comes next.
void Resign(WindowScript& script, const std::string& caption, const char* next) {
    script.On<FrmGame>([=](FrmGame& window) {
        EXPECT_EQ(window.windowTitle().toStdString(), caption);
        window.findChild<QAction*>("mnuResign")->trigger();
    });
    script.On<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "Resign");
        QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
    });
    script.On<QMessageBox>([](QMessageBox& box) { Type(box, ""); });
    script.On<FrmEnd>([=](FrmEnd& window) {
        const auto text = [&](const char* name) {
            return window.findChild<QLabel*>(name)->text().toStdString();
        };
        const std::string outcome = text("lblOutcome");
        EXPECT_TRUE(outcome == "Red has resigned. Blue has won." ||
                    outcome == "Blue has resigned. Red has won.");
        EXPECT_EQ(text("lblTurns"), "1 turn");
        EXPECT_EQ(text("lblLost1"), "nobody");
        EXPECT_EQ(window.focusWidget()->objectName(), "cmdAgain");
        if (std::string(next) == "cmdExit") SaveJournal(window);
        QTest::mouseClick(window.findChild<QWidget*>(next), Qt::LeftButton);
    });
}

TEST_F(WholeProgram, AsksAtTheEndWhatComesNext) {
    WriteFile(folder / "game.tgf", newGame);
    const std::string game = "Hollowmere Tactical Game - game.tgf ";
    Resign(script, game + "(Red vs. Blue)", "cmdAgain");
    Resign(script, game + "(Red vs. Blue)", "cmdExchange");
    Resign(script, game + "(Blue vs. Red)", "cmdStart");
    script.On<FrmSplash>([](FrmSplash& window) { Type(window, "", Qt::Key_Escape); });
    EXPECT_EQ(RunProgram(folder / "game.tgf"), 0);
    EXPECT_FALSE(std::filesystem::exists(folder / "game.tgf"));

    WriteFile(folder / "game.tgf", newGame);
    Resign(script, game + "(Red vs. Blue)", "cmdExit");
    EXPECT_EQ(RunProgram(folder / "game.tgf"), 0);
    EXPECT_TRUE(Has(ReadFile(folder / "game.txt"), " resigned.\n"));
    EXPECT_TRUE(script.Done());
}

TEST_F(WholeProgram, BeginsWithTheStartWindowAndEndsWithAGame) {
    script.On<FrmSplash>([](FrmSplash& window) {
        QTest::mouseClick(window.findChild<QWidget*>("cmdExit"), Qt::LeftButton);
    });
    EXPECT_EQ(RunProgram(""), 0);
    EXPECT_TRUE(script.Done());

    WriteFile(folder / "game.tgf", newGame);
    script.On<FrmGame>([](FrmGame& window) { window.close(); });
    EXPECT_EQ(RunProgram(folder / "game.tgf"), 0);
    EXPECT_GT(ReadFile(folder / "game.tgf").size(), newGame.size()) << "it was saved";
    EXPECT_TRUE(script.Done());
}

// As when the person logs out, which the session manager tells.
void LogOut() {
    const int signal = qApp->metaObject()->indexOfSignal("commitDataRequest(QSessionManager&)");
    char manager = 0;  // nobody looks at it
    void* arguments[]{nullptr, &manager};
    QMetaObject::activate(qApp, signal, arguments);
}

// Whatever is open then, the game is saved as it was before the event under way, and nobody is
// asked.
TEST_F(WholeProgram, EndsWithoutAskingWhenItIsToldTo) {
    for (const auto& tell :
         {std::function<void()>([] { raise(SIGTERM); }),
          std::function<void()>([] { raise(SIGHUP); }),
          std::function<void()>([] { raise(SIGINT); }), std::function<void()>(LogOut)}) {
        for (const char* box : {"", "New", "mnuSaveAs", "mnuDefaultFilepath"}) {
            WriteFile(folder / "game.tgf", newGame);
            script.On<FrmGame>([=](FrmGame& window) {
                if (box[0] == '\0') return tell();
                window.findChild<QAction*>(box)->trigger();
            });
            if (box[0] != '\0') script.On<QDialog>([=](QDialog&) { tell(); });
            EXPECT_EQ(RunProgram(folder / "game.tgf"), 0) << box;
            EXPECT_GT(ReadFile(folder / "game.tgf").size(), newGame.size()) << "it was saved";
        }
        // The box that tells the end of a game: it has not come to that.
        WriteFile(folder / "game.tgf", newGame);
        script.On<FrmGame>(
            [](FrmGame& window) { window.findChild<QAction*>("mnuResign")->trigger(); });
        script.On<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
        script.On<QMessageBox>([=](QMessageBox&) { tell(); });
        EXPECT_EQ(RunProgram(folder / "game.tgf"), 0);
        EXPECT_GT(ReadFile(folder / "game.tgf").size(), newGame.size());
        script.On<FrmSplash>([=](FrmSplash&) { tell(); });
        EXPECT_EQ(RunProgram(""), 0);
    }
    EXPECT_TRUE(script.Done());

    std::filesystem::create_directory(folder.Path() / "sub");
    WriteFile(folder / "sub/game.tgf", newGame);
    script.On<FrmGame>([&](FrmGame&) {
        std::filesystem::remove_all(folder / "sub");
        raise(SIGTERM);
    });
    EXPECT_EQ(RunProgram(folder / "sub/game.tgf"), 1) << "it can not be saved";
    EXPECT_TRUE(script.Done());
}

}  // namespace
}  // namespace qarn
