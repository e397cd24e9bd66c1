#pragma once

#include <string>

#include "core/game.h"

namespace qarn {

/// The key under which the settings of the person with this login name are stored.
std::string GetUserKey(const std::string& loginName);

/// Sets the check mark of mnuSummary from the person's setting; checked when there is none.
void LoadSummarySetting(Game& game);

/// Stores whether square summaries are shown, and sets the check mark again from the setting. A
/// setting that cannot be stored is told in a box.
void SaveSummarySetting(Game& game, bool blnChecked);

}  // namespace qarn
