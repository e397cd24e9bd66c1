#include <QMenu>
#include <QMenuBar>

#include "support/game_window.h"

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

TEST_F(GameWindow, HasItsMenus) {
    Open("computer1 turn2 Q@9,5 WA@17,2");
    std::string menus;
    for (const QAction* menu : window->menuBar()->actions()) {
        menus += menu->text().toStdString() + ": " + ItemsOf(menu->menu()) + "\n";
    }
    EXPECT_EQ(menus,
              "&File: &New... Ctrl+N, &Open... Ctrl+O, &Save Ctrl+S, Save &As... F12, --, "
              "E&xit Ctrl+X\n"
              "&Details: &Details Ctrl+D, &Item Details Ctrl+I, Summary &Terrain Details Ctrl+T\n"
              "&Tools: &Replay Ctrl+R, (&Convert File)\n"
              "&Options: &Display Summary, Default &Filepath, Add and Remove the &TGF Filetype\n"
              "&View: &Sides, &Reach, &Odds, Terrain &Patterns, &Large Codes, &Coordinates, "
              "Last &Move, &Journal, &Roster, &Full Screen F11\n"
              "&Play: &Take Back Ctrl+Z, &Cancel Move Esc, &Pass Turn, &Hint Ctrl+H, --, "
              "&Opponent [--Goodbeasts, &Classic, &Scout, Ca&ptain, &Warlord, (--Badbeasts), "
              "(&Classic), (&Scout), (Ca&ptain), (&Warlord)], "
              "&Speed [One &Second a Step, A &Third of a Second, At &Once], "
              "House &Rules [&Own Groups Only, One &Turn for a Burning], --, "
              "&Resign, &Offer Draw\n"
              "&Help: &Getting Started, &Help F1, --, &About\n");
}

TEST_F(GameWindow, DisablesTheFileMenuAndItsKeysDuringAMove) {
    Open("Q@9,5 WA@17,2");
    const QAction* file = window->menuBar()->actions().first();
    const std::string saved = ReadFile(path);
    Do("Alt+M");
    EXPECT_FALSE(file->isEnabled());
    Do("Ctrl+S");
    EXPECT_EQ(ReadFile(path), saved);
    EXPECT_FALSE(MenuItem("mnuOwnGroupsOnly")->isEnabled());

    Do("9,5; Alt+S; 9,6; Alt+M");
    EXPECT_TRUE(file->isEnabled());
    Do("Ctrl+S");
    EXPECT_NE(ReadFile(path), saved);
    AnswerBoxes({Qt::Key_Escape});
    Do("F12");
    EXPECT_EQ(titles, std::vector<std::string>{"Save As"});
    EXPECT_FALSE(MenuItem("mnuConvertFile")->isVisible());
    EXPECT_TRUE(MenuItem("mnuSummary")->isChecked());
}

TEST_F(GameWindow, AsksTheDesktopForTheMarkOfTheFileTypeWhenItsMenuOpens) {
    fileTypes.values = {{".tgf", "another program's"}};
    Open("Q@9,5 WA@17,2");
    EXPECT_FALSE(MenuItem("mnuTGF")->isChecked());
    auto* options = qobject_cast<QMenu*>(MenuItem("mnuTGF")->parent());
    emit options->aboutToShow();
    EXPECT_TRUE(MenuItem("mnuTGF")->isChecked());
}

TEST_F(GameWindow, ShowsCheckMarksInItsMenus) {
    Open("computer2 Q@9,5 WA@17,2");
    const auto items = Parts(
        "mnuPeopleDetails; mnuSummary; mnuTGF; mnuOwnGroupsOnly; mnuOneTurnForABurning; mnuScout2");
    const auto marks = [&] {
        std::string text;
        for (const std::string& item : items) text += MenuItem(item)->isChecked() ? 'x' : '-';
        return text;
    };
    EXPECT_EQ(marks(), "-x----");
    EXPECT_TRUE(MenuItem("mnuClassic2")->isChecked());
    std::string after;
    AnswerBoxes({Qt::Key_Return});
    for (const std::string& item : items) {
        Do(item);
        after += marks() + " ";
    }
    EXPECT_EQ(after, "xx---- x----- x-x--- x-xx-- x-xxx- x-xxxx ");
    EXPECT_FALSE(MenuItem("mnuClassic2")->isChecked());
    EXPECT_FALSE(MenuItem("mnuSave")->isCheckable());
}

}  // namespace
}  // namespace qarn
