#pragma once

#include <QMenuBar>
#include <functional>
#include <vector>

#include "window/menu_commands.h"

namespace qarn {

/// The menu bar of the game window, made from the table of its commands.
class GameMenus {
public:
    /// Makes the menus on `bar`. `choose` gets each command that is chosen, by mouse or by key.
    GameMenus(QMenuBar* bar, std::function<void(const MenuCommand&)> choose);

    /// The menu that has this command.
    QMenu* MenuWith(std::string_view command) const;

    /// Brings check marks, enabled and visible states up to date.
    void Show(const Game& game);

private:
    struct Item {
        const MenuCommand* command;
        QAction* action;
    };

    QMenu* MenuOf(const MenuCommand& command);
    QAction* MakeAction(QMenu* menu, const MenuCommand& command);

    QMenuBar* bar_;
    std::function<void(const MenuCommand&)> choose_;
    std::vector<Item> items_;
};

}  // namespace qarn
