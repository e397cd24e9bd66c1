#pragma once

#include <QImage>

#include "scenarios/scenario_data.h"

namespace qarn {

/// The board at the start, with the codes of everyone on it and the numbers of columns and rows.
/// `ratio` is the number of pixels for one of the picture's usual size: 1 or 2.
QImage DrawBoard(const ScenarioData& data, int ratio);

/// The board alone, small.
QImage DrawThumbnail(const ScenarioData& data, int ratio);

/// A chip as it stands for a group of side 1 or 2, or for a transport piece (0), on the board.
QImage DrawChip(std::uint8_t side, const QString& code, int ratio);

}  // namespace qarn
