#include "support/saved_game.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <sstream>
#include <stdexcept>

#include "scenarios/catalogue.h"
#include "scenarios/setup.h"

namespace qarn {
namespace {

const std::map<std::string, std::uint8_t PeopleRecord::*> strengths{
    {"Mobility", &PeopleRecord::Mobility},
    {"Attack", &PeopleRecord::Attack},
    {"Side", &PeopleRecord::Side}};

// True when the whole word has the form, of which every value is then read.
template <typename... Value>
bool Reads(const std::string& word, std::string form, Value*... values) {
    int end = 0;
    form += "%n";
    const auto count = std::sscanf(word.c_str(), form.c_str(), values..., &end);
    return count == sizeof...(values) && static_cast<std::size_t>(end) == word.size();
}

}  // namespace

PositionWords::PositionWords(const std::string& words) {
    std::istringstream all(words);
    for (std::string word; all >> word;) {
        if (!Take(word)) throw std::invalid_argument("No position has the word " + word);
    }
}

bool PositionWords::Take(const std::string& word) {
    int x = 0, y = 0;
    char group[4], strength[9];
    if (ScenarioNumber(word) != 0) {
        code = word;
        scenario = ScenarioNumber(word);
    } else if (Reads(word, "older%d", &scenario)) {
        code = word.substr(5);
    } else if (Reads(word, "turn%d", &x)) {
        turn = x;
    } else if (word == "computer1" || word == "computer2") {
        computer[word.back() - '0'] = true;
    } else if (Reads(word, "%3[^@]@%d,%d", group, &x, &y)) {
        placed.push_back({GroupWith(group, true), x, y});
    } else if (int terrain = 0; Reads(word, "%d,%d=%d", &x, &y, &terrain)) {
        landmarks.insert(landmarks.end(), {x, y, terrain});
    } else if (Reads(word, "%3[^.].%8[^=]=%d", group, strength, &x)) {
        changed.push_back(
            {GroupWith(group, false), strengths.at(strength), static_cast<std::uint8_t>(x)});
    } else if (word == "abbey") {
        abbey = true;
    } else if (word == "stonemantle") {
        stonemantle = true;
    } else {
        return false;
    }
    return true;
}

// The first of those with the code, of whom there may be several: boats.
std::size_t PositionWords::GroupWith(const std::string& groupCode, bool withoutPlace) const {
    const auto& roster = DataOfScenario(scenario).Roster;
    for (std::size_t i = 1; i <= roster.size(); ++i) {
        const bool placedAlready = std::any_of(placed.begin(), placed.end(),
                                               [&](const Placed& one) { return one.group == i; });
        if (withoutPlace && placedAlready) continue;
        if (roster[i - 1].Code.Text() == groupCode) return i;
    }
    throw std::invalid_argument(code + " has no more groups " + groupCode);
}

std::string SavedGame(const std::string& position) {
    const PositionWords words(position);
    std::string text = words.code + "\r\n";
    for (const auto& [side, name] : {std::pair{1, "Red"}, {2, "Blue"}}) {
        const std::string padded = name + std::string(54, ' ');
        text += padded.substr(0, 54) + (words.computer[side] ? "True\r\n" : "False\r\n");
    }
    std::vector<int> numbers{words.turn};
    if (!words.placed.empty() || !words.landmarks.empty()) {
        std::vector<int> places(2 * peopleCount);
        for (const auto& one : words.placed) {
            places.at(2 * one.group - 2) = one.X;
            places.at(2 * one.group - 1) = one.Y;
        }
        numbers.insert(numbers.end(), {9, 8});
        numbers.insert(numbers.end(), places.begin(), places.end());
        numbers.push_back(static_cast<int>(words.landmarks.size() / 3));
        numbers.insert(numbers.end(), words.landmarks.begin(), words.landmarks.end());
    }
    for (const int number : numbers) text += " " + std::to_string(number) + " \r\n";
    return text;
}

std::string WithLine(const std::string& text, int line, const std::string& replacement) {
    std::size_t begin = 0;
    for (int l = 1; l < line; ++l) begin = text.find("\r\n", begin) + 2;
    return std::string(text).replace(begin, text.find("\r\n", begin) - begin, replacement);
}

}  // namespace qarn
