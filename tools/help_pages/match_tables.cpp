#include "help_pages/match_tables.h"

#include <cstdio>
#include <fstream>
#include <functional>
#include <nlohmann/json.hpp>

#include "help_pages/fill.h"
#include "help_pages/html.h"
#include "help_pages/scenario_page.h"
#include "scenarios/balance.h"
#include "scenarios/catalogue.h"

namespace qarn {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

// What `tell` makes of a record.
std::string OfRecord(const fs::path& path, const std::function<std::string(const json&)>& tell) {
    std::ifstream stream(path);
    if (!stream) throw PageError(path.string() + ": can not be read");
    try {
        return tell(json::parse(stream));
    } catch (const std::exception& error) {
        throw PageError(path.string() + ": " + error.what());
    }
}

std::string Percent(double share) {
    char text[16];
    std::snprintf(text, sizeof text, "%.1f", 100 * share);
    return text;
}

// A share with the interval that it lies in.
std::string ShareText(const json& share) {
    return "<b>" + Percent(share.at("value").get<double>()) + "</b> (" +
           Percent(share.at("low").get<double>()) + " to " +
           Percent(share.at("high").get<double>()) + ")";
}

std::string Number(const json& number) { return std::to_string(number.get<int>()); }

std::string StrengthRow(const std::string& name, const json& record) {
    const json& all = record.at("all");
    return Row({"<td class=\"text\">" + name + "</td>", Number(all.at("games")),
                Number(record.at("mostTurns")), ShareText(all.at("judged")),
                Number(all.at("drawn"))});
}

const json& ResultOf(const json& record, std::string_view code) {
    for (const json& result : record.at("scenarios")) {
        if (result.at("scenario") == code) return result;
    }
    throw PageError("no games of " + std::string(code));
}

std::string BalanceRow(const json& record, int scenario) {
    const ScenarioNames& names = NamesOfScenario(scenario);
    const json& result = ResultOf(record, names.Code);
    const json& firstSide = result.at("firstSide");
    return Row({"<td class=\"text\"><a href=\"" + ScenarioPageName(scenario) + "\">" +
                    Escape(names.ListTitle) + "</a></td>",
                Number(result.at("games")), ShareText(firstSide),
                BalanceWord(firstSide.at("value").get<double>())});
}

}  // namespace

std::string StrengthTable(const fs::path& matches) {
    std::string rows =
        Row({"Match", "Games", "Turns at most", "Score in % (95% interval)", "Drawn"}, "th");
    for (const auto& [file, name] :
         {std::pair{"scout-random", "Scout against random turns"},
          std::pair{"captain-classic",
                    "Captain against Classic, which passes where it finds nothing"},
          std::pair{"captain-scout", "Captain against Scout"},
          std::pair{"warlord-captain", "Warlord against Captain"}}) {
        rows += OfRecord(matches / (std::string(file) + ".json"),
                         [&name = name](const json& record) { return StrengthRow(name, record); });
    }
    return Table("numbers", rows);
}

std::string BalanceTable(const fs::path& matches) {
    return OfRecord(matches / "captain-captain.json", [](const json& record) {
        std::string rows = Row(
            {"Scenario", "Games", "Share of the goodbeasts in % (95% interval)", "Stand"}, "th");
        for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
            rows += BalanceRow(record, scenario);
        }
        return Table("numbers", rows);
    });
}

}  // namespace qarn
