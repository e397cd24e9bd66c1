#pragma once

#include "scenarios/scenario_data.h"

namespace qarn {

struct Game;

/// The data of scenario 1 to 12. Throws std::out_of_range for another number.
const ScenarioData& DataOfScenario(int scenario);

/// Writes the starting position of bytScenario into an empty record: roster, terrain, landmark
/// kinds with their rows of the terrain key, groups left, and victory texts. Does nothing when
/// bytScenario is not 1 to 12.
void SetupScenario(Game& game);

/// Sets terrain kind 7 up as the mountain fortress Stonemantle and shows its row of the terrain
/// key. `blnOnly` means that the scenario has no abbey: its row is then hidden, otherwise shown.
void SetStonemantleTerrain(Game& game, bool blnOnly);

/// Sets terrain kind 8 up as the abbey and shows its row of the terrain key. `blnOnly` means that
/// the scenario has no fortress: the fortress's row is then hidden and the abbey's takes its
/// place, otherwise the fortress's is shown.
void SetAbbeyTerrain(Game& game, bool blnOnly);

}  // namespace qarn
