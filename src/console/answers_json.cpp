#include "console/answers_json.h"

namespace qarn {
namespace {

using Json = nlohmann::ordered_json;

Json ReachJson(const std::vector<ReachedSquare>& reach) {
    Json list = Json::array();
    for (const ReachedSquare& reached : reach) {
        list.push_back({{"X", reached.square.X},
                        {"Y", reached.square.Y},
                        {"cost", reached.cost},
                        {"path", PathJson(reached.path)},
                        {"attack", reached.attack}});
    }
    return list;
}

// Fifths are as exact as a decimal number as they are in the rules.
double Chance(int numbersOfTheDie) { return static_cast<double>(numbersOfTheDie) / dieSides; }

Json ToJson(const std::optional<AttackOdds>& attack) {
    if (!attack) return nullptr;
    return {{"attack", attack->attack},
            {"defense", attack->defense},
            {"win", Chance(attack->odds.win)},
            {"tie", Chance(attack->odds.tie)},
            {"lose", Chance(attack->odds.lose)},
            {"lossAfterWin", Chance(attack->odds.lossAfterWin)},
            {"burns", attack->burns}};
}

}  // namespace

Json SquareJson(Square square) { return Json::array({square.X, square.Y}); }

Json PathJson(const Path& path) {
    Json list = Json::array();
    for (const Square square : path) list.push_back(SquareJson(square));
    return list;
}

void AddAnswers(Json& object, const Answers& answers) {
    if (answers.reach) object["reach"] = ReachJson(*answers.reach);
    if (answers.odds) {
        object["odds"] = {{"command", ToJson(answers.odds->command)},
                          {"direct", ToJson(answers.odds->direct)}};
    }
}

}  // namespace qarn
