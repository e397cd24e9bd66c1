#include "help_pages/rule_tables.h"

#include <array>
#include <map>

#include "core/position.h"
#include "help_pages/html.h"
#include "help_pages/trial_game.h"
#include "rules/questions/odds.h"
#include "rules/questions/step.h"
#include "rules/terrain.h"
#include "scenarios/catalogue.h"

namespace qarn {
namespace {

constexpr std::int16_t climbing1 = 961;
constexpr std::int16_t climbing2 = 602;
constexpr std::int16_t flying1 = 811;

std::string Percent(int ofFive) { return std::to_string(ofFive * 20) + "%"; }

// "1 to 3", "2", or a dash when no number of the die does it.
std::string Numbers(int first, int last) {
    if (last < first) return "&ndash;";
    if (last == first) return std::to_string(first);
    return std::to_string(first) + " to " + std::to_string(last);
}

// What an attack comes to that has so many attack units more than the enemy has defense units.
struct Prospect {
    Odds odds;
    bool asksFirst = false;

    friend bool operator==(const Prospect&, const Prospect&) = default;
};

Prospect ProspectOf(int difference) {
    constexpr int defense = 20;
    const int attack = defense + difference;
    return {OddsOf(attack, defense), AreOddsBad(attack, defense)};
}

std::string OddsRow(const std::string& difference, const Prospect& prospect) {
    const Odds& odds = prospect.odds;
    const int tie = odds.win + odds.tie;
    return Row({difference, Numbers(1, odds.win), Numbers(odds.win + 1, tie),
                Numbers(tie + 1, dieSides), Percent(odds.win), Percent(odds.tie),
                Percent(odds.lose), prospect.asksFirst ? "yes" : "no"});
}

std::string DifferenceText(int first, int last, int lowest, int highest) {
    if (first == lowest) return std::to_string(last) + " or less";
    if (last == highest) return std::to_string(first) + " or more";
    if (first == last) return std::to_string(first);
    return std::to_string(first) + " or " + std::to_string(last);
}

// A kind of terrain as one row of the table knows it. Fortresses differ from scenario to scenario.
struct TerrainRow {
    std::uint8_t code;
    std::string name;
    TerrainKindRecord kind;
};

std::vector<TerrainRow> TerrainRows() {
    std::vector<TerrainRow> rows;
    const TrialGame plain;
    for (std::uint8_t code = Plain; code <= Forest; ++code) {
        rows.push_back({code, std::string(plain.game.controls.lblTerrKey[code].Caption),
                        plain.game.record.TerrainKinds[code]});
    }
    std::map<std::string, TerrainRow> landmarks;
    for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
        const TrialGame trial(scenario);
        for (const std::uint8_t code : {Fortress, Abbey}) {
            const KeyLabel& key = trial.game.controls.lblTerrKey[code];
            const TerrainKindRecord& kind = trial.game.record.TerrainKinds[code];
            if (key.Visible)
                landmarks[std::to_string(code).append(key.Caption)] = {
                    code, std::string(key.Caption), kind};
        }
    }
    for (const auto& [order, row] : landmarks) rows.push_back(row);
    return rows;
}

std::string YesNo(bool value) { return value ? "yes" : "no"; }

}  // namespace

std::string OddsTable() {
    constexpr int lowest = -3;
    constexpr int highest = 15;
    std::string rows = Row({"Attack minus defense", "You win on", "Tie on", "You lose on", "Win",
                            "Tie", "Lose", "Asks first"},
                           "th");
    int first = lowest;
    for (int difference = lowest; difference <= highest; ++difference) {
        const Prospect prospect = ProspectOf(difference);
        if (difference < highest && ProspectOf(difference + 1) == prospect) continue;
        rows += OddsRow(DifferenceText(first, difference, lowest, highest), prospect);
        first = difference + 1;
    }
    return Table("numbers", rows);
}

std::string TerrainTable() {
    std::string rows = Row({"Terrain", "Mobility", "Attack", "Defense", "Attack command",
                            "Needs a boat", "The key&rsquo;s comment"},
                           "th");
    for (const TerrainRow& row : TerrainRows()) {
        const TerrainColors colors = ColorsOfTerrain(row.code);
        rows += Row({InColors(colors.BackColor, colors.ForeColor, Escape(row.name)),
                     std::to_string(row.kind.Mobility), std::to_string(row.kind.Attack),
                     std::to_string(row.kind.Defense), YesNo(row.kind.IndirectAttack),
                     YesNo(row.kind.NeedsBoat),
                     "<td class=\"text\">" + Escape(row.kind.Comments) + "</td>"});
    }
    return Table("numbers", rows);
}

std::string SpecialMoverTable() {
    std::string rows = Row({"Step onto", "Ordinary group, or any company", "Climbing group alone",
                            "Flying group alone"},
                           "th");
    const TrialGame trial(ScenarioNumber("TQM"));  // has all kinds of terrain
    const auto cost = [&](std::int16_t Ability1, std::int16_t Ability2, std::uint8_t code) {
        Position position = PositionOf(trial.game.record);
        position.People[1].Ability1 = Ability1;
        position.People[1].Ability2 = Ability2;
        return std::to_string(StepCost(position, {1}, code));
    };
    for (std::uint8_t code = Plain; code <= Abbey; ++code) {
        const TerrainColors colors = ColorsOfTerrain(code);
        const std::string_view name = code == Fortress ? "Fortress"
                                      : code == Abbey
                                          ? "Abbey"
                                          : trial.game.controls.lblTerrKey[code].Caption;
        rows += Row({InColors(colors.BackColor, colors.ForeColor, name), cost(0, 0, code),
                     cost(climbing1, climbing2, code), cost(flying1, 0, code)});
    }
    return Table("numbers", rows);
}

}  // namespace qarn
