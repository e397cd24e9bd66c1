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

    /// Shows a text in the place of the rows while there are none.
    void ShowWhileEmpty(const QString& text) { whileEmpty_ = text; }

signals:
    /// A person chose the row, whether it was chosen before or not.
    void Chosen(int row);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString whileEmpty_;
};

}  // namespace qarn
