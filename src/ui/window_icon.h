#pragma once

#include <QIcon>

namespace qarn {

/// The picture that stands for the program: a corner of the board.
QIcon WindowIcon();

}  // namespace qarn
