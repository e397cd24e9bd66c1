#include "scenarios/catalogue.h"

#include <array>

namespace qarn {
namespace {

constexpr std::array<ScenarioNames, scenarioCount> catalogue{{
    {"SB", "The Saltbrook", "The Saltbrook"},
    {"SKF", "The Song of Kestrel Ford", "The Song Of Kestrel Ford"},
    {"DW", "Duskwater", "Duskwater"},
    {"TQM", "The Quiet Marches", "The Quiet Marches"},
    {"CF", "Cinderfell", "Cinderfell"},
    {"WR", "Wren's Return", "Wren's Return"},
    {"HM", "Hollowmere", "Hollowmere"},
    {"ER", "Exile's Road", "Exile's Road"},
    {"TJC", "The Jade Circlet", "The Jade Circlet"},
    {"ST", "Stonemantle", "Stonemantle"},
    {"VD", "Varrowdene", "The Varrowdene"},
    {"AM", "Ambermoor", "Ambermoor"},
}};

}  // namespace

const ScenarioNames& NamesOfScenario(int scenario) {
    return catalogue.at(static_cast<std::size_t>(scenario) - 1);
}

void ScenarioCode(int scenario, std::string& code) {
    if (scenario >= 1 && scenario <= scenarioCount) code = NamesOfScenario(scenario).Code;
}

std::uint8_t ScenarioNumber(std::string_view code) {
    for (std::uint8_t scenario = 1; scenario <= scenarioCount; ++scenario) {
        if (NamesOfScenario(scenario).Code == code) return scenario;
    }
    return 0;
}

void ListNames(bool quoted, std::string& text) {
    const std::string quote = quoted ? "\"" : "";
    for (int scenario = 1; scenario < scenarioCount; ++scenario) {
        text += quote + std::string(NamesOfScenario(scenario).ListTitle) + quote + ", ";
    }
    text += "and " + quote + std::string(NamesOfScenario(scenarioCount).ListTitle) + quote + " ";
}

}  // namespace qarn
