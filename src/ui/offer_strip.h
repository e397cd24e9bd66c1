#pragma once

#include <QFrame>
#include <QPushButton>

namespace qarn {

class ScaledArea;

/// A strip beside the status line that makes the offer of a person's first game.
class OfferStrip : public QFrame {
    Q_OBJECT

public:
    /// Places itself on `area`, which then owns it.
    explicit OfferStrip(ScaledArea* area);

    /// Whether the offer can be taken now.
    void LetTake(bool can) { take_->setEnabled(can); }

signals:
    void Taken();
    void Declined();

private:
    QPushButton* take_;
};

}  // namespace qarn
