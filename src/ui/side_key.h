#pragma once

#include <QLabel>
#include <array>

#include "core/game.h"

namespace qarn {

/// Tells which plates are whose, and whose turn it is, at the right end of the menu bar. Hidden
/// while sides are not shown.
class SideKey : public QWidget {
public:
    SideKey();

    void Show(const Game& game);

private:
    std::array<QLabel*, 3> names_{};  // by side, from 1
};

}  // namespace qarn
