#include "shell/user_settings.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>

namespace qarn {
namespace {

const std::string application = "QARN";
const std::string summarySection = "Summary";

std::string FourDigits(int number) {
    const std::string digits = std::to_string(number);
    return std::string(4 - digits.size(), '0') + digits;
}

std::string UserKey(const Game& game) { return GetUserKey(game.ports.settings.LoginName()); }

}  // namespace

std::string GetUserKey(const std::string& loginName) {
    std::string key;
    for (const char character : loginName) {
        key += FourDigits(static_cast<std::uint8_t>(character) * 5);
    }
    std::reverse(key.begin(), key.end());
    return key;
}

void LoadSummarySetting(Game& game) {
    const std::string value =
        game.ports.settings.Read(application, summarySection, UserKey(game), "True");
    game.controls.mnuSummary.Checked = value != "False";
}

void SaveSummarySetting(Game& game, bool blnChecked) {
    try {
        game.ports.settings.Write(application, summarySection, UserKey(game),
                                  blnChecked ? "True" : "False");
    } catch (const std::runtime_error& error) {
        game.ports.dialogs.Tell("The setting can not be stored: " + std::string(error.what()));
    }
    LoadSummarySetting(game);
}

}  // namespace qarn
