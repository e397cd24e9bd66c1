#pragma once

namespace qarn {

struct Game;
enum class Speed;

/// How long a stage of an opponent's action, and a box that it answers, stays on the screen, in
/// milliseconds. Classic does not know it.
int MillisecondsOf(Speed speed);

/// Sets the speed from the person's setting; a second when there is none.
void LoadSpeed(Game& game);

/// Stores the speed that the person likes, and sets it again from the setting. A setting that can
/// not be stored is reported in a box.
void ChooseSpeed(Game& game, Speed speed);

}  // namespace qarn
