#pragma once

#include <QDockWidget>

namespace qarn {

/// A dock beside the board, for a person to read in. Whether it is there, the game's view choices
/// say: its close button only asks for it.
class SideDock : public QDockWidget {
    Q_OBJECT

public:
    /// `name` is the object's and `title` what a person reads. The dock holds `content`.
    SideDock(const char* name, const QString& title, QWidget* content);

    /// As wide as a text is that is easy to read.
    QSize sizeHint() const override;

signals:
    /// A person wants it closed.
    void CloseWanted();

protected:
    void closeEvent(QCloseEvent* event) override;
};

}  // namespace qarn
