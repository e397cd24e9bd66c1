#pragma once

#include <QTreeWidget>

#include "core/game_record.h"
#include "ui/side_dock.h"

namespace qarn {

/// The roster beside the board: all groups with their strengths and places, sorted by the column
/// that a person chooses.
class RosterDock : public SideDock {
    Q_OBJECT

public:
    RosterDock();

    /// Brings the list up to date.
    void Show(const GameRecord& record);

signals:
    /// A person wants to go to the square on which a group stands.
    void SquareWanted(QPoint square);

private:
    void FitColumns();
    void GoTo(const QTreeWidgetItem* item);

    QTreeWidget* list_;
    std::array<QTreeWidgetItem*, peopleCount + 1> items_{};  // used from index 1
};

}  // namespace qarn
