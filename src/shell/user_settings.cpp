#include "shell/user_settings.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>

#include "core/game.h"

namespace qarn {
namespace {

const std::string application = "QARN";
const std::string summarySection = "Summary";

std::string FourDigits(int number) {
    const std::string digits = std::to_string(number);
    return std::string(4 - digits.size(), '0') + digits;
}

}  // namespace

std::string GetUserKey(const std::string& loginName) {
    std::string key;
    for (const char character : loginName) {
        key += FourDigits(static_cast<std::uint8_t>(character) * 5);
    }
    std::reverse(key.begin(), key.end());
    return key;
}

std::string ReadSetting(const Ports& ports, const std::string& section,
                        const std::string& defaultValue) {
    SettingsStore& settings = ports.settings;
    return settings.Read(application, section, GetUserKey(settings.LoginName()), defaultValue);
}

void StoreSetting(const Ports& ports, const std::string& section, const std::string& value) {
    SettingsStore& settings = ports.settings;
    try {
        settings.Write(application, section, GetUserKey(settings.LoginName()), value);
    } catch (const std::runtime_error& error) {
        ports.dialogs.Tell("The setting can not be stored: " + std::string(error.what()));
    }
}

void LoadSummarySetting(Game& game) {
    game.controls.mnuSummary.Checked = ReadSetting(game.ports, summarySection, "True") != "False";
}

void SaveSummarySetting(Game& game, bool blnChecked) {
    StoreSetting(game.ports, summarySection, blnChecked ? "True" : "False");
    LoadSummarySetting(game);
}

}  // namespace qarn
