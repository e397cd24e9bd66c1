#pragma once

#include <QTreeWidget>

#include "help/help_file.h"

namespace qarn {

/// The table of contents.
class ContentsTree : public QTreeWidget {
    Q_OBJECT

public:
    ContentsTree(const HelpFile& file, QWidget* parent);

    /// Moves to the entry of the page on screen.
    void Select(const QString& pageName);

signals:
    void TopicChosen(const QString& topic);
};

}  // namespace qarn
