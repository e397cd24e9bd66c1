#include <QAccessible>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>

#include "shell/about.h"
#include "support/game_window.h"
#include "support/sequence.h"
#include "support/window_facts.h"

namespace qarn {
namespace {

// The items of a menu with their keys, (in parentheses) while they are hidden, each submenu [with
// its own].
std::string ItemsOf(const QMenu* menu) {
    QStringList items;
    for (const QAction* item : menu->actions()) {
        QString text = item->isSeparator() ? "--" + item->text() : item->text();
        if (!item->shortcut().isEmpty()) text += " " + item->shortcut().toString();
        if (item->menu() != nullptr) {
            text += " [" + QString::fromStdString(ItemsOf(item->menu())) + "]";
        }
        items << (item->isVisible() ? text : "(" + text + ")");
    }
    return items.join(", ").toStdString();
}

// What screen readers have been told: names and what has come up, and the squares of the board,
// counted from 0, that have changed or got the focus.
std::vector<std::string> updates;

void Note(QAccessibleEvent* event) {
    static const std::map<QAccessible::Event, std::string> kinds{
        {QAccessible::NameChanged, "name of "},
        {QAccessible::DescriptionChanged, "description of "},
        {QAccessible::ObjectShow, "shown "},
        {QAccessible::Focus, "focus on "}};
    const auto kind = kinds.find(event->type());
    if (kind == kinds.end() || event->object() == nullptr) return;
    if (event->child() >= 0) {
        updates.push_back(kind->second + "square " + std::to_string(event->child()));
    } else if (event->type() != QAccessible::Focus) {
        updates.push_back(kind->second + event->object()->objectName().toStdString());
    }
}

class PlayedWindow : public GameWindow, public testing::WithParamInterface<Sequence> {
protected:
    ~PlayedWindow() override { QAccessible::installUpdateHandler(previous_); }

    // What is on the board, and what the window shows.
    WindowFacts Seen() {
        WindowFacts seen = FactsOfWindow(*window);
        seen["focus"] = Focus();
        const QPoint cursor = board->Cursor();
        seen["cursor"] = std::to_string(cursor.x()) + "," + std::to_string(cursor.y());
        if (!window->testAttribute(Qt::WA_KeyboardFocusChange)) seen["focus"] += " unmarked";
        for (const Fact& fact : FactsOf(window->ShownGame())) {
            if (fact.sign == std::string("@")) seen[fact.name] = fact.value;
        }
        for (const auto* item : window->findChildren<QAction*>() + window->menuBar()->actions()) {
            const QString name = item->objectName().isEmpty() ? item->text() : item->objectName();
            seen[name.toStdString()] = !item->isVisible()   ? "hidden"
                                       : !item->isEnabled() ? "off"
                                       : item->isChecked()  ? "checked"
                                                            : "on";
        }
        return seen;
    }

    // Where a square is that is named like "9,5".
    QRect PlaceOf(const QString& square) {
        const QStringList numbers = square.split(',');
        return PlaceOfSquare(numbers[0].toInt(), numbers[1].toInt());
    }
    // The colours of the pixels that stand so far from the corners of squares.
    std::string ColorsAt(QPoint inSquare, const QStringList& squares) {
        const QImage picture = Picture();
        QString colors;
        for (const QString& square : squares) {
            const QColor color = picture.pixelColor(PlaceOf(square).topLeft() + inSquare);
            colors += " " + color.name().mid(1).toUpper();
        }
        return colors.toStdString();
    }

