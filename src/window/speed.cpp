#include "window/speed.h"

#include <array>
#include <string>

#include "core/game.h"
#include "shell/user_settings.h"

namespace qarn {
namespace {

const std::string speedSection = "Speed";

struct SpeedSetting {
    Speed speed;
    const char* value;
    int milliseconds;
};

constexpr std::array speeds{SpeedSetting{Speed::Second, "Second", 1000},
                            SpeedSetting{Speed::Third, "Third", 333},
                            SpeedSetting{Speed::AtOnce, "AtOnce", 0}};

const SpeedSetting& SettingOf(Speed speed) { return speeds.at(static_cast<std::size_t>(speed)); }

}  // namespace

int MillisecondsOf(Speed speed) { return SettingOf(speed).milliseconds; }

void LoadSpeed(Game& game) {
    game.speed = Speed::Second;
    const std::string value = ReadSetting(game.ports, speedSection, "");
    for (const SpeedSetting& one : speeds) {
        if (value == one.value) game.speed = one.speed;
    }
}

void ChooseSpeed(Game& game, Speed speed) {
    StoreSetting(game.ports, speedSection, SettingOf(speed).value);
    LoadSpeed(game);
}

}  // namespace qarn
