#include "ui/game_menus.h"

#include <QMenu>

#include "core/game.h"
#include "ui/text.h"

namespace qarn {
namespace {

// The menu that `holder`, the bar or a menu, holds last if it has this caption, else a new one.
template <typename Holder>
QMenu* LastMenuOf(Holder* holder, std::string_view caption) {
    const QList<QAction*> actions = holder->actions();
    QMenu* last = actions.isEmpty() ? nullptr : actions.last()->menu();
    const bool same = last != nullptr && last->title() == ToQt(caption);
    return same ? last : holder->addMenu(ToQt(caption));
}

// A menu is there while one of its items is, and opens while one of them can be chosen.
void ShowMenu(QMenu* menu) {
    bool visible = false;
    bool enabled = false;
    for (const QAction* action : menu->actions()) {
        if (action->menu() != nullptr) ShowMenu(action->menu());
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
    for (const MenuCommand& command : MenuCommands()) {
        QMenu* menu = MenuOf(command);
        QAction* action = command.Name.empty() ? menu->addSection(ToQt(command.Caption))
                                               : MakeAction(menu, command);
        items_.push_back({&command, action});
    }
}

QMenu* GameMenus::MenuOf(const MenuCommand& command) {
    QMenu* menu = LastMenuOf(bar_, command.Menu);
    return command.Submenu.empty() ? menu : LastMenuOf(menu, command.Submenu);
}

QAction* GameMenus::MakeAction(QMenu* menu, const MenuCommand& command) {
    QAction* action = menu->addAction(ToQt(command.Caption));
    action->setObjectName(ToQt(command.Name));
    if (!command.Shortcut.empty()) action->setShortcut(QKeySequence(ToQt(command.Shortcut)));
    action->setCheckable(command.Checkable);
    QObject::connect(action, &QAction::triggered, [this, &command] { choose_(command); });
    return action;
}

QMenu* GameMenus::MenuWith(std::string_view command) const {
    return qobject_cast<QMenu*>(bar_->findChild<QAction*>(ToQt(command))->parent());
}

void GameMenus::Show(const Game& game) {
    for (const Item& item : items_) {
        item.action->setVisible(IsShown(game, *item.command));
        item.action->setEnabled(CanChoose(game, *item.command));
        if (item.action->isCheckable()) {
            item.action->setChecked(IsTicked(game, *item.command));
        }
    }
    for (const QAction* menu : bar_->actions()) ShowMenu(menu->menu());
}

}  // namespace qarn
