#include <gtest/gtest.h>

#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "console/session.h"
#include "console/state_json.h"
#include "support/played_game.h"

namespace qarn {
namespace {

using Json = nlohmann::ordered_json;
using Row = std::vector<std::string>;
using Tables = std::map<std::string, std::vector<Row>>;
using Keys = std::set<std::string>;

// docs/protocol.md: the rows of the table under each heading, without the table's head.
Tables ReadPage() {
    Tables tables;
    std::istringstream page(ReadFile(QARN_TESTS_FOLDER "/../docs/protocol.md"));
    std::string heading;
    int line = 0;
    for (std::string text; std::getline(page, text);) {
        if (text.starts_with("#")) {
            heading = text.substr(text.find(' ') + 1);
            line = 0;
        } else if (text.starts_with("|") && ++line > 2) {
            Row& row = tables[heading].emplace_back();
            std::istringstream cells(text.substr(1));
            for (std::string cell; std::getline(cells, cell, '|');) row.push_back(cell);
        }
    }
    return tables;
}

// What stands between backticks.
std::vector<std::string> Quoted(const std::string& text) {
    std::vector<std::string> found;
    std::istringstream parts(text);
    for (std::string between, part; std::getline(parts, between, '`');) {
        if (std::getline(parts, part, '`')) found.push_back(part);
    }
    return found;
}

// Every pair of name and fewest and most words; "many" where there is no most.
Keys CommandsOfPage() {
    Keys commands;
    Tables page = ReadPage();
    for (const Row& row : page["Commands"]) {
        std::istringstream words(Quoted(row[0]).front());
        std::string name;
        int fewest = 0, most = 0;
        bool many = false, optional = false;
        words >> name;
        for (std::string word; words >> word;) {
            optional = optional || word.front() == '[';
            many = many || word.ends_with("...");
            fewest += optional ? 0 : 1;
            ++most;
        }
        commands.insert(name + " " + std::to_string(fewest) + " " +
                        (many ? "many" : std::to_string(most)));
    }
    return commands;
}

TEST(Protocol, ThePageHasEveryCommand) {
    Keys commands{"quit 0 0"};
    for (const Session::Command& command : Session::Commands()) {
        const bool many = command.mostWords > 99;
        commands.insert(std::string(command.name) + " " + std::to_string(command.fewestWords) +
                        " " + (many ? "many" : std::to_string(command.mostWords)));
    }
    EXPECT_EQ(CommandsOfPage(), commands);
}

// An object with everything in it that there can be.
Json FullObject(const Game& game) {
    CommandOutcome outcome;
    outcome.boxes.push_back({{.Title = "", .Text = "text"}, Answer::OK});
    outcome.happenings = {Moved{}, Attacked{}, Lost{}, Burned{}, Returned{}, TurnCame{}, Ended{}};
    static_assert(std::variant_size_v<Happening> == 7);
    outcome.answers.reach = {ReachedSquare{}};
    outcome.answers.odds = OddsAnswer{AttackOdds{}, AttackOdds{}};
    outcome.answers.journal = std::vector<std::string>{"line"};
    outcome.answers.hint = Hint{.plan = {}, .attack = Attacked{}, .sentence = {}};
    return StateJson(outcome, game);
}

// The keys of every object in it, by the path to that object. Alike are the objects of a list, and
// those that an object holds below the first level.
void CollectKeys(const Json& value, const std::string& path, std::map<std::string, Keys>& found) {
    if (value.is_array() && !value.empty()) CollectKeys(value.front(), path + "[]", found);
    if (!value.is_object() || path == "squares") return;
    for (const auto& [key, inner] : value.items()) {
        found[path].insert(key);
        CollectKeys(inner,
                    path.empty()        ? key
                    : inner.is_object() ? path + ".*"
                                        : path + "." + key,
                    found);
    }
}

TEST(Protocol, ThePageHasEveryKey) {
    const PlayedGame played("HM");
    Json object = FullObject(played.game);
    Keys happenings;
    for (const Json& one : object["happenings"]) {
        std::string keys = one["what"];
        for (const auto& [key, value] : one.items()) keys += key == "what" ? "" : " " + key;
        happenings.insert(keys);
    }
    object["happenings"] = Json::array();
    std::map<std::string, Keys> found;
    CollectKeys(object, "", found);

    std::map<std::string, Keys> told;
    Keys toldHappenings;
    const Tables page = ReadPage();
    for (const auto& [heading, rows] : page) {
        std::vector<std::string> paths = Quoted(heading);
        if (heading == "The object") paths = {""};
        for (const Row& row : rows) {
            for (const std::string& path : paths) {
                for (const std::string& key : Quoted(row[0])) told[path].insert(key);
            }
            if (heading != "Happenings") continue;
            std::string keys = Quoted(row[0]).front();
            for (const std::string& key : Quoted(row[1])) keys += " " + key;
            toldHappenings.insert(keys);
        }
    }
    EXPECT_EQ(told, found);
    EXPECT_EQ(toldHappenings, happenings);
}

}  // namespace
}  // namespace qarn
