#pragma once

#include <QListWidget>

namespace qarn {

/// A list in which nothing is chosen until a person chooses: by a click, or by a key that comes to
/// a row. The focus alone only marks a row, at which the keys then begin.
class ChoiceList : public QListWidget {
    Q_OBJECT

public:
    ChoiceList();

    /// Shows `row`, counted from 0, as chosen; -1 shows none. Reports nothing.
    void ShowChosen(int row);

signals:
    /// A person chose the row, whether it was chosen before or not.
    void Chosen(int row);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace qarn