    // GameWindow's, and "mouse BUTTON", "focus CONTROL", "answer KEY...", "roll 5", "tick" of the
    // computer's timer, "look FFFFFF", "pixel 4 30 SQUARE..." from their corners, "point SQUARE" or
    // "point off", "hold KEY", "release KEY", "hear" what screen readers have been told, "menus",
    // "resize 800 600", "close", or "breakdisk", after which nothing can be written.
    void Do(const std::string& command) {
        const QStringList words = QString::fromStdString(command).split(' ');
        const std::string name = words.back().toStdString();
        if (words[0] == "mouse") {
            QTest::mouseClick(Button(name), Qt::LeftButton, {}, {8, 8});
        } else if (words[0] == "focus") {
            (name == "board" ? board : Find(name))->setFocus();
        } else if (words[0] == "answer") {
            std::deque<Qt::Key> keys;
            for (const QString& key : words.mid(1)) keys.push_back(QKeySequence(key)[0].key());
            AnswerBoxes(keys);
        } else if (words[0] == "roll") {
            random.QueueRoll(std::stoi(name));
        } else if (words[0] == "tick") {
            QMetaObject::invokeMethod(Find<QTimer>("tmrAI"), "timeout");
        } else if (words[0] == "look") {
            const std::string squares = SquaresWith(words[1].toUInt(nullptr, 16));
            looks += Replaced("* " + name + " " + squares + "\n", " \n", "\n");
        } else if (words[0] == "pixel") {
            looks += "* " + command + ":" +
                     ColorsAt({words[1].toInt(), words[2].toInt()}, words.mid(3)) + "\n";
        } else if (words[0] == "point") {
            QTest::mouseMove(window->windowHandle(),
                             name == "off" ? QPoint(2, 2) : PlaceOf(words[1]).center());
        } else if (words[0] == "hold") {
            QTest::keyPress(window.get(), QKeySequence(words[1])[0].key());
        } else if (words[0] == "release") {
            QTest::keyRelease(window.get(), QKeySequence(words[1])[0].key());
        } else if (words[0] == "hear") {
            looks += "* told:";
            for (const std::string& update : updates) looks += " " + update + ",";
            looks.back() = '\n';
        } else if (words[0] == "menus") {
            for (const QAction* menu : window->menuBar()->actions()) {
                looks += "* " + menu->text().toStdString() + ": " + ItemsOf(menu->menu()) + "\n";
            }
        } else if (words[0] == "resize") {
            window->resize(words[1].toInt(), words[2].toInt());
        } else if (words[0] == "breakdisk") {
            std::filesystem::remove_all(folder.Path());
        } else if (words[0] == "close") {
            window->close();
        } else {
            GameWindow::Do(command);
        }
    }

    std::string Play(const std::string& sequence) {
        const std::string transcript = PlayLines(sequence, [&](const std::string& commands) {
            const WindowFacts before = Seen();
            for (auto* list : {&titles, &boxes, &statuses, &updates}) list->clear();
            for (const std::string& command : Parts(commands)) Do(command);
            EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
            ExpectBoardPainted();
            std::string text;
            for (const std::string& title : titles) text += "? " + title + "\n";
            for (std::size_t i = 0; i < boxes.size(); ++i) {
                text += Replaced("! " + boxes[i] + "\n= " + statuses[i], "\n", "\n  ") + "\n";
            }
            text += std::exchange(looks, "");
            return text + Changes(before, Seen());
        });
        return Replaced(transcript, folder.Path().string(), "DIR");
    }

