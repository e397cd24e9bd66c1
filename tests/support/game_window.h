#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include "shell/user_settings.h"
#include "support/fake_ports.h"
#include "support/played_game.h"
#include "support/temp_folder.h"
#include "ui/frm_game.h"

namespace qarn {

/// A window on a game in which Red, side 1, is to move.
class GameWindow : public testing::Test {
protected:
    // For somebody to whom no offer is made any more.
    GameWindow() { settings.values["QARN/Offer/" + GetUserKey(settings.loginName)] = "Made"; }

    void Open(const std::string& position) { OpenFile(SavedGame(position)); }
    void OpenFile(const std::string& contents) {
        WriteFile(path, contents);
        window->Open(path);
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        board = window->findChild<BoardWidget*>();
    }

    // In a window of the next run of the program.
    void OpenAnew(const std::string& position) {
        window = std::make_unique<FrmGame>(random, desktop);
        Open(position);
    }

    // A window that has ended has ended the application; the next test needs it again.
    void TearDown() override {
        window.reset();
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QApplication::exec();
    }

    template <typename Widget = QWidget>
    Widget* Find(const std::string& name) {
        return window->findChild<Widget*>(QString::fromStdString(name));
    }
    QAbstractButton* Button(const std::string& name) { return Find<QAbstractButton>(name); }
    QAction* MenuItem(const std::string& name) { return Find<QAction>(name); }
    std::string Text(const char* label) { return Find<QLabel>(label)->text().toStdString(); }
    std::string Focus() {
        const QWidget* widget = QApplication::focusWidget();
        return widget == board ? "board" : widget->objectName().toStdString();
    }
    void Key(int key, Qt::KeyboardModifiers modifiers = {}) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    }

    // A square on the window, its lines included.
    QRect PlaceOfSquare(int X, int Y) {
        const QRect place = board->PlaceOfSquare({X, Y});
        return QRect(board->mapTo(window.get(), place.topLeft()), place.size());
    }
    // As a mouse does it: whatever lies on top there gets the click.
    void ClickSquare(int X, int Y) {
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, PlaceOfSquare(X, Y).center());
    }

    // What a person does, separated by "; ": squares like "9,5" and buttons like "cmdMove" are
    // clicked, items like "mnuSides" are chosen, and anything else is a key.
    void Do(const std::string& script) {
        for (const std::string& part : Parts(script)) {
            int X = 0, Y = 0;
            if (std::sscanf(part.c_str(), "%d,%d", &X, &Y) == 2) {
                ClickSquare(X, Y);
            } else if (part.starts_with("cmd")) {
                Button(part)->click();
            } else if (part.starts_with("mnu")) {
                MenuItem(part)->trigger();
            } else {
                const QKeyCombination key = QKeySequence(QString::fromStdString(part))[0];
                Key(key.key(), key.keyboardModifiers());
            }
        }
    }

    // What has changed on the board is on the screen: painting all of it again changes nothing.
    void ExpectBoardPainted() {
        const QImage picture = Picture();
        board->update();
        EXPECT_EQ(picture, Picture());
    }

    // What is on the screen.
    QImage Picture() {
        QApplication::processEvents();
        return window->screen()->grabWindow(window->winId()).toImage();
    }
    static int CountOf(QRgb color, const QImage& picture, const QRect& place) {
        int count = 0;
        for (int x = place.left(); x <= place.right(); ++x) {
            for (int y = place.top(); y <= place.bottom(); ++y) {
                if ((picture.pixel(x, y) & RGB_MASK) == color) ++count;
            }
        }
        return count;
    }
    // The squares on which much of what is on the screen has this colour, row by row.
    std::string SquaresWith(QRgb color) {
        const QImage picture = Picture();
        std::string squares;
        for (int square = 0; square < columnCount * rowCount; ++square) {
            const int X = square % columnCount + 1, Y = square / columnCount + 1;
            if (CountOf(color, picture, PlaceOfSquare(X, Y)) <= 40) continue;
            squares += std::to_string(X) + "," + std::to_string(Y) + " ";
        }
        return squares;
    }

    // Answers the boxes and dialogs that come up next, each with a key.
    void AnswerBoxes(std::deque<Qt::Key> keys) {
        if (keys.empty()) return;
        QTimer::singleShot(0, window.get(), [this, keys]() mutable {
            QWidget* dialog = QApplication::activeModalWidget();
            if (dialog == nullptr) return AnswerBoxes(keys);
            titles.push_back(dialog->windowTitle().toStdString());
            if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
                boxes.push_back(box->text().toStdString());
                statuses.push_back(Text("lblStatus"));
                places.push_back(box->frameGeometry());
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
    std::vector<std::string> titles;    // of the boxes and dialogs that were answered
    std::vector<std::string> boxes;     // what the boxes among them said
    std::vector<std::string> statuses;  // under each of them
    std::vector<QRect> places;          // where each of them stood on the screen
};

}  // namespace qarn
