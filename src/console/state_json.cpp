#include "console/state_json.h"

#include "console/answers_json.h"
#include "console/happenings_json.h"
#include "core/board_display.h"
#include "window/house_rules.h"

namespace qarn {
namespace {

using Json = nlohmann::ordered_json;

std::string_view WordOf(Buttons buttons) {
    switch (buttons) {
        case Buttons::YesNo:
            return "Yes/No";
        case Buttons::RetryCancel:
            return "Retry/Cancel";
        default:
            return "OK";
    }
}

Json BoxesJson(const std::vector<ShownBox>& boxes) {
    Json list = Json::array();
    for (const ShownBox& shown : boxes) {
        list.push_back({{"title", shown.box.Title},
                        {"text", shown.box.Text},
                        {"buttons", WordOf(shown.box.Offered)},
                        {"answer", WordOf(shown.answer)}});
    }
    return list;
}

// Index 0 exists in the record and is never used.
template <typename Array>
Json FromIndex1(const Array& values) {
    Json list = Json::array();
    for (std::size_t i = 1; i < values.size(); ++i) list.push_back(values[i]);
    return list;
}

Json TerrainJson(const GameRecord& record) {
    Json rows = Json::array();
    for (std::size_t Y = 1; Y <= rowCount; ++Y) {
        std::string row;
        for (std::size_t X = 1; X <= columnCount; ++X) {
            row += static_cast<char>('0' + record.bytTerrain[X][Y]);
        }
        rows.push_back(row);
    }
    return rows;
}

Json PeopleJson(const GameRecord& record) {
    Json list = Json::array();
    for (std::size_t i = 1; i <= peopleCount; ++i) {
        const PeopleRecord& people = record.People[i];
        list.push_back({{"Name", people.Name},
                        {"Code", people.Code},
                        {"Side", people.Side},
                        {"LocationX", people.LocationX},
                        {"LocationY", people.LocationY},
                        {"Mobility", people.Mobility},
                        {"Attack", people.Attack},
                        {"Defense", people.Defense},
                        {"Ability1", people.Ability1},
                        {"Ability2", people.Ability2}});
    }
    return list;
}

Json RecordJson(const GameRecord& record) {
    const auto selection = Selection(record);
    return {{"bytScenario", record.bytScenario},
            {"bytTurn", record.bytTurn},
            {"strPlayerName", FromIndex1(record.strPlayerName)},
            {"blnComputer", FromIndex1(record.blnComputer)},
            {"bytPeopleLeft", FromIndex1(record.bytPeopleLeft)},
            {"strGameName", record.strGameName},
            {"strGamePath", record.strGamePath},
            {"bytCurrentX", record.bytCurrentX},
            {"bytCurrentY", record.bytCurrentY},
            {"blnMoveMode", record.blnMoveMode},
            {"blnAttackMode", record.blnAttackMode},
            {"blnDetailsMode", record.blnDetailsMode},
            {"bytMobilityLeft", record.bytMobilityLeft},
            {"bytSelectedPeople", Json(std::vector<int>(selection.begin(), selection.end()))},
            {"bytTerrain", TerrainJson(record)},
            {"People", PeopleJson(record)}};
}

Json SquaresJson(const Game& game) {
    Json squares = Json::object();
    for (std::size_t X = 1; X <= columnCount; ++X) {
        for (std::size_t Y = 1; Y <= rowCount; ++Y) {
            const std::string caption =
                CaptionOfSquare(game, static_cast<int>(X), static_cast<int>(Y));
            if (!caption.empty()) squares[std::to_string(X) + "," + std::to_string(Y)] = caption;
        }
    }
    return squares;
}

Json ButtonJson(const Button& button) {
    return {{"caption", button.Caption}, {"enabled", button.Enabled}, {"visible", button.Visible}};
}

Json TerrainKeyJson(const Controls& controls) {
    Json list = Json::array();
    for (std::size_t code = 0; code < terrainKindCount; ++code) {
        const KeyLabel& label = controls.lblTerrKey[code];
        const Button& button = controls.cmdSeeTerDet[code];
        list.push_back({{"caption", label.Caption},
                        {"visible", label.Visible},
                        {"buttonCaption", button.Caption},
                        {"buttonEnabled", button.Enabled},
                        {"buttonVisible", button.Visible}});
    }
    return list;
}

Json CheckBoxesJson(const Controls& controls) {
    Json list = Json::array();
    for (std::size_t i = 1; i <= checkBoxCount; ++i) {
        const CheckBox& box = controls.chkItems[i];
        list.push_back({{"caption", box.Caption},
                        {"enabled", box.Enabled},
                        {"visible", box.Visible},
                        {"ticked", box.Value}});
    }
    return list;
}

Json MenuJson(const MenuState& menu) {
    return {{"enabled", menu.Enabled}, {"visible", menu.Visible}, {"checked", menu.Checked}};
}

Json MarkerJson(const Marker& marker) {
    return {{"left", marker.Left}, {"top", marker.Top}, {"visible", marker.Visible}};
}

void AddGame(Json& object, const Game& game) {
    const Controls& controls = game.controls;
    object["caption"] = controls.Caption;
    object["record"] = RecordJson(game.record);
    object["squares"] = SquaresJson(game);
    object["buttons"] = {{"cmdMove", ButtonJson(controls.cmdMove)},
                         {"cmdAttack", ButtonJson(controls.cmdAttack)},
                         {"cmdDoneSel", ButtonJson(controls.cmdDoneSel)},
                         {"cmdSquareDetails", ButtonJson(controls.cmdSquareDetails)}};
    object["terrainKey"] = TerrainKeyJson(controls);
    object["chkItems"] = CheckBoxesJson(controls);
    object["menus"] = {{"File", MenuJson(controls.File)},
                       {"mnuPeopleDetails", MenuJson(controls.mnuPeopleDetails)},
                       {"mnuConvertFile", MenuJson(controls.mnuConvertFile)},
                       {"mnuSummary", MenuJson(controls.mnuSummary)},
                       {"mnuTGF", MenuJson(controls.mnuTGF)},
                       {"mnuAbout", MenuJson(controls.mnuAbout)}};
    object["lblStatus"] = controls.lblStatus.Caption;
    object["lblDetailMore"] = controls.lblDetailMore.Caption;
    object["lblSummary"] = controls.lblSummary.Caption;
    object["lblTerrainDescription"] = controls.lblTerrainDescription.Caption;
    object["fraQuickDetails"] = MarkerJson(controls.fraQuickDetails);
    object["shpHighlight"] = MarkerJson(controls.shpHighlight);
    object["tmrAI"] = controls.tmrAI.Enabled;
    object["blnAIBusy"] = game.record.Action.blnAIBusy;
}

}  // namespace

nlohmann::ordered_json StateJson(const CommandOutcome& outcome, const Game& game) {
    Json object{{"ok", outcome.error.empty()},
                {"error", outcome.error},
                {"boxes", BoxesJson(outcome.boxes)},
                {"help", outcome.help},
                {"ended", game.blnEnded},
                {"open", game.blnOpen}};
    if (game.blnOpen) AddGame(object, game);
    object["happenings"] = HappeningsJson(outcome.happenings);
    object["level"] = FromIndex1(game.opponent);
    for (const HouseRule& rule : AllHouseRules()) {
        object["house"][std::string(rule.Name)] = game.record.house.*rule.Chosen;
    }
    AddAnswers(object, outcome.answers);
    return object;
}

std::string OneLine(const nlohmann::ordered_json& object) {
    return object.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace qarn
