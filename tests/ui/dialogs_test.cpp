#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <algorithm>

#include "support/fake_ports.h"
#include "ui/frm_yes_no_help.h"
#include "ui/window_script.h"

namespace qarn {
namespace {

// The captions from left to right, the default button's in brackets.
std::string ButtonsOf(const QMessageBox& box) {
    QList<QAbstractButton*> buttons = box.buttons();
    std::sort(buttons.begin(), buttons.end(), [](const auto* a, const auto* b) {
        return a->mapToGlobal(QPoint()).x() < b->mapToGlobal(QPoint()).x();
    });
    QStringList captions;
    for (const QAbstractButton* button : buttons) {
        const bool preferred = button == box.defaultButton();
        captions << (preferred ? "[" + button->text() + "]" : button->text());
    }
    return captions.join(" ").toStdString();
}

std::string FactsOf(const QMessageBox& box) {
    return box.windowTitle().toStdString() + " | " + box.text().toStdString() +
           (box.icon() == QMessageBox::NoIcon ? "" : " | icon") + " | " + ButtonsOf(box);
}

class DialogsOnScreen : public testing::Test {
protected:
    DialogsOnScreen() { window.show(); }

    QWidget window;
    int shownBefore = 0;
    QtDialogs dialogs{&window, [this] { ++shownBefore; }};
    WindowScript script;
};

TEST_F(DialogsOnScreen, BoxesOfferTheirButtonsAndAnswer) {
    using enum Answer;
    const auto expectBox = [&](const MessageBox& box, const std::string& facts, Answer onEnter,
                               Answer onEscape) {
        std::vector<std::pair<Qt::Key, Answer>> answers{{Qt::Key_Return, onEnter},
                                                        {Qt::Key_Escape, onEscape}};
        if (box.Offered == Buttons::YesNo) answers.emplace_back(Qt::Key_Y, Yes);
        for (const auto& [key, answer] : answers) {
            script.On<QMessageBox>([&, key = key](QMessageBox& shown) {
                EXPECT_EQ(FactsOf(shown), facts);
                QTest::keyClick(&shown, key);
            });
            EXPECT_EQ(dialogs.Show(box), answer) << facts << " " << key;
        }
    };
    expectBox({.Title = {}, .Text = "<b>R&B</b>\nlost."},
              "Thornmere Series Tactical Game | <b>R&B</b>\nlost. | [OK]", OK, OK);
    expectBox({.Title = "Resolution", .Text = "Changed", .Shown = Icon::Information},
              "Resolution | Changed | icon | [OK]", OK, OK);
    expectBox({.Title = "Leave Game", .Text = "Sure?", .Offered = Buttons::YesNo},
              "Leave Game | Sure? | [&Yes] &No", Yes, No);
    expectBox({.Title = "a", .Text = "?", .Offered = Buttons::YesNo, .DeclinedByDefault = true},
              "a | ? | &Yes [&No]", No, No);
    expectBox({.Title = "Error 53", .Text = "No file", .Offered = Buttons::RetryCancel},
              "Error 53 | No file | [Retry] Cancel", Retry, Cancel);
    EXPECT_EQ(shownBefore, 12);
}

TEST_F(DialogsOnScreen, ThePromptAsksForALine) {
    const std::string text = "Enter the default filepath for QARN to use.";
    for (const auto& [key, answer] : {std::pair{Qt::Key_Return, "/gamesx"}, {Qt::Key_Escape, ""}}) {
        script.On<QInputDialog>([&, key = key](QInputDialog& prompt) {
            EXPECT_EQ(prompt.windowTitle(), "Default Filepath");
            EXPECT_EQ(prompt.findChild<QLabel*>()->text().toStdString(), text);
            auto* field = prompt.findChild<QLineEdit*>();
            EXPECT_EQ(field->text(), "/games");
            QTest::keyClick(field, Qt::Key_End);
            QTest::keyClicks(field, "x");
            QTest::keyClick(field, key);
        });
        EXPECT_EQ(dialogs.InputPrompt(text, "Default Filepath", "/games"), answer);
    }
}

TEST_F(DialogsOnScreen, FileDialogsOfferGames) {
    const TempFolder folder;
    WriteFile(folder / "old.tgf", "");
    const auto expectGamesIn = [&](const QFileDialog& dialog, const char* title) {
        EXPECT_EQ(dialog.windowTitle(), title);
        EXPECT_EQ(dialog.nameFilters(), QStringList("Tactical Game Files (*.tgf)"));
        EXPECT_EQ(dialog.directory().path().toStdString(), folder.Path());
    };
    const auto type = [](QFileDialog& dialog, const char* name) {
        auto* field = dialog.findChild<QLineEdit*>();
        field->setText(name);
        QTest::keyClick(field, Qt::Key_Return);
    };

    script.On<QFileDialog>([&](QFileDialog& dialog) {
        expectGamesIn(dialog, "Save As");
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_FALSE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
        EXPECT_EQ(dialog.findChild<QLineEdit*>()->text(), "old.tgf");
        type(dialog, "new");
    });
    EXPECT_EQ(dialogs.AskSaveFileName(folder / "old.tgf"), folder / "new.tgf");

    script.On<QFileDialog>([&](QFileDialog& dialog) {
        expectGamesIn(dialog, "Open");
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
        type(dialog, "old.tgf");
    });
    EXPECT_EQ(dialogs.AskOpenFileName(folder.Path()), folder / "old.tgf");

    for (int times = 0; times < 2; ++times) {
        script.On<QFileDialog>(
            [](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    }
    EXPECT_EQ(dialogs.AskSaveFileName(folder / "old.tgf"), "");
    EXPECT_EQ(dialogs.AskOpenFileName(folder.Path()), "");
}

// The screen of the tests is smaller than the game needs.
TEST_F(DialogsOnScreen, TheStartUpWindowAsksBeforeItChangesTheDisplay) {
    for (const Qt::Key key : {Qt::Key_Y, Qt::Key_N, Qt::Key_Escape}) {
        FakeDisplay display;
        display.result = DisplayChange::Successful;
        FakeComputer computer;
        FrmYesNoHelp startUp("/no help here", display, computer, "");
        ASSERT_TRUE(startUp.Asks());
        script.On<FrmYesNoHelp>([&](FrmYesNoHelp& asked) {
            EXPECT_EQ(asked.findChild<QLabel*>("lblPrompt")->text(),
                      "Would you like to set the resolution to 1024x768?");
            QTest::keyClick(&asked, Qt::Key_H, Qt::AltModifier);
        });
        script.On<QMessageBox>([](QMessageBox& box) {
            EXPECT_TRUE(box.text().startsWith("The help viewer can not be started: "));
            QTest::keyClick(&box, Qt::Key_Return);
        });
        script.On<FrmYesNoHelp>([&](FrmYesNoHelp& asked) {
            EXPECT_EQ(asked.Shown().Next, NextWindow::Same) << "after the help";
            QTest::keyClick(&asked, key, key == Qt::Key_Escape ? Qt::NoModifier : Qt::AltModifier);
        });
        if (key == Qt::Key_Y) {
            script.On<QMessageBox>([](QMessageBox& box) {
                EXPECT_EQ(FactsOf(box),
                          "Resolution Changed | Screen resolution changed | icon | [OK]");
                QTest::keyClick(&box, Qt::Key_Return);
            });
        }
        startUp.exec();
        EXPECT_EQ(display.changes, key == Qt::Key_Y ? "1024x768 1024x768 permanent " : "");
        EXPECT_EQ(startUp.Shown().Next, NextWindow::Start);
        EXPECT_TRUE(script.Done());
    }
}

}  // namespace
}  // namespace qarn
