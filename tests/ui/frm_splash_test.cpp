#include "ui/frm_splash.h"

#include <gtest/gtest.h>

#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QTest>
#include <map>

#include "support/sequence.h"
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
            transcript += "? " + (box.windowTitle() + ": " + box.text()).toStdString() + "\n";
            QTest::keyClick(&box, key);
        });
    }

    // "type TEXT", "click BUTTON", "row LIST 0" or "open LIST 0", "answer KEY", or a key.
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
        QTest::keyClick(window.focusWidget(), key(command).key(), key(command).keyboardModifiers());
    }
    void DoAll(const std::string& commands) {
        for (const std::string& command : Parts(commands)) {
            ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
            Do(command);
        }
    }

    // What a person sees of the controls: those on screen in the order of their names, with text or
    // selected row, (in parentheses) while disabled, *the default button.
    std::string Seen() {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        QStringList seen;
        for (const char* name : {"txtNewFilePath", "cmdNew", "chkComputer", "cboOpponent",
                                 "lstScenarios", "fileLoad", "cmdLoad", "cmdDelete", "txtLocation",
                                 "cmdBrowse", "cmdBackGround", "txtBackGround", "cmdExit"}) {
            const QWidget* widget = Find(name);
            if (!widget->isVisible()) continue;
            QString text = name;
            if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
                text = button->text() + (button->isChecked() ? "[x]" : "");
                if (button->property("default").toBool()) text = "*" + text;
            } else if (const auto* list = qobject_cast<const QListWidget*>(widget)) {
                for (const QListWidgetItem* item : list->selectedItems())
                    text += "=" + item->text().section('\n', 0, 0);
            } else if (const auto* choice = qobject_cast<const QComboBox*>(widget)) {
                text = choice->currentText();
            } else if (text == "txtNewFilePath") {
                text = "'" + widget->property("text").toString() + "'";
                if (widget->property("readOnly").toBool()) text += " locked";
            }
            seen << (widget->isEnabled() ? text : "(" + text + ")");
        }
        return seen.join(" ").toStdString();
    }

    std::string Focus() const { return window.focusWidget()->objectName().toStdString(); }
    // The texts that have come or changed, apart from those of Seen.
    std::string NewTexts() {
        std::string news;
        for (const QWidget* widget : window.findChildren<QWidget*>()) {
            const auto* story = qobject_cast<const QPlainTextEdit*>(widget);
            const QString text = story != nullptr ? story->toPlainText()
                                 : qobject_cast<const QLabel*>(widget) != nullptr
                                     ? widget->property("text").toString()
                                     : "";
            const std::string now = widget->isVisible() ? text.toStdString() : "";
            if (std::exchange(texts[widget], now) == now || now.empty()) continue;
            news += "= " + Replaced(now, "\n", "\n  ") + "\n";
        }
        return news;
    }
    std::string Outcome() const {
        const StartWindow& next = window.Shown();
        if (next.Next != NextWindow::Game) return "none\n";
        const std::string game = ReadFile(next.strGamePath);
        return "game " + next.strGamePath + ": " + Replaced(game, "\r\n", "/") + "\n";
    }

    // Carries out the commands of the lines that begin with "> ", and gives these lines back with
    // what can be seen then.
    std::string Play(const std::string& commands) {
        NewTexts();
        std::istringstream lines(commands);
        for (std::string line; std::getline(lines, line);) {
            if (!line.starts_with("> ")) continue;
            transcript += line + "\n";
            DoAll(line.substr(2));
            transcript += window.Shown().Next != NextWindow::Same
                              ? Outcome()
                              : NewTexts() + "# " + Focus() + ": " + Seen() + "\n";
        }
        return Replaced(transcript, folder / "", "");
    }

    TempFolder folder;
    FakeRandomNumbers random;
    FakeSettings settings;
    FakeFileTypes fileTypes;
    FakeWastebasket wastebasket;
    FrmSplash window{random, {settings, fileTypes, {folder / "", folder / ""}}, wastebasket};
    WindowScript script;
    std::map<const QWidget*, std::string> texts;
    std::string transcript;
};

class PlayedStartWindow : public StartWindowOnScreen,
                          public testing::WithParamInterface<Sequence> {};

TEST_P(PlayedStartWindow, GoesAsPlayed) {
    EXPECT_EQ(Play(GetParam().transcript), GetParam().transcript);
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
    EXPECT_EQ(Focus(), "fileLoad");
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

TEST_F(StartWindowOnScreen, TheCloseBoxEndsTheProgram) {
    window.close();
    EXPECT_EQ(window.Shown().Next, NextWindow::None);
}

}  // namespace
}  // namespace qarn