    std::string looks;

private:
    QAccessible::UpdateHandler previous_ = QAccessible::installUpdateHandler(Note);
};

TEST_P(PlayedWindow, GoesAsPlayed) {
    Open(GetParam().position);
    EXPECT_EQ(Play(GetParam().transcript), GetParam().transcript);
}

INSTANTIATE_TEST_SUITE_P(Commands, PlayedWindow,
                         testing::ValuesIn(ReadSequences("ui/game_window.txt")), NameOf);

// Its widgets tell it that they lose the focus.
TEST_F(GameWindow, IsStillWholeWhenTheFocusLeavesIt) {
    Open("Q@9,5 WA@17,2");
    QWidget* const shown = window.get();
    bool whole = false;
    QObject::connect(qApp, &QApplication::focusChanged, shown,
                     [&] { whole = dynamic_cast<FrmGame*>(shown) != nullptr; });
    window.reset();
    EXPECT_TRUE(whole);
}

TEST_F(GameWindow, ShowsOneAboutWindowWhichTellsWhatThisIsAndCloses) {
    Open("Q@9,5 WA@17,2");
    const AboutControls controls;
    for (const bool byKey : {false, true}) {
        Do("mnuAbout");
        EXPECT_FALSE(MenuItem("mnuAbout")->isEnabled());
        const QPointer about = window->findChild<QDialog*>();
        ASSERT_TRUE(QTest::qWaitForWindowActive(about));
        QStringList texts;
        for (const QLabel* label : about->findChildren<QLabel*>()) texts << label->text();
        for (const Label* label :
             {&controls.lblProductNameVersion, &controls.lblCredits, &controls.lblLegalNotices}) {
            EXPECT_TRUE(texts.contains(QString::fromStdString(label->Caption)));
        }
        auto* cmdExit = about->findChild<QAbstractButton*>();
        EXPECT_EQ(cmdExit->text(), "E&xit");
        if (byKey) {
            QTest::keyClick(about, Qt::Key_X, Qt::AltModifier);
        } else {
            QTest::mouseClick(cmdExit, Qt::LeftButton);
        }
        EXPECT_TRUE(QTest::qWaitFor([&] { return about.isNull(); }, 1000));
        EXPECT_TRUE(MenuItem("mnuAbout")->isEnabled());
    }
}

TEST_F(GameWindow, LetsTheMouseThroughItsNotesOverTheBoard) {
    Open("Q@9,5 WS@16,3 WA@17,2");
    QTest::mouseClick(Button("cmdSeeTerDet(3)"), Qt::LeftButton);
    Do("Ctrl+D");
    for (const auto& [name, X, Y] : {std::tuple{"lblTerrainDescription", 16, 3},
                                     {"fraQuickDetails", 17, 4},
                                     {"fraQuickDetails", 16, 5}}) {
        const QRect note(Find(name)->mapTo(window.get(), QPoint()), Find(name)->size());
        const QPoint place = PlaceOfSquare(X, Y).center();
        ASSERT_TRUE(note.contains(place)) << X << "," << Y;
        EXPECT_EQ(Picture().pixelColor(note.topLeft() + QPoint(2, 2)),
                  window->palette().color(QPalette::ToolTipBase));
        EXPECT_EQ(window->childAt(place), board) << "for its tool tip and its frame";
        ClickSquare(X, Y);
        EXPECT_TRUE(
            Text("lblSummary")
                .starts_with("Location: (" + std::to_string(X) + ", " + std::to_string(Y) + ")\n"));
    }
}

TEST_F(GameWindow, LetsTheComputerPlayButNotUnderABox) {
    Open("computer1");
    auto* timer = Find<QTimer>("tmrAI");
    EXPECT_EQ(timer->interval(), 1000);
    EXPECT_TRUE(timer->isActive());
    const auto tick = [&] { QMetaObject::invokeMethod(timer, "timeout"); };
    QTimer::singleShot(0, qApp, [&] {
        tick();
        boxes.push_back(Text("lblStatus"));
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    });
    Do("Ctrl+N");
    EXPECT_EQ(boxes, std::vector<std::string>{"It is Red's turn."});
}

// ---- The menus ----

TEST_F(GameWindow, AsksTheDesktopForTheMarkOfTheFileTypeWhenItsMenuOpens) {
    fileTypes.values = {{".tgf", "another program's"}};
    Open("Q@9,5 WA@17,2");
    EXPECT_FALSE(MenuItem("mnuTGF")->isChecked());
    auto* options = qobject_cast<QMenu*>(MenuItem("mnuTGF")->parent());
    emit options->aboutToShow();
    EXPECT_TRUE(MenuItem("mnuTGF")->isChecked());
}

}  // namespace
}  // namespace qarn
