#include "ui/no_move_strip.h"

#include <QMenu>

#include "ui/design.h"
#include "ui/note_look.h"
#include "ui/text.h"
#include "window/told_of_opponent.h"

namespace qarn {

NoMoveStrip::NoMoveStrip(ScaledArea* area) : QFrame(area) {
    setObjectName("noMoveStrip");
    LookLikeNote(*this);
    text_.setObjectName("noMoveText");
    text_.setForegroundRole(QPalette::ToolTipText);
    cmdPass_.setObjectName("cmdPassItsTurn");
    cmdOther_.setObjectName("cmdOtherOpponent");
    cmdOther_.setMenu(new QMenu(&cmdOther_));
    for (QPushButton* button : {&cmdPass_, &cmdOther_}) button->setAutoDefault(true);
    connect(&cmdPass_, &QPushButton::clicked, this, &NoMoveStrip::PassWanted);

    area->Place(this, opponentStripTwips);
    area->Place(&text_, noMoveTextTwips);
    area->Place(&cmdPass_, cmdPassItsTurnTwips);
    area->Place(&cmdOther_, cmdOtherOpponentTwips);
    hide();
}

void NoMoveStrip::Tell(const std::string& player, const QList<QAction*>& opponents) {
    cmdOther_.menu()->clear();
    cmdOther_.menu()->addActions(opponents);
    text_.Tell(ToQt(ToldOfNoMove(player)) + "\nMove for it, or:");
}

}  // namespace qarn
