#pragma once

namespace qarn {

// Where the squares of the board stand in the design of the game window, in twips (15 to a pixel)
// of its client area.

/// The left edge of column 1 and the top edge of row 1.
inline constexpr int boardLeftTwips = 120;
inline constexpr int boardTopTwips = 120;

/// From a square to its neighbour.
inline constexpr int columnTwips = 720;
inline constexpr int rowTwips = 960;

/// A square's size; its lines are those of its neighbours too.
inline constexpr int squareWidthTwips = 735;
inline constexpr int squareHeightTwips = 975;

/// The size of the quick information, which stands beside a square.
inline constexpr int quickInfoWidthTwips = 1575;
inline constexpr int quickInfoHeightTwips = 1215;

/// The left edge of column X, from 1.
constexpr int LeftOfColumn(int X) { return boardLeftTwips + columnTwips * (X - 1); }

/// The top edge of row Y, from 1.
constexpr int TopOfRow(int Y) { return boardTopTwips + rowTwips * (Y - 1); }

}  // namespace qarn
