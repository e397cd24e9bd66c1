#include "ui/frm_splash.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QTest>

#include "support/fake_ports.h"
#include "support/temp_folder.h"

namespace qarn {
namespace {

class FakeWastebasket : public Wastebasket {
public:
    void MoveThere(const std::string& path) override { std::filesystem::remove(path); }
};

class StartWindowOnScreen : public testing::Test {
protected:
    StartWindowOnScreen() {
        WriteFile(folder / "old.tgf", "HM\r\n");
        window = std::make_unique<FrmSplash>(
            random, DesktopPorts{settings, fileTypes, {folder / "", folder / ""}}, wastebasket);
        window->show();
    }

    // What a person types, with Enter at its end.
    void Type(const char* text) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        QTest::keyClicks(QApplication::focusWidget(), text);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }

    TempFolder folder;
    FakeRandomNumbers random;
    FakeSettings settings;
    FakeFileTypes fileTypes;
    FakeWastebasket wastebasket;
    std::unique_ptr<FrmSplash> window;
};

TEST_F(StartWindowOnScreen, MakesANewGameByKeyboardAlone) {
    Type("  First Game.tgf");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);  // the last scenario
    Type("");
    QKeyEvent notStorable(QEvent::KeyPress, Qt::Key_unknown, {}, "\u0141");
    QApplication::sendEvent(QApplication::focusWidget(), &notStorable);
    Type("Red");
    Type("Blue");
    EXPECT_EQ(window->Shown().Next, NextWindow::Game);
    EXPECT_EQ(window->Shown().strGamePath, folder / "First Game.tgf");
    EXPECT_EQ(ReadFile(folder / "First Game.tgf"), "AM\r\nRed" + std::string(51, ' ') +
                                                       "False\r\nBlue" + std::string(50, ' ') +
                                                       "False\r\n 0 \r\n");
}

TEST_F(StartWindowOnScreen, FollowsTheFolderAndLoadsFromIt) {
    auto* list = window->findChildren<QListWidget*>().at(1);
    ASSERT_EQ(list->count(), 1);
    WriteFile(folder / "new.tgf", "HM\r\n");
    EXPECT_TRUE(QTest::qWaitFor([&] { return list->count() == 2; }, 3000));

    window->Prepare(true);
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTest::keyClick(list, Qt::Key_Home);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(window->Shown().Next, NextWindow::Game);
    EXPECT_EQ(window->Shown().strGamePath, folder / "new.tgf");
}

TEST_F(StartWindowOnScreen, EscapeEndsTheProgram) {
    Type("A");
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_EQ(window->Shown().Next, NextWindow::None);
}

}  // namespace
}  // namespace qarn
