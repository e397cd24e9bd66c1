#include "ui/frm_splash.h"

#include <gtest/gtest.h>

#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QTest>
#include <algorithm>

#include "scenarios/balance.h"
#include "scenarios/catalogue.h"
#include "scenarios/sides_told.h"
#include "support/fake_ports.h"
#include "support/text.h"
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

    // A key for the control that has the focus.
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(window.focusWidget(), key, modifiers);
    }
    void Alt(Qt::Key key) { Key(key, Qt::AltModifier); }
    void Type(const QString& text) {
        for (const QChar letter : text) {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, {}, letter);
            QApplication::sendEvent(window.focusWidget(), &press);
        }
    }
    void Enter(const QString& text) {
        Type(text);
        Key(Qt::Key_Return);
    }
    QWidget* Widget(const char* name) { return window.findChild<QWidget*>(name); }
    void Click(const char* name) { QTest::mouseClick(Widget(name), Qt::LeftButton); }
    void ClickRow(const char* list, int row) {
        const auto [viewport, place] = PlaceOf(list, row);
        QTest::mouseClick(viewport, Qt::LeftButton, {}, place);
    }
    void DoubleClickRow(const char* list, int row) {
        ClickRow(list, row);
        const auto [viewport, place] = PlaceOf(list, row);
        QTest::mouseDClick(viewport, Qt::LeftButton, {}, place);
    }
    std::pair<QWidget*, QPoint> PlaceOf(const char* list, int row) {
        auto* rows = static_cast<QListWidget*>(Widget(list));
        return {rows->viewport(), rows->visualItemRect(rows->item(row)).center()};
    }
    void AnswerBox(Qt::Key key) {
        script.On<QMessageBox>([=, this](QMessageBox& box) {
            titles.push_back(box.windowTitle().toStdString());
            QTest::keyClick(&box, key);
        });
    }

    std::string Focus() const { return window.focusWidget()->objectName().toStdString(); }
    std::string Text(const char* name) {
        return Widget(name)->property("text").toString().toStdString();
    }

    // What a person sees of the controls: those on screen in the order of their names, with text or
    // selected row, (in parentheses) while disabled, *the default button.
    std::string Seen() {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        QStringList seen;
        for (const char* name : {"txtNewFilePath", "cmdNew", "chkComputer", "cboOpponent",
                                 "lstScenarios", "fileLoad", "cmdLoad", "cmdDelete", "txtLocation",
                                 "cmdBrowse", "cmdBackGround", "txtBackGround", "cmdExit"}) {
            const QWidget* widget = Widget(name);
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

    TempFolder folder;
    FakeRandomNumbers random;
    FakeSettings settings;
    FakeFileTypes fileTypes;
    FakeWastebasket wastebasket;
    FrmSplash window{random, {settings, fileTypes, {folder / "", folder / ""}}, wastebasket};
    WindowScript script;
    std::vector<std::string> titles;  // of the boxes that were answered
};

const std::string games = " txtLocation &Browse QARN Background &Information ";

TEST_F(StartWindowOnScreen, MakesANewGameByKeyboardAlone) {
    EXPECT_EQ(window.windowTitle(), "Thornmere Series Tatical Game Splash Screen");
    EXPECT_EQ(Seen(), "'' (*&New) fileLoad (&Load) (&Delete Game)" + games + "E&xit");
    Enter(QString::fromUtf8("  \u0141\u00F3d\u017A.tgf"));
    EXPECT_EQ(Seen(), "'\u0141\u00F3d\u017A' locked (&Next) lstScenarios E&xit");
    EXPECT_EQ(Focus(), "lstScenarios");
    Key(Qt::Key_Return);  // no scenario yet
    EXPECT_FALSE(Widget("balance")->isVisible());
    Key(Qt::Key_End);
    EXPECT_TRUE(Widget("balance")->isVisible());
    EXPECT_EQ(Text("balance"), "Balance: " + BalanceOfScenario(ScenarioNumber("AM")));
    EXPECT_TRUE(Has(Text("sides"), "\n" + ToldOfSide(ScenarioNumber("AM"), 2)));
    EXPECT_EQ(Seen(), "'\u0141\u00F3d\u017A' locked *&Next lstScenarios=Ambermoor E&xit");
    Key(Qt::Key_Return);
    EXPECT_EQ(Seen(), "'' (*&Next) &Computer (lstScenarios=Ambermoor) E&xit");
    Type(QString::fromUtf8("\u0141Red"));
    for (int stop = 0; stop < 3; ++stop) Key(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "chkComputer");
    Key(Qt::Key_Space);
    EXPECT_EQ(Seen(), "'Red' *&Next &Computer[x] Classic (lstScenarios=Ambermoor) E&xit");
    Key(Qt::Key_Tab);
    Key(Qt::Key_Down);
    EXPECT_EQ(Seen(), "'Red' *&Next &Computer[x] Scout (lstScenarios=Ambermoor) E&xit");
    EXPECT_EQ(Focus(), "cboOpponent");
    Key(Qt::Key_Return);
    EXPECT_EQ(Seen(), "'' (*&Start) &Computer (lstScenarios=Ambermoor) E&xit");
    Enter(QString(60, 'B'));
    EXPECT_EQ(window.Shown().Next, NextWindow::Game);
    EXPECT_EQ(window.Shown().state.newOpponent, (Opponents{"", "scout", "classic"}));
    EXPECT_EQ(ReadFile(folder / "\u0141\u00F3d\u017A.tgf"), "AM\r\nRed" + std::string(51, ' ') +
                                                                "True\r\n" + std::string(54, 'B') +
                                                                "False\r\n 0 \r\n");
}

TEST_F(StartWindowOnScreen, ChoosesNoFileByItself) {
    Key(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "fileLoad");
    const std::string none = "'' (&New) fileLoad (*&Load) (&Delete Game)" + games + "E&xit";
    EXPECT_EQ(Seen(), none);
    Key(Qt::Key_Return);
    Alt(Qt::Key_D);
    EXPECT_EQ(Seen(), none);

    Key(Qt::Key_Down);
    const std::string first = "'' (&New) fileLoad=a.tgf *&Load &Delete Game" + games + "E&xit";
    EXPECT_EQ(Seen(), first);
    AnswerBox(Qt::Key_Return);
    Alt(Qt::Key_D);
    EXPECT_EQ(Seen(), first);
    AnswerBox(Qt::Key_Y);
    Alt(Qt::Key_D);
    EXPECT_EQ(titles, (std::vector<std::string>{"Delete a.tgf", "Delete a.tgf"}));
    EXPECT_FALSE(std::filesystem::exists(folder / "a.tgf"));
    EXPECT_EQ(Focus(), "fileLoad");
    EXPECT_EQ(Seen(), none);
    Alt(Qt::Key_D);
    EXPECT_TRUE(std::filesystem::exists(folder / "b.tgf"));

    ClickRow("fileLoad", 1);
    const std::string last = "'' (&New) fileLoad=c.tgf *&Load &Delete Game" + games + "E&xit";
    EXPECT_EQ(Seen(), last);
    Alt(Qt::Key_I);
    EXPECT_EQ(Seen(),
              "('') (&New) (&Load) (&Delete Game) Leave Background &Information "
              "txtBackGround E&xit");
    EXPECT_TRUE(static_cast<QPlainTextEdit*>(Widget("txtBackGround"))
                    ->toPlainText()
                    .contains("Currently, this program simulates The Saltbrook, "));
    Click("cmdBackGround");
    EXPECT_EQ(Focus(), "txtNewFilePath");
    for (const bool byKey : {true, false}) {
        Click("cmdBackGround");
        Click("cmdBackGround");
        Alt(Qt::Key_T);
        Key(Qt::Key_Tab);
        EXPECT_EQ(Seen(), "'' (&New) fileLoad=c.tgf (*&Load) (&Delete Game)" + games + "E&xit");
        if (byKey) {
            Key(Qt::Key_End);
        } else {
            ClickRow("fileLoad", 1);
        }
        EXPECT_EQ(Seen(), last);
    }
}

TEST_F(StartWindowOnScreen, EnterAndTabFollowTheControls) {
    Type("n");
    ClickRow("fileLoad", 0);
    Alt(Qt::Key_T);
    // Where the focus stands, with the default button then.
    const auto walk = [&](int stops) {
        std::string order;
        for (int stop = 0; stop < stops; ++stop, Key(Qt::Key_Tab)) {
            order += Focus() + " ";
            for (const char* button : {"*&New ", "*&Next ", "*&Load "}) {
                if (Has(Seen(), button)) order += button;
            }
            if (Focus() == "txtLocation") Key(Qt::Key_Return);  // loads nothing
        }
        return order;
    };
    EXPECT_EQ(walk(9),
              "txtNewFilePath *&New cmdNew fileLoad *&Load cmdLoad cmdDelete txtLocation "
              "cmdBrowse cmdBackGround cmdExit ");
    EXPECT_EQ(Focus(), "txtNewFilePath");
    EXPECT_EQ(window.Shown().Next, NextWindow::Same);

    Key(Qt::Key_Return);
    ClickRow("lstScenarios", 3);
    EXPECT_EQ(walk(4), "lstScenarios *&Next cmdExit *&Next txtNewFilePath *&Next cmdNew ");
    ClickRow("lstScenarios", 0);
    Key(Qt::Key_Tab);
    Key(Qt::Key_Return);  // on another button
    EXPECT_EQ(window.Shown().Next, NextWindow::None);
}

TEST_F(StartWindowOnScreen, FollowsTheFolderAndLoadsFromIt) {
    auto* list = static_cast<QListWidget*>(Widget("fileLoad"));
    WriteFile(folder / "d.tgf", "HM\r\n");
    EXPECT_TRUE(QTest::qWaitFor([&] { return list->count() == 4; }, 3000));

    script.On<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().path().toStdString(), folder.Path());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    Click("cmdBrowse");
    EXPECT_TRUE(script.Done());
    EXPECT_EQ(window.Shown().Next, NextWindow::Same);

    window.Prepare(true);
    EXPECT_EQ(Focus(), "fileLoad");
    DoubleClickRow("fileLoad", 0);  // the one saved last
    EXPECT_EQ(window.Shown().Next, NextWindow::Game);
    EXPECT_EQ(window.Shown().strGamePath, folder / "d.tgf");
}

