#pragma once

#include <cstdint>

namespace qarn {

struct Game;

/// The button "&Move" / "Done &Moving": enters move mode, or ends the move and passes the turn. A
/// bird that would end on water goes back to where it started, and its side keeps the turn.
void cmdMove_Click(Game& game);

/// A click on the current square in move mode: names the starting square, or takes one step. With
/// `blnReturnToStart` the selected bird goes back to the starting square instead.
void MoveClick(Game& game, bool blnReturnToStart);

/// The button "Done &Selecting": confirms the ticked check boxes, as the people who move or, while
/// a casualty choice is pending, as the character that died.
void cmdDoneSel_Click(Game& game);

/// Confirms the ticked groups as cmdDoneSel does, then shows the mobility units on the status line.
void ShowMobility(Game& game, std::uint8_t units);

}  // namespace qarn
