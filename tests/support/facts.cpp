#include "support/facts.h"

#include <sstream>

#include "core/board_display.h"
#include "support/temp_folder.h"

namespace qarn {
namespace {

std::string Pair(int first, int second) {
    return std::to_string(first) + "," + std::to_string(second);
}

std::string OnOff(bool on) { return on ? "on" : "off"; }

std::string ButtonFact(const Button& button) {
    const std::string caption(button.Caption);
    if (!button.Visible) return "hidden";
    return button.Enabled ? "[" + caption + "]" : "(" + caption + ")";
}

std::string ItemsFact(const Controls& controls) {
    std::string items;
    for (const CheckBox& box : controls.chkItems) {
        const std::string mark = box.Value ? "x" : " ";
        if (!box.Visible) continue;
        items += (box.Enabled ? "[" + mark + "]" : "(" + mark + ")").append(box.Caption);
    }
    return items.empty() ? "none" : "<" + items + ">";
}

std::string ModesFact(const GameRecord& record) {
    const std::string modes = std::string(record.blnDetailsMode ? "+details" : "") +
                              (record.blnMoveMode ? "+move" : "") +
                              (record.blnAttackMode ? "+attack" : "");
    return modes.empty() ? "none" : modes.substr(1);
}

std::string HouseFact(const HouseRules& house) {
    return std::string(house.ownGroupsOnly ? "ownGroups" : "") +
           (house.oneTurnForABurning ? "+oneTurnForBurning" : "");
}

std::string ComputersFact(const GameRecord& record) {
    return std::string(record.blnComputer[1] ? "1" : "") + (record.blnComputer[2] ? "2" : "");
}

std::string WindowFact(const Game& game) {
    if (game.blnEnded) return "ended with " + std::to_string(game.exitStatus);
    return game.blnOpen ? "open" : "closed";
}

// Scenario and side to move.
std::string FileFact(const std::string& path) {
    std::istringstream file(ReadFile(path));
    std::string code, player, turn;
    file >> code;
    for (int line = 1; line <= 3; ++line) std::getline(file, player);
    file >> turn;
    return code.empty() ? "none" : code + turn;
}

std::string MenuFact(const MenuState& menu, bool checkable) {
    std::string text = checkable ? (menu.Checked ? "checked" : "unchecked") : OnOff(menu.Enabled);
    if (checkable && !menu.Enabled) text += " off";
    return menu.Visible ? text : "hidden";
}

std::string MarkerFact(const Marker& marker) {
    return marker.Visible ? Pair(marker.Left, marker.Top) : "hidden";
}

// A row of the terrain key with its button, and where they stand when that is no place of the
// design.
std::string KeyFact(const Controls& controls, std::size_t code) {
    const KeyLabel& label = controls.lblTerrKey[code];
    const Button& button = controls.cmdSeeTerDet[code];
    const int place = TerrKeyTop(static_cast<int>(code));
    std::string text = (label.Visible ? std::string(label.Caption) : "hidden") + ButtonFact(button);
    if (label.Top != place) text += " at " + std::to_string(label.Top);
    if (button.Top != label.Top) text += " and " + std::to_string(button.Top);
    return text;
}

std::string DescriptionFact(const Label& description) {
    if (!description.Visible) return "hidden";
    return std::to_string(description.Top) + ": " + Replaced(description.Caption, "\n", " / ");
}

}  // namespace

std::vector<Fact> FactsOf(const Game& game) {
    const GameRecord& record = game.record;
    const Controls& controls = game.controls;
    std::vector<Fact> facts;
    for (std::uint8_t X = 1; X <= columnCount; ++X) {
        for (std::uint8_t Y = 1; Y <= rowCount; ++Y) {
            const std::string square = Pair(X, Y);
            facts.push_back({"@", square, '"' + CaptionOfSquare(game, X, Y) + '"'});
            facts.push_back({"@", "terrain of " + square, std::to_string(record.bytTerrain[X][Y])});
        }
    }
    const char* focus[] = {"-", "cmdMove", "chkFirst"};
    for (const Fact& fact : {
             Fact{"@", "turn", std::to_string(record.bytTurn)},
             Fact{"@", "left", Pair(record.bytPeopleLeft[1], record.bytPeopleLeft[2])},
             Fact{"@", "scenario", std::to_string(record.bytScenario)},
             Fact{"@", "name", record.strGameName},
             Fact{"@", "file", FileFact(record.strGamePath)},
             Fact{"@", "house", HouseFact(record.house)},
             Fact{"@", "computers", ComputersFact(record)},
             Fact{"#", "window", WindowFact(game)},
             Fact{"#", "caption", controls.Caption},
             Fact{"#", "mode", ModesFact(record)},
             Fact{"#", "cmdMove", ButtonFact(controls.cmdMove)},
             Fact{"#", "cmdAttack", ButtonFact(controls.cmdAttack)},
             Fact{"#", "cmdDoneSel", ButtonFact(controls.cmdDoneSel)},
             Fact{"#", "items", ItemsFact(controls)},
             Fact{"#", "cmdSquareDetails", ButtonFact(controls.cmdSquareDetails)},
             Fact{"#", "File", MenuFact(controls.File, false)},
             Fact{"#", "Details", MenuFact(controls.mnuPeopleDetails, true)},
             Fact{"#", "mnuSummary", MenuFact(controls.mnuSummary, true)},
             Fact{"#", "mnuTGF", MenuFact(controls.mnuTGF, true)},
             Fact{"#", "mnuConvertFile", MenuFact(controls.mnuConvertFile, false)},
             Fact{"#", "mnuAbout", MenuFact(controls.mnuAbout, false)},
             Fact{"#", "timer", OnOff(controls.tmrAI.Enabled)},
             Fact{"#", "action", OnOff(record.Action.blnAIBusy)},
             Fact{"#", "hint", game.blnHintWanted ? "wanted" : "not wanted"},
             Fact{"#", "highlight", MarkerFact(controls.shpHighlight)},
             Fact{"#", "description", DescriptionFact(controls.lblTerrainDescription)},
             Fact{"#", "info", controls.lblDetailMore.Caption},
             Fact{"#", "summary", Replaced(controls.lblSummary.Caption, "\n", " / ")},
             Fact{"#", "frame", MarkerFact(controls.fraQuickDetails)},
             Fact{"#", "focus", focus[static_cast<int>(controls.SetFocus)]},
         }) {
        facts.push_back(fact);
    }
    for (std::size_t code = 0; code < terrainKindCount; ++code) {
        facts.push_back({"#", "key " + std::to_string(code), KeyFact(controls, code)});
    }
    return facts;
}

std::string Changes(const std::string& sign, const std::vector<Fact>& before,
                    const std::vector<Fact>& after) {
    std::string text;
    for (std::size_t i = 0; i < after.size(); ++i) {
        if (after[i].sign != sign || after[i].value == before[i].value) continue;
        text += " " + after[i].name + "=" + after[i].value;
    }
    return text.empty() ? text : sign + text + "\n";
}

}  // namespace qarn
