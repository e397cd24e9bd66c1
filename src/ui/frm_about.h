#pragma once

#include <QDialog>

namespace qarn {

/// The about window: what the program is, who made it, and its legal notices. It deletes itself
/// when it closes.
class FrmAbout : public QDialog {
public:
    /// Stays in front of the game window, which owns it.
    explicit FrmAbout(QWidget* gameWindow);
};

}  // namespace qarn
