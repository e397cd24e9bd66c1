#pragma once

#include <QAction>
#include <QFrame>
#include <QList>
#include <QPushButton>
#include <string>

#include "ui/scaled_area.h"
#include "ui/status_line.h"

namespace qarn {

/// A strip beside the status line for when the computer has found no move: says so, and what a
/// person can do about it. Hidden at first.
class NoMoveStrip : public QFrame {
    Q_OBJECT

public:
    /// Stands on `area`.
    explicit NoMoveStrip(ScaledArea* area);

    /// Says of whom plays the side, and offers to choose one of these opponents for it.
    void Tell(const std::string& player, const QList<QAction*>& opponents);

signals:
    /// The turn is to be passed.
    void PassWanted();

private:
    StatusLine text_{this};
    // Without access keys, which belong to the menus.
    QPushButton cmdPass_{"Pass Its Turn", this};
    QPushButton cmdOther_{"Other Opponent", this};
};

}  // namespace qarn
