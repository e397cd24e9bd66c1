#include "ui/frm_splash.h"

#include <gtest/gtest.h>

#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QTest>

#include "support/sequence.h"
#include "support/window_facts.h"
#include "ui/window_script.h"

namespace qarn {
namespace {

class StartWindowOnScreen : public testing::Test {
protected:
    StartWindowOnScreen() {
        int age = 0;
        for (const char* name : {"a.tgf", "b.tgf", "c.tgf"}) {
            WriteFile(folder / name, "HM\r\n");
            const auto now = std::filesystem::file_time_type::clock::now();
            std::filesystem::last_write_time(folder / name, now - std::chrono::hours(++age));
        }
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void Type(const QString& text) {
        for (const QChar letter : text) {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, {}, letter);
            QApplication::sendEvent(window.focusWidget(), &press);
        }
    }
    template <typename Kind = QWidget>
    Kind* Find(const std::string& name) {
        return window.findChild<Kind*>(QString::fromStdString(name));
    }
    void ClickRow(const std::string& list, int row, bool twice) {
        const auto* rows = Find<QListWidget>(list);
        const QPoint place = rows->visualItemRect(rows->item(row)).center();
        QTest::mouseClick(rows->viewport(), Qt::LeftButton, {}, place);
        if (twice) QTest::mouseDClick(rows->viewport(), Qt::LeftButton, {}, place);
    }
    // The key with which the next box is answered.
    void AnswerBox(Qt::Key key) {
        script.On<QMessageBox>([=, this](QMessageBox& box) {
            boxes += "? " + (box.windowTitle() + ": " + box.text()).toStdString() + "\n";
            QTest::keyClick(&box, key);
        });
    }

    // "type TEXT", "click BUTTON", "row LIST 0" or "open LIST 0", "answer KEY", "breakdisk", which
    // takes the folder away, and "mend", "close", or a key.
    void Do(const std::string& command) {
        std::istringstream words(command);
        std::string verb, name;
        int row = 0;
        words >> verb >> name >> row;
        const auto key = [](const std::string& text) {
            return QKeySequence(QString::fromStdString(text))[0];
        };
        if (verb == "type") return Type(QString::fromStdString(command.substr(5)));
        if (verb == "click") return QTest::mouseClick(Find(name), Qt::LeftButton);
        if (verb == "row" || verb == "open") return ClickRow(name, row, verb == "open");
        if (verb == "answer") return AnswerBox(key(name).key());
        if (verb == "breakdisk") return void(std::filesystem::remove_all(folder.Path()));
        if (verb == "close") return void(window.close());
        if (verb == "mend") return void(std::filesystem::create_directory(folder.Path()));
        QTest::keyClick(window.focusWidget(), key(command).key(), key(command).keyboardModifiers());
    }
    void DoAll(const std::string& commands) {
        for (const std::string& command : Parts(commands)) {
            ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
            Do(command);
        }
    }

    std::string Outcome() const {
        const StartWindow& next = window.Shown();
        if (next.Next != NextWindow::Game) return "none\n";
        const std::string game = ReadFile(next.strGamePath);
        return "game " + next.strGamePath + ": " + Replaced(game, "\r\n", "/") + "\n";
    }

    // Carries out the commands, and gives what can then be seen otherwise; at first all of it.
    std::string Play(const std::string& commands) {
        boxes.clear();
        DoAll(commands);
        if (window.Shown().Next != NextWindow::Same) return boxes + Outcome();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        const WindowFacts before = std::exchange(seen, FactsOfWindow(window));
        return boxes + Changes(before, seen);
    }

    TempFolder folder;
    FakeRandomNumbers random;
    FakeSettings settings;
    FakeFileTypes fileTypes;
    FakeWastebasket wastebasket;
    FrmSplash window{random, {settings, fileTypes, {folder / "", folder / ""}}, wastebasket};
    WindowScript script;
    std::string boxes;
    WindowFacts seen;
};

class PlayedStartWindow : public StartWindowOnScreen,
                          public testing::WithParamInterface<Sequence> {};

TEST_P(PlayedStartWindow, GoesAsPlayed) {
    const auto play = [&](const std::string& commands) { return Play(commands); };
    const std::string transcript = PlayLines(GetParam().transcript, play);
    EXPECT_EQ(Replaced(transcript, folder / "", ""), GetParam().transcript);
}

INSTANTIATE_TEST_SUITE_P(Commands, PlayedStartWindow,
                         testing::ValuesIn(ReadSequences("ui/start_window.txt")), NameOf);

TEST_F(StartWindowOnScreen, FollowsTheFolderAndLoadsFromIt) {
    const auto* list = Find<QListWidget>("fileLoad");
    WriteFile(folder / "d.tgf", "HM\r\n");
    EXPECT_TRUE(QTest::qWaitFor([&] { return list->count() == 4; }, 3000));

    script.On<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().path().toStdString(), folder.Path());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    Do("click cmdBrowse");
    EXPECT_TRUE(script.Done());
    EXPECT_EQ(window.Shown().Next, NextWindow::Same);

    window.Prepare(true);
    EXPECT_EQ(window.focusWidget(), list);
    Do("open fileLoad 0");  // the one saved last
    EXPECT_EQ(window.Shown().Next, NextWindow::Game);
    EXPECT_EQ(window.Shown().strGamePath, folder / "d.tgf");
}

TEST_F(StartWindowOnScreen, TheLongestStoryHasRoomBelowThePicture) {
    DoAll("type A; Return; open lstScenarios 1; Alt+C");  // the opponent's text takes room
    window.resize(1, 1);                                  // as small as it can be
    QApplication::processEvents();
    const auto* story = Find<QLabel>("lblScenarioBackground");
    EXPECT_GT(story->y(), Find("picture")->geometry().bottom());
    EXPECT_GE(story->height(), story->heightForWidth(story->width()));
    EXPECT_GT(Find("sides")->y(), story->geometry().bottom());
}

}  // namespace
}  // namespace qarn
