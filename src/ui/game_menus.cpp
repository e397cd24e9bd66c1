#include "ui/game_menus.h"

#include <QMenu>

#include "core/game.h"
#include "ui/text.h"

namespace qarn {
namespace {

bool IsVisible(const Controls& controls, const MenuCommand& command) {
    return command.State == nullptr || (controls.*command.State).Visible;
}

// A menu is there while one of its items is, and opens while one of them can be chosen.
void ShowMenu(QMenu* menu) {
    bool visible = false;
    bool enabled = false;
    for (const QAction* action : menu->actions()) {
        if (action->isSeparator() || !action->isVisible()) continue;
        visible = true;
        enabled = enabled || action->isEnabled();
    }
    menu->menuAction()->setVisible(visible);
    menu->menuAction()->setEnabled(enabled);
}

}  // namespace

GameMenus::GameMenus(QMenuBar* bar, std::function<void(const MenuCommand&)> choose)
    : bar_(bar), choose_(std::move(choose)) {
    QMenu* menu = nullptr;
    for (const MenuCommand& command : MenuCommands()) {
        const QString caption = ToQt(command.Menu);
        if (menu == nullptr || menu->title() != caption) menu = bar->addMenu(caption);
        if (command.Name.empty()) {
            menu->addSeparator();
        } else {
            items_.push_back({&command, MakeAction(menu, command)});
        }
    }
}

QAction* GameMenus::MakeAction(QMenu* menu, const MenuCommand& command) {
    QAction* action = menu->addAction(ToQt(command.Caption));
    action->setObjectName(ToQt(command.Name));
    if (!command.Shortcut.empty()) action->setShortcut(QKeySequence(ToQt(command.Shortcut)));
    action->setCheckable(command.Checkable);
    QObject::connect(action, &QAction::triggered, [this, &command] { choose_(command); });
    return action;
}

void GameMenus::Show(const Controls& controls) {
    for (const Item& item : items_) {
        item.action->setVisible(IsVisible(controls, *item.command));
        item.action->setEnabled(CanChoose(controls, *item.command));
        if (item.action->isCheckable()) {
            item.action->setChecked((controls.*item.command->State).Checked);
        }
    }
    for (const QAction* menu : bar_->actions()) ShowMenu(menu->menu());
}

}  // namespace qarn
