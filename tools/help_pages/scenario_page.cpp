#include "help_pages/scenario_page.h"

#include <algorithm>
#include <memory>
#include <set>
#include <vector>

#include "help_pages/html.h"
#include "help_pages/trial_game.h"
#include "rules/step.h"
#include "rules/terrain.h"
#include "scenarios/catalogue.h"
#include "scenarios/setup.h"

namespace qarn {
namespace {

std::string SquareText(int X, int Y) {
    return "(" + std::to_string(X) + ", " + std::to_string(Y) + ")";
}

std::string PictureTag(const std::string& name, const std::string& description) {
    return "<img src=\"pictures/" + name + ".png\" alt=\"" + description + "\">";
}

std::string TerrainName(const Game& game, std::uint8_t code) {
    return Escape(game.controls.lblTerrKey.at(code).Caption);
}

std::string TerrainNameAt(const Game& game, const PeopleRecord& people) {
    return TerrainName(game, game.record.bytTerrain[people.LocationX][people.LocationY]);
}

std::string SpecialMovement(const PeopleRecord& people) {
    const std::string link = "<a href=\"SpecialMovers.htm\">";
    if (people.Ability1 == 0) return "&ndash;";
    if (people.Ability1 / 100 == 9) return link + "climbs</a>";
    if (!IsBird(people)) return link + "flies</a>, but not over water";
    return link + (people.Kind == GroupKind::LeadingBird ? "flies and guides</a>" : "flies</a>");
}

std::vector<std::uint8_t> PeopleOfSide(const GameRecord& record, std::uint8_t side) {
    std::vector<std::uint8_t> people;
    for (std::uint8_t i = 1; i <= peopleCount; ++i) {
        if (record.People[i].Side == side) people.push_back(i);
    }
    return people;
}

std::string GroupTable(const Game& game, std::uint8_t side) {
    const GameRecord& record = game.record;
    const std::vector<std::uint8_t> people = PeopleOfSide(record, side);
    std::string rows = Row(
        {"Code", "Group", "Mobility", "Attack", "Defense", "Special movement", "Starts on"}, "th");
    for (const std::uint8_t i : people) {
        const PeopleRecord& group = record.People[i];
        rows += Row({"<b>" + Escape(group.Code.substr(0, group.Code.find(' '))) + "</b>",
                     "<td class=\"text\">" + Escape(group.Name) + "</td>",
                     std::to_string(group.Mobility), std::to_string(group.Attack),
                     std::to_string(group.Defense), SpecialMovement(group),
                     "<td class=\"text\">" + SquareText(group.LocationX, group.LocationY) + " " +
                         TerrainNameAt(game, group) + "</td>"});
    }
    Strength sums;
    SumStrength(record, people, sums);
    rows += Row({"", "<td class=\"text\"><i>Together</i></td>", std::to_string(sums.Mobility),
                 std::to_string(sums.Attack), std::to_string(sums.Defense), "&nbsp;", "&nbsp;"});
    return Table("numbers", rows);
}

// Who stands where a boat or the cart does.
std::string Companions(const GameRecord& record, const PeopleRecord& piece) {
    std::string names;
    const SquareList there = LocationOfPeople(record, piece.LocationX, piece.LocationY);
    for (const std::uint8_t i : there.People()) {
        const PeopleRecord& people = record.People[i];
        if (IsTransport(people)) continue;
        names += (names.empty() ? "" : ", ") + Escape(people.Name);
        if (people.Code.find_first_of("123456789") != people.Code.npos) {
            names += " (" + Escape(people.Code.substr(0, people.Code.find(' '))) + ")";
        }
    }
    return names.empty() ? "nobody" : names;
}

std::string Strengths(const PeopleRecord& piece) {
    if (piece.Mobility + piece.Attack + piece.Defense == 0) return "none";
    return std::to_string(piece.Mobility) + " / " + std::to_string(piece.Attack) + " / " +
           std::to_string(piece.Defense);
}

std::string TransportTable(const Game& game) {
    std::string rows =
        Row({"Code", "Piece", "Mobility / attack / defense", "Starts on", "With"}, "th");
    for (const std::uint8_t i : PeopleOfSide(game.record, 0)) {
        const PeopleRecord& piece = game.record.People[i];
        rows += Row({"<b>" + std::string(piece.Code.substr(0, 2)) + "</b>", Escape(piece.Name),
                     Strengths(piece),
                     "<td class=\"text\">" + SquareText(piece.LocationX, piece.LocationY) + " " +
                         TerrainNameAt(game, piece) + "</td>",
                     "<td class=\"text\">" + Companions(game.record, piece) + "</td>"});
    }
    return Table("numbers", rows);
}

std::string SquaresOfTerrain(const GameRecord& record, std::uint8_t code) {
    std::string squares;
    for (int Y = 1; Y <= rowCount; ++Y) {
        for (int X = 1; X <= columnCount; ++X) {
            if (record.bytTerrain[static_cast<std::size_t>(X)][static_cast<std::size_t>(Y)] !=
                code) {
                continue;
            }
            squares += (squares.empty() ? "" : ", ") + SquareText(X, Y);
        }
    }
    return squares;
}

std::string BurningText(const Game& game, std::uint8_t code) {
    if (code == Abbey) return "by the Attack command, to plain";
    return game.record.blnFortressBurns ? "by any attack, to sand" : "never";
}

std::string LandmarkTable(const Game& game) {
    std::string rows;
    for (const std::uint8_t code : {Fortress, Abbey}) {
        if (!game.controls.lblTerrKey[code].Visible) continue;
        const TerrainColors colors = ColorsOfTerrain(code);
        rows += Row({InColors(colors.BackColor, colors.ForeColor, TerrainName(game, code)),
                     SquaresOfTerrain(game.record, code),
                     "+" + std::to_string(game.record.TerrainKinds[code].Defense),
                     BurningText(game, code)});
    }
    if (rows.empty()) return "<p>There is no landmark on this board.</p>\n";
    return Table("numbers",
                 Row({"Landmark", "Squares", "Defense units", "Burns down"}, "th") + rows);
}

// The terrains of this board in their colours.
std::string TerrainKey(const Game& game) {
    std::set<std::uint8_t> codes;
    for (std::size_t X = 1; X <= columnCount; ++X) {
        for (std::size_t Y = 1; Y <= rowCount; ++Y) codes.insert(game.record.bytTerrain[X][Y]);
    }
    std::string cells;
    for (const std::uint8_t code : codes) {
        const TerrainColors colors = ColorsOfTerrain(code);
        cells += InColors(colors.BackColor, colors.ForeColor, TerrainName(game, code));
    }
    return Table("key", "<tr>" + cells + "</tr>\n");
}

std::string LinkTo(int scenario) {
    return "<a href=\"" + ScenarioPageName(scenario) + "\">" +
           Escape(NamesOfScenario(scenario).ListTitle) + "</a>";
}

std::string Neighbours(int scenario) {
    std::string links;
    if (scenario > 1) links += "Previous: " + LinkTo(scenario - 1) + " &nbsp; ";
    links += "<a href=\"details.htm\">All scenarios</a>";
    if (scenario < scenarioCount) links += " &nbsp; Next: " + LinkTo(scenario + 1);
    return links;
}

std::string NamesOfLandmarks(const Game& game) {
    std::string names;
    for (const std::uint8_t code : {Fortress, Abbey}) {
        if (!game.controls.lblTerrKey[code].Visible) continue;
        names += (names.empty() ? "" : "<br>") + TerrainName(game, code);
    }
    return names.empty() ? "none" : names;
}

std::string CountOf(const GameRecord& record, std::string_view name) {
    return std::to_string(std::count_if(record.People.begin() + 1, record.People.end(),
                                        [&](const auto& people) { return people.Name == name; }));
}

}  // namespace

std::string ScenarioPageName(int scenario) {
    return std::string(NamesOfScenario(scenario).Code) + "details.htm";
}

Fillers ScenarioFillers(int scenario) {
    const ScenarioNames& names = NamesOfScenario(scenario);
    const ScenarioData& data = DataOfScenario(scenario);
    const auto game = std::make_shared<TrialGame>(scenario);
    const auto text = [](std::string html) {
        return [html = std::move(html)](const std::string&) { return html; };
    };
    return {
        {"title", text(Escape(names.ListTitle))},
        {"code", text(std::string(names.Code))},
        {"story", text(Escape(data.Background))},
        {"board", text(PictureTag("board-" + std::string(names.Code),
                                  "The board of " + Escape(names.ListTitle)))},
        {"key", text(TerrainKey(game->game))},
        {"landmarks", text(LandmarkTable(game->game))},
        {"groups",
         [game](const std::string& side) {
             return GroupTable(game->game, static_cast<std::uint8_t>(std::stoi(side)));
         }},
        {"transport", text(TransportTable(game->game))},
        {"neighbours", text(Neighbours(scenario))},
    };
}

std::string ScenarioOverview() {
    std::string rows = Row({"Board", "Scenario", "Groups", "Boats", "Landmarks"}, "th");
    for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
        const TrialGame trial(scenario);
        const GameRecord& record = trial.game.record;
        const std::string code(NamesOfScenario(scenario).Code);
        const std::string cart = CountOf(record, "Cart") == "0" ? "" : ", a cart";
        rows += Row({"<a href=\"" + ScenarioPageName(scenario) + "\">" +
                         PictureTag("small-" + code, "") + "</a>",
                     "<td class=\"text\"><b>" + LinkTo(scenario) + "</b><br>" +
                         Escape(DataOfScenario(scenario).Background) + "</td>",
                     std::to_string(record.bytPeopleLeft[1]) + " against " +
                         std::to_string(record.bytPeopleLeft[2]),
                     CountOf(record, "Boat") + cart, NamesOfLandmarks(trial.game)});
    }
    return Table("numbers", rows);
}

std::string ScenarioContents() {
    std::string entries;
    for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
        entries += "<LI><OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"" +
                   Escape(NamesOfScenario(scenario).ListTitle) +
                   "\"><param name=\"Local\" value=\"" + ScenarioPageName(scenario) +
                   "\"></OBJECT>\n";
    }
    return entries;
}

}  // namespace qarn
