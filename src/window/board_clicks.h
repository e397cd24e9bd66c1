#pragma once

namespace qarn {

struct Game;

/// A click on the square in column X (1 to 18), row Index (1 to 10). Does nothing while a casualty
/// is to be chosen, except in details mode.
void lblX_Click(Game& game, int X, int Index);

/// Hands the click on the current square to square information, movement or combat.
void SquareClicked(Game& game);

/// Shows what stands on square (X, Y) and, while square summaries are on, its strengths.
void DescribeSquare(Game& game, int X, int Y);

/// Puts the quick information beside the current square and shows it.
void PositionQuickInfo(Game& game);

/// The menu item Details > Details: turns square information on or off.
void mnuPeopleDetails_Click(Game& game);

/// The button "Square &Information", which does the same.
void cmdSquareDetails_Click(Game& game);

}  // namespace qarn
