#pragma once

#include <QStringList>
#include <QTimer>

#include "ui/status_line.h"

namespace qarn {

/// A strip beside the status line that tells what an opponent was asked and answered, one box after
/// the other, and meanwhile that it thinks. Hidden while there is nothing to tell.
class OpponentStrip : public StatusLine {
    Q_OBJECT

public:
    explicit OpponentStrip(QWidget* parent);

    /// Tells of a box, behind those that are still to be told, for so many milliseconds. With none,
    /// it stays, together with the one before of the same turn, in the place of all others.
    void Tell(const QString& text, int milliseconds);

    /// True while more is to be told than stands there.
    bool HasMore() const { return !texts_.isEmpty(); }

    /// From now on somebody thinks, which is shown when it takes long enough to be seen; nobody
    /// when the text is empty.
    void ShowThinking(const QString& text);

    /// Forgets what it tells.
    void Dismiss();

signals:
    /// What it shows has changed.
    void Changed();

private:
    void ShowNext();
    void Put(const QString& text);

    QStringList texts_;
    QString last_;  // that was told without delay
    QString thinking_;
    QTimer time_{this};
    QTimer patience_{this};
    int milliseconds_ = 0;
};

}  // namespace qarn
