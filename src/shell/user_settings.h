#pragma once

#include <string>

namespace qarn {

struct Game;
struct Ports;

/// The key under which the settings of the person with this login name are stored.
std::string GetUserKey(const std::string& loginName);

/// The person's setting of this section of the program's; `defaultValue` when there is none.
std::string ReadSetting(const Ports& ports, const std::string& section,
                        const std::string& defaultValue);

/// Stores the person's setting of this section. A failure is reported in a box.
void StoreSetting(const Ports& ports, const std::string& section, const std::string& value);

/// Sets the check mark of mnuSummary from the person's setting; checked when there is none.
void LoadSummarySetting(Game& game);

/// Stores whether square summaries are shown, and sets the check mark again from the setting. A
/// setting that cannot be stored is reported in a box.
void SaveSummarySetting(Game& game, bool blnChecked);

}  // namespace qarn