TEST_F(StartWindowOnScreen, TheLongestStoryHasRoomBelowThePicture) {
    Enter("A");
    DoubleClickRow("lstScenarios", 1);
    Alt(Qt::Key_C);       // tells of the opponent, which takes room
    window.resize(1, 1);  // as small as it can be
    QApplication::processEvents();
    const auto* story = static_cast<QLabel*>(Widget("lblScenarioBackground"));
    EXPECT_GT(story->y(), Widget("picture")->geometry().bottom());
    EXPECT_GE(story->height(), story->heightForWidth(story->width()));
    EXPECT_GT(Widget("sides")->y(), story->geometry().bottom());
}

TEST_F(StartWindowOnScreen, EscapeAndTheCloseBoxEndTheProgram) {
    Enter("A");
    DoubleClickRow("lstScenarios", 1);
    EXPECT_TRUE(Has(Seen(), "&Computer (lstScenarios=The Song of Kestrel Ford)"));
    Key(Qt::Key_Escape);
    EXPECT_EQ(window.Shown().Next, NextWindow::None);
    FrmSplash other(random, {settings, fileTypes, {folder / "", folder / ""}}, wastebasket);
    other.show();
    other.close();
    EXPECT_EQ(other.Shown().Next, NextWindow::None);
}

}  // namespace
}  // namespace qarn
